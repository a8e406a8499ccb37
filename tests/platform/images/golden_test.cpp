#include "golden.h"

#include <gtest/gtest.h>

#include "../../base/temp_folder.h"
#include "platform/images/png_writer.h"

namespace ventrel {
namespace {

TEST(GoldenPictures, TellWhereAPictureDiffersAndLeaveBothBehind) {
    const TempFolder folder;
    Bitmap picture({4, 3});
    picture.at(1, 1) = 0x808080;
    ASSERT_TRUE(writePng(folder / "scope.png", picture));
    EXPECT_EQ(compareWithGolden(picture, folder / "scope.png", folder.path()), "");

    picture.at(2, 1) = 1;
    const std::string wrong = compareWithGolden(picture, folder / "scope.png", folder.path());
    EXPECT_NE(wrong.find("differs in 1 pixels, the first at (2, 1)"), std::string::npos) << wrong;
    Bitmap difference({4, 3});
    difference.at(1, 1) = 0x202020;
    difference.at(2, 1) = 0xFF0000;
    EXPECT_EQ(compareWithGolden(difference, folder / "scope.diff.png", folder.path()), "");
    EXPECT_TRUE(std::filesystem::exists(folder / "scope.actual.png"));

    const std::string missing = compareWithGolden(picture, folder / "none.png", folder.path());
    EXPECT_NE(missing.find("none.png is missing"), std::string::npos) << missing;
    EXPECT_NE(compareWithGolden(Bitmap({5, 3}), folder / "scope.png", folder.path()), "");
}

} // namespace
} // namespace ventrel
