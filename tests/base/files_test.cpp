#include <gtest/gtest.h>

#include <vector>

#include "base/data_path.h"
#include "base/file_buffer.h"
#include "base/whole_file.h"
#include "temp_folder.h"

namespace ventrel {
namespace {

class Files : public ::testing::Test {
protected:
    /// What loading the file fails with.
    Failure refusalOf(const std::filesystem::path& file, std::optional<std::size_t> size = {}) {
        const auto loaded = buffer.load(file, true, size);
        EXPECT_FALSE(loaded.has_value()) << file;
        EXPECT_FALSE(buffer.loaded || !buffer.data.empty()) << file;
        return loaded ? Failure{} : loaded.error();
    }

    TempFolder folder;
    FileBuffer buffer;
};

TEST_F(Files, WhatIsNoFileIsRefusedByName) {
    makePipe(folder / "pipe"); // reading it would wait for ever
    for (const auto& path : {folder / "none.apt", folder.path(), folder / "pipe"}) {
        EXPECT_FALSE(FileExists(path));
        EXPECT_EQ(refusalOf(path),
                  (Failure{"Can't open the file " + path.string() + ". Please re-install."}));
    }
}

TEST_F(Files, ShortFilesAreRefusedAndGiantOnesTakeNoMemory) {
    const auto file = folder / "short.apt";
    writeText(file, "x");
    EXPECT_EQ(refusalOf(file, 76).text, "File read failed. Tried to read 76 bytes from " + file.string() +
                                            " and could only read 1 bytes. Try re-installing. Something is "
                                            "seriously wrong here.");
    EXPECT_NE(refusalOf(file, std::size_t{1} << 60).text.find("only read 1 bytes"), std::string::npos);
    std::filesystem::resize_file(file, std::size_t{1} << 40);
    const std::string tooLarge =
        "The file " + file.string() + " is too large: at most 268435456 bytes can be read.";
    EXPECT_EQ(refusalOf(file).text, tooLarge);
    EXPECT_EQ(readWholeFile(file, std::size_t{1} << 28).error().text, tooLarge);
    EXPECT_TRUE(buffer.load(file, false, 76));
}

TEST_F(Files, NextLoadReplacesTheContent) {
    writeText(folder / "a", "first");
    EXPECT_TRUE(buffer.load(folder / "a", false, {}));
    EXPECT_EQ(buffer.data.size(), 5U);
    EXPECT_TRUE(buffer.load(folder / "a", false, 2));
    EXPECT_EQ(buffer.data.size(), 2U);
    refusalOf(folder / "b");
}

TEST_F(Files, SavingKeepsTheLengthAndNeedsPermission) {
    writeText(folder / "scores", "0123456789");
    ASSERT_TRUE(buffer.load(folder / "scores", false, {}));
    EXPECT_EQ(buffer.save().error().text, "");

    ASSERT_TRUE(buffer.load(folder / "scores", true, {}));
    buffer.data[0] = std::byte{'X'};
    buffer.data.push_back(std::byte{'!'});
    EXPECT_TRUE(buffer.save());
    EXPECT_EQ(readText(folder / "scores"), "X123456789");

    buffer.data.resize(4);
    EXPECT_NE(buffer.save().error().text.find("Tried to write 10 bytes"), std::string::npos);
    EXPECT_EQ(readText(folder / "scores"), "X123456789");

    std::filesystem::remove(folder / "scores");
    EXPECT_EQ(buffer.save().error().text,
              "Can't open the file " + (folder / "scores").string() + " for writing. Please re-install.");
    EXPECT_FALSE(std::filesystem::exists(folder / "scores"));
}

TEST_F(Files, DataNamesFindTheirFilesWhateverTheCaseAndNeverLeaveTheFolder) {
    std::filesystem::create_directories(folder / "grf");
    writeText(folder / "grf/Bkgnd8.grf", "picture");
    EXPECT_EQ(DataPath(folder.path(), "GRF\\bkgnd8.GRF"), folder / "grf/Bkgnd8.grf");
    EXPECT_EQ(DataPath(folder.path(), "mci\\none.mci"), folder / "mci/none.mci");
    EXPECT_EQ(DataPath(folder.path(), "..\\../grf"), folder / "grf");
    EXPECT_EQ(DataPath(folder.path(), "/etc/passwd"), folder / "etc/passwd");
}

} // namespace
} // namespace ventrel
