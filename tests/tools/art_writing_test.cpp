// The pictures that the program writes on or moves: whether letters, buttons and edges find there what they
// need.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "drawn_picture.h"

using namespace ventrel;

namespace {

/// Of all pixels of an area, sorted.
std::vector<int> brightnesses(const Bitmap& bitmap, const Rect& area) {
    std::vector<int> values;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            values.push_back(brightness(toColour(bitmap.at(x, y))));
        }
    }
    std::ranges::sort(values);
    return values;
}

int median(const std::vector<int>& values) {
    return values[values.size() / 2];
}

/// Where a row of the table of scores is written: its letters take 21 pixels.
constexpr Rect scoreRow(int row) {
    return {5, 50 + 24 * row, 645, 71 + 24 * row};
}
constexpr int rows = 10;

} // namespace

TEST(ArtWriting, EveryRowOfScoresLiesOnPaleEvenPaper) {
    const Bitmap scores = drawnPicture("hiscore", ImageFormat::jpeg);
    ASSERT_EQ(scores.size(), (Size{689, 600}));
    for (int row = 0; row < rows; ++row) {
        const std::vector<int> paper = brightnesses(scores, scoreRow(row));
        EXPECT_GT(median(paper), 190) << row;
        EXPECT_GT(paper.front(), 125) << row << ": a gap, or a rule as dark as letters";
        EXPECT_GT(paper[paper.size() / 50], 165) << row << ": too much is dark";
        const Rect gap{5, scoreRow(row).bottom, 645, scoreRow(row).bottom + 3};
        EXPECT_LT(brightnesses(scores, gap).front(), 70) << row << ": no gap to the next strip";
    }
}

TEST(ArtWriting, TheButtonsOfTheScoresHaveWellsOfTheirSize) {
    const Bitmap scores = drawnPicture("hiscore", ImageFormat::jpeg);
    for (const Rect button : {Rect{280, 575, 355, 594}, Rect{365, 575, 440, 594}}) {
        EXPECT_LT(brightnesses(scores, button).back(), 60) << button.left;
        const Rect above{button.left, button.top - 8, button.right, button.top - 4};
        EXPECT_GT(median(brightnesses(scores, above)), 60) << button.left;
    }
}

TEST(ArtWriting, TheLetterheadGoesOverIntoThePage) {
    const Bitmap head = drawnPicture("letterhead", ImageFormat::png);
    ASSERT_EQ(head.size(), (Size{250, 100}));
    for (const Rect edge :
         {Rect{0, 0, 250, 2}, Rect{0, 98, 250, 100}, Rect{0, 0, 2, 100}, Rect{248, 0, 250, 100}}) {
        EXPECT_EQ(brightnesses(head, edge).front(), 255);
    }
    EXPECT_LT(brightnesses(head, head.bounds()).front(), 60);
}

TEST(ArtWriting, TheButtonAndVersionOfTheAboutPictureHaveAPlainShelf) {
    const Bitmap about = drawnPicture("about", ImageFormat::png);
    const std::vector<int> shelf = brightnesses(about, {0, 258, 480, 320});
    EXPECT_EQ(shelf.front(), shelf.back());
}

TEST(ArtWriting, TheCurtainsTravellingEdgeIsABrightRailOverDarkSlats) {
    for (const char* name : {"curtain8", "curtain10"}) {
        const Bitmap curtain = drawnPicture(name, ImageFormat::png);
        const int width = curtain.width();
        const int rail = median(brightnesses(curtain, {40, 4, width - 40, 24}));
        EXPECT_GT(rail, 90) << name;
        EXPECT_LT(median(brightnesses(curtain, {40, 60, width - 40, curtain.height()})), rail / 2) << name;
    }
}
