#include <gtest/gtest.h>

#include "../canvas/drawn.h"
#include "platform/text/text.h"

namespace ventrel {
namespace {

/// Letters of 2 x 2 pixels in cells of 3 x 4, so that a picture of a text can be read. Blanks are empty.
Font blockFont() {
    constexpr Size letter{2, 2};
    std::array<Glyph, Font::glyphCount> glyphs;
    for (std::size_t c = ' '; c < glyphs.size(); ++c) {
        glyphs[c] = {c == ' ' ? Rect{} : Rect::at({0, 0}, letter), 3, 0};
    }
    return {{4, 2, 3}, glyphs, std::vector<std::uint8_t>(4, 255)};
}

class TextBoxes : public ::testing::Test {
protected:
    std::string boxed(std::string_view text, const TextLayout& layout, const Rect& box, Size size) {
        Bitmap bitmap(size);
        Canvas canvas(bitmap);
        drawTextBox(canvas, font, box, text, {white, {}}, layout);
        return drawn(bitmap);
    }

    Size wrapped(std::string_view text, int width) { return measureText(font, text, width, {.wrap = true}); }

    Font font = blockFont();
};

TEST_F(TextBoxes, WrapBetweenWordsAndBreakWordsThatAreTooWide) {
    EXPECT_EQ(wrapped("ab cd", 15), (Size{15, 4}));
    EXPECT_EQ(wrapped("ab cd", 14), (Size{6, 8}));
    // The blanks at which a line was wrapped take no room on either line.
    EXPECT_EQ(wrapped("ab    cd", 6), (Size{6, 8}));
    EXPECT_EQ(wrapped("ab    ", 6), (Size{6, 4}));
    EXPECT_EQ(wrapped("abcdefgh", 9), (Size{9, 12}));
    EXPECT_EQ(wrapped("a bcdefg h", 9), (Size{9, 16}));
    EXPECT_EQ(wrapped("  abcd", 9), (Size{9, 8}));
    // However narrow, every line takes a character.
    EXPECT_EQ(wrapped("abc", 0), (Size{3, 12}));
    EXPECT_EQ(wrapped("a b", -5), (Size{3, 8}));
    EXPECT_EQ(wrapped("      ", 3).height, 4);
    EXPECT_EQ(wrapped("", 9), (Size{0, 4}));
    EXPECT_EQ(measureText(font, "abcd efgh", 3, {}), (Size{27, 4}));
}

TEST_F(TextBoxes, EndLinesAtEveryKindOfBreak) {
    EXPECT_EQ(measureText(font, "E\rX\rE\rC", 0, {}), (Size{3, 16}));
    EXPECT_EQ(measureText(font, "a\r\nbc\nd", 0, {}), (Size{6, 12}));
    EXPECT_EQ(wrapped("a\r\n\r\n\r\n##", 30), (Size{6, 16}));
    EXPECT_EQ(measureText(font, "a\r\nb\nc", 0, {.singleLine = true}), (Size{15, 4}));
    EXPECT_EQ(measureText(font, "a b", 3, {.wrap = true, .singleLine = true}), (Size{9, 4}));
}

TEST_F(TextBoxes, AlignEachLineAcrossAndTheBlockDown) {
    Bitmap both({24, 11});
    Canvas canvas(both);
    for (const auto& [left, align] : {std::pair{1, Align::far}, {13, Align::middle}}) {
        const TextLayout layout{.across = align, .down = align};
        drawTextBox(canvas, font, {left, 0, left + 10, 11}, "a\nbc", {white, {}}, layout);
    }
    EXPECT_EQ(drawn(both), "........................\n"
                           "................##......\n"
                           "................##......\n"
                           "........##..............\n"
                           "........##..............\n"
                           "...............##.##....\n"
                           "...............##.##....\n"
                           ".....##.##..............\n"
                           ".....##.##..............\n"
                           "........................\n"
                           "........................\n");
}

TEST_F(TextBoxes, UnderlineTheLastMarkedCharacter) {
    EXPECT_EQ(boxed("&a&b&&", {.mnemonics = true}, {0, 0, 9, 4}, {9, 4}), "##.##.##.\n"
                                                                          "##.##.##.\n"
                                                                          ".........\n"
                                                                          "...###...\n");
    EXPECT_EQ(measureText(font, "&Options", 0, {.mnemonics = true}).width, 21);
    EXPECT_EQ(measureText(font, "R&D", 0, {}).width, 9);
    EXPECT_EQ(measureText(font, "R&", 0, {.mnemonics = true}).width, 3);
}

TEST_F(TextBoxes, DrawInsideTheBoxOnlyUnlessTold) {
    const Rect box{3, 0, 7, 2};
    const Size size{10, 2};
    EXPECT_EQ(boxed("abc", {.across = Align::middle, .clip = false}, box, size), ".##.##.##.\n"
                                                                                 ".##.##.##.\n");
    EXPECT_EQ(boxed("abc", {.across = Align::middle}, box, size), "....##....\n"
                                                                  "....##....\n");
}

TEST_F(TextBoxes, FillTheGroundOfTheirLines) {
    Bitmap bitmap({12, 7});
    Canvas canvas(bitmap);
    EXPECT_EQ(drawTextBox(canvas, font, {0, 0, 8, 7}, "a\n ab", {Colour{}, white}, {}), 8);
    EXPECT_EQ(drawn(bitmap), "..#.........\n"
                             "..#.........\n"
                             "###.........\n"
                             "###.........\n"
                             "###..#......\n"
                             "###..#......\n"
                             "########....\n");
}

TEST_F(TextBoxes, SetColumnsAtTabStops) {
    Bitmap bitmap({36, 2});
    Canvas canvas(bitmap);
    drawTabbedText(canvas, font, {0, 0}, "a\tb\t\tcd\te", 6, {white, {}});
    // The fourth column ends on a stop: the fifth begins at the one after.
    EXPECT_EQ(drawn(bitmap), "##....##..........##.##.......##....\n"
                             "##....##..........##.##.......##....\n");
    canvas.fill(bitmap.bounds(), {});
    drawTabbedText(canvas, font, {0, 0}, "a\tb", 0, {white, {}});
    EXPECT_EQ(drawn(bitmap).substr(0, 8), "##.##...");
}

} // namespace
} // namespace ventrel
