#include "platform/text/font.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include "../../base/temp_folder.h"
#include "platform/text/text.h"

namespace ventrel {
namespace {

constexpr Colour black = Colour::rgb(0, 0, 0);
constexpr Colour white = Colour::rgb(255, 255, 255);

const std::filesystem::path fontFolder = std::filesystem::path(PROGRAM_FOLDER) / "fonts";

/// What the windows ask for.
constexpr FontRequest tags{Face::smallFonts, 10, false};
constexpr FontRequest smallLabels{Face::smallFonts, -8, false};
constexpr FontRequest dialogs{Face::msSansSerif, -11, false};
constexpr FontRequest panels{Face::arial, -11, false};
constexpr FontRequest clockFace{Face::arial, -14, false};
constexpr FontRequest ticker{Face::arial, -16, true};
constexpr FontRequest scores{Face::arial, -18, true};
constexpr FontRequest pause{Face::arial, -40, true};
constexpr FontRequest release{Face::courierNew, -12, false};
constexpr FontRequest all[] = {tags, smallLabels, dialogs, panels, clockFace, ticker, scores, pause, release};

class Fonts : public ::testing::Test {
protected:
    const Font& font(const FontRequest& request) { return fonts_.font(request); }

    Bitmap drawn(const FontRequest& request, std::string_view text) {
        Bitmap bitmap({font(request).width(text) + 20, 60});
        Canvas canvas(bitmap);
        font(request).draw(canvas, {10, 10}, text, white);
        return bitmap;
    }

private:
    FontSet fonts_{fontFolder};
};

/// The rectangle around everything that is not black.
Rect inkOf(const Bitmap& bitmap) {
    Rect ink;
    for (int y = 0; y < bitmap.height(); ++y) {
        for (int x = 0; x < bitmap.width(); ++x) {
            ink = bitmap.at(x, y) == 0 ? ink : ink.unitedWith({x, y, x + 1, y + 1});
        }
    }
    return ink;
}

TEST_F(Fonts, KeepEveryCharacterOfATagApart) {
    for (const FontRequest& request : all) {
        std::map<std::vector<Pixel>, char> pictures;
        for (const char c : std::string_view("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789*:-\xB0")) {
            const Bitmap picture = drawn(request, std::string(1, c) + '.');
            const auto [known, isNew] =
                pictures.emplace(std::vector(picture.pixels().begin(), picture.pixels().end()), c);
            EXPECT_TRUE(isNew) << c << " looks like " << known->second << " at " << request.height;
        }
    }
}

TEST_F(Fonts, AreSharpWhenSmallAndSmoothWhenLarge) {
    for (const FontRequest& request : all) {
        const Bitmap picture = drawn(request, "PAUSE 90");
        const std::set<Pixel> shades(picture.pixels().begin(), picture.pixels().end());
        EXPECT_EQ(shades.size() > 2, request == pause) << request.height;
    }
}

TEST_F(Fonts, MoveThePenByTheWidthTheyMeasure) {
    for (const FontRequest& request : all) {
        // Piece by piece or at once, text lands on the same pixels.
        Bitmap pieces({font(request).width("DL274H 10K") + 20, 60});
        Canvas canvas(pieces);
        int x = 10;
        for (const char* piece : {"DL2", "", "74H ", "10K"}) {
            x = drawText(canvas, font(request), {x, 10}, piece, {white, {}});
        }
        EXPECT_EQ(x, 10 + font(request).width("DL274H 10K"));
        EXPECT_EQ(pieces, drawn(request, "DL274H 10K"));
    }
}

TEST_F(Fonts, DrawLettersInsideTheirLine) {
    for (const FontRequest& request : all) {
        const Rect ink = inkOf(drawn(request, "ABCXYZ (gjpqy) 0189"));
        EXPECT_GE(ink.top, 10) << request.height;
        EXPECT_LE(ink.bottom, 10 + font(request).lineHeight()) << request.height;
        const int base = inkOf(drawn(request, "HXE")).bottom;
        EXPECT_EQ(base, 10 + font(request).ascent()) << request.height;
    }
}

TEST_F(Fonts, KnowTheWindowsCharactersAndBoxTheRest) {
    const Bitmap box = drawn(dialogs, "\x81");
    EXPECT_FALSE(inkOf(box).isEmpty());
    EXPECT_EQ(drawn(dialogs, "\x90"), box);
    for (const char* known : {"\x80", "\x99", "\xB0", "\xE9"}) {
        EXPECT_NE(drawn(dialogs, known), box);
        EXPECT_FALSE(inkOf(drawn(dialogs, known)).isEmpty());
    }
    EXPECT_EQ(font(dialogs).width("\t\r\n\x7F"), 0);
    EXPECT_TRUE(inkOf(drawn(dialogs, "\t\r\n\x01\x7F ")).isEmpty());
}

TEST_F(Fonts, DrawInsideARectangleWhatTheyDrawWithoutIt) {
    const Rect inside{13, 12, 40, 19};
    const Bitmap whole = drawn(ticker, "jWelcome jj");
    Bitmap expected(whole.size());
    Canvas(expected).draw(inside, whole, inside);
    Bitmap clipped(whole.size());
    Canvas canvas(clipped);
    EXPECT_EQ(drawTextInside(canvas, font(ticker), {10, 10}, "jWelcome jj", {white, black}, inside),
              10 + font(ticker).width("jWelcome jj"));
    EXPECT_EQ(clipped, expected);
    canvas.fill(clipped.bounds(), white);
    drawTextInside(canvas, font(ticker), {10, 10}, "", {white, black}, inside);
    EXPECT_EQ(std::ranges::count(clipped.pixels(), 0U), inside.width() * inside.height());
}

TEST_F(Fonts, TakeAnyHeightAndAnyPlace) {
    constexpr int most = std::numeric_limits<int>::max();
    Bitmap bitmap({20, 20});
    Canvas canvas(bitmap);
    for (const int height : {0, 1, -1, 255, most, -most - 1}) {
        const Font& made = font({Face::courierNew, height, true});
        EXPECT_GT(made.lineHeight(), 0);
        EXPECT_LT(made.lineHeight(), 400);
        EXPECT_GT(made.averageWidth(), 0);
    }
    for (const int far : {most, -most - 1}) {
        drawText(canvas, font(panels), {far, far}, "far away", {white, black});
        drawTextInside(canvas, font(panels), {5, 5}, "far away", {white, {}}, {far, far, far, far});
        drawTextBox(canvas, font(panels), {far, far, far, far}, "far away", {white, black}, {});
    }
    EXPECT_TRUE(inkOf(bitmap).isEmpty());
}

TEST(FontSets, NameEveryMissingOrHalfFaceAndLetAnotherStandIn) {
    const TempFolder folder;
    for (const auto& entry : std::filesystem::directory_iterator(fontFolder)) {
        std::filesystem::copy(entry.path(), folder.path());
    }
    std::filesystem::remove(folder / "LiberationSans-Bold.ttf");
    const std::string half = "LiberationMono-Regular.ttf";
    const std::string content = readText(folder / half);
    writeText(folder / half, content.substr(0, content.size() * 9 / 10));
    FontSet fonts(folder.path());
    const auto failures = fonts.failures();
    ASSERT_EQ(failures.size(), 2U);
    EXPECT_NE(failures[0].text.find("LiberationSans-Bold"), std::string::npos) << failures[0].text;
    EXPECT_NE(failures[1].text.find(half), std::string::npos) << failures[1].text;
    EXPECT_EQ(failures[1].icon, MessageIcon::stop);
    EXPECT_TRUE(fonts.hasFaces());
    EXPECT_EQ(fonts.font({Face::arial, -16, true}).width("lilt"),
              fonts.font({Face::arial, -16, false}).width("lilt"));
    EXPECT_EQ(fonts.font({Face::courierNew, -16, false}).width("lilt"),
              fonts.font({Face::courierNew, -16, true}).width("lilt"));
}

TEST(FontSets, WithoutAnyFaceWindowsKeepAShape) {
    const TempFolder folder;
    FontSet fonts(folder.path());
    EXPECT_EQ(fonts.failures().size(), 4U);
    EXPECT_FALSE(fonts.hasFaces());
    const Font& missing = fonts.font(scores);
    EXPECT_GT(missing.lineHeight(), 0);
    EXPECT_GT(missing.width("AB"), missing.width("A"));
    Bitmap bitmap({40, 40});
    Canvas canvas(bitmap);
    missing.draw(canvas, {0, 0}, "AB", white);
    EXPECT_TRUE(inkOf(bitmap).isEmpty());
}

} // namespace
} // namespace ventrel
