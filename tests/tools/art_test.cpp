// The pictures that the build has drawn, against the code that draws over them.

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <string>
#include <vector>

#include "base/format.h"
#include "console/console_layout.h"
#include "controls/console_piece.h"
#include "drawn_picture.h"
#include "radar/clouds.h"

using namespace ventrel;

namespace {

constexpr int cloudPictures = 16;

int brightness(const Bitmap& bitmap, const Rect& area) {
    int sum = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            sum += brightness(toColour(bitmap.at(x, y)));
        }
    }
    return sum / (area.width() * area.height());
}

struct ConsolePictures {
    const char* picture;
    const char* frame;
    const RadarLayout& radar;
    int messageWidth;
};

const std::array<ConsolePictures, 2> consolePictures{{
    {"bkgnd8", "r8frame", smallRadarLayout, 340},
    {"bkgnd10", "r10frame", largeRadarLayout, 562},
}};

/// The console's piece under the control panel.
Bitmap panelGround(const Bitmap& console) {
    return consolePiece(console, consoleLayoutFor(console.size().width).controlPanel);
}

std::string cloudName(int index) {
    return FormatText("cloud%d", {long{index}});
}

std::vector<std::string> keyedNames() {
    std::vector<std::string> names{"pointer_hand", "pointer_arrow", "icon"};
    for (int i = 0; i < cloudPictures; ++i) {
        names.push_back(cloudName(i));
    }
    return names;
}

bool isKey(const Bitmap& bitmap, int x, int y) {
    return toColour(bitmap.at(x, y)) == cloudTransparent;
}

} // namespace

TEST(Art, PicturesHaveTheSizesThatTheWindowsExpect) {
    EXPECT_EQ(drawnPicture("bkgnd8").size(), (Size{800, 600}));
    EXPECT_EQ(drawnPicture("bkgnd10").size(), (Size{1024, 768}));
    EXPECT_EQ(drawnPicture("r8frame").size(), (Size{539, 539}));
    EXPECT_EQ(drawnPicture("r10frame").size(), (Size{686, 686}));
    EXPECT_EQ(drawnPicture("strip_button_up").size(), (Size{20, 12}));
    EXPECT_EQ(drawnPicture("strip_button_down").size(), (Size{20, 12}));
    EXPECT_EQ(drawnPicture("about").size(), (Size{480, 320}));
    EXPECT_EQ(drawnPicture("splash").size(), (Size{799, 577}));
    EXPECT_EQ(drawnPicture("movie_frame").size(), (Size{600, 240}));
    EXPECT_EQ(drawnPicture("curtain8").size(), (Size{800, 600}));
    EXPECT_EQ(drawnPicture("curtain10").size(), (Size{1024, 768}));
}

TEST(Art, ClearPartsAreExactlyTheKeyAndNothingElseComesNearIt) {
    for (const std::string& name : keyedNames()) {
        const Bitmap bitmap = drawnPicture(name);
        int nearKey = 0;
        int drawn = 0;
        int onRim = 0;
        for (int y = 0; y < bitmap.height(); ++y) {
            for (int x = 0; x < bitmap.width(); ++x) {
                if (isKey(bitmap, x, y)) {
                    continue;
                }
                const Colour colour = toColour(bitmap.at(x, y));
                const bool isYellow = colour.red() > 180 && colour.green() > 180 && colour.blue() < 100;
                nearKey += isYellow ? 1 : 0;
                ++drawn;
                onRim += bitmap.bounds().grownBy(-1).contains(Point{x, y}) ? 0 : 1;
            }
        }
        const int area = bitmap.width() * bitmap.height();
        EXPECT_EQ(nearKey, 0) << name;
        EXPECT_GT(drawn * 100, area * 10) << name;
        EXPECT_LT(drawn * 100, area * 85) << name;
        EXPECT_TRUE(onRim == 0 || !name.starts_with("cloud")) << name << " is cut straight";
    }
}

TEST(Art, CloudsAreDarkAndHaveNoHolesInside) {
    constexpr int ditherStep = 4; // the clear pixels of a soft edge lie no further apart
    for (int i = 0; i < cloudPictures; ++i) {
        const Bitmap cloud = drawnPicture(cloudName(i));
        std::set<std::pair<int, int>> outside{{0, 0}};
        std::vector<Point> toVisit{{0, 0}};
        while (!toVisit.empty()) {
            const Point at = toVisit.back();
            toVisit.pop_back();
            const Rect near = Rect{at.x, at.y, at.x + 1, at.y + 1}.grownBy(ditherStep);
            const Rect area = near.intersectedWith(cloud.bounds());
            for (int y = area.top; y < area.bottom; ++y) {
                for (int x = area.left; x < area.right; ++x) {
                    if (isKey(cloud, x, y) && outside.insert({x, y}).second) {
                        toVisit.push_back({x, y});
                    }
                }
            }
        }
        int holes = 0;
        int brightest = 0;
        for (int y = 0; y < cloud.height(); ++y) {
            for (int x = 0; x < cloud.width(); ++x) {
                const bool isClear = isKey(cloud, x, y);
                holes += isClear && !outside.contains({x, y}) ? 1 : 0;
                brightest = isClear ? brightest : std::max(brightest, brightness(toColour(cloud.at(x, y))));
            }
        }
        EXPECT_EQ(holes, 0) << i;
        EXPECT_LT(brightest, 190) << i;
    }
}

TEST(Art, EveryCloudHasASizeOfItsOwn) {
    std::set<std::pair<int, int>> sizes;
    for (int i = 0; i < cloudPictures; ++i) {
        const Size size = drawnPicture(cloudName(i)).size();
        sizes.insert({size.width, size.height});
    }
    EXPECT_EQ(sizes.size(), std::size_t{cloudPictures});
}

TEST(Art, PointersPointWithTheirTips) {
    const Bitmap hand = drawnPicture("pointer_hand");
    const Bitmap arrow = drawnPicture("pointer_arrow");
    EXPECT_FALSE(isKey(hand, 6, 0));
    EXPECT_TRUE(isKey(hand, 5, 0));
    EXPECT_FALSE(isKey(arrow, 7, 9));
    for (int i = 0; i < arrow.width(); ++i) {
        EXPECT_TRUE(isKey(arrow, i, 8) && isKey(arrow, 6, i)) << i;
    }
}

TEST(Art, ALitLampIsMuchBrighterThanADarkOneOfItsSize) {
    for (const std::string colour : {"green", "yellow", "red"}) {
        const Bitmap bright = drawnPicture("lamp_" + colour + "_bright");
        const Bitmap dark = drawnPicture("lamp_" + colour + "_dark");
        const Rect lens{8, 8, 20, 20};
        EXPECT_EQ(bright.size(), (Size{28, 28})) << colour;
        EXPECT_EQ(dark.size(), (Size{28, 28})) << colour;
        EXPECT_GT(brightness(bright, lens), 3 * brightness(dark, lens)) << colour;
    }
}

TEST(Art, TheRadarFrameContinuesTheConsoleAndItsGlassIsDark) {
    for (const ConsolePictures& console : consolePictures) {
        const Bitmap whole = drawnPicture(console.picture);
        const Bitmap frame = drawnPicture(console.frame);
        const Region tube = Region::ellipse(console.radar.scopeEllipse);
        int differing = 0;
        int brightest = 0;
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x) {
                const Point corner = console.radar.corner;
                differing += frame.at(x, y) != whole.at(corner.x + x, corner.y + y) ? 1 : 0;
                const bool isInside = tube.contains({x, y}) && tube.contains({x - 2, y}) &&
                                      tube.contains({x + 2, y}) && tube.contains({x, y - 2}) &&
                                      tube.contains({x, y + 2});
                brightest = isInside ? std::max(brightest, brightness(toColour(frame.at(x, y)))) : brightest;
            }
        }
        EXPECT_EQ(differing, 0) << console.frame;
        EXPECT_LT(brightest, 90) << console.frame;
    }
}

TEST(Art, WellsUnderTextAreDarkToTheirEdges) {
    for (const ConsolePictures& console : consolePictures) {
        const Bitmap whole = drawnPicture(console.picture);
        const Bitmap panel = panelGround(whole);
        const Rect messages{443, 19, 443 + console.messageWidth, 39};
        constexpr int dark = 12;
        EXPECT_LT(brightness(whole, messages), dark) << console.picture;
        EXPECT_LT(brightness(whole, smallConsole.topBar.clock), dark) << console.picture;
        EXPECT_LT(brightness(panel, {2, 93, 167, 105}), dark) << console.picture;
        EXPECT_LT(brightness(panel, {52, 76, 76, 89}), dark) << console.picture;
    }
}

TEST(Art, ThePanelsBarLampsAndNeedleLieOnTheirArtwork) {
    for (const ConsolePictures& console : consolePictures) {
        SCOPED_TRACE(console.picture);
        const Bitmap panel = panelGround(drawnPicture(console.picture));
        const auto row = [&](int y) { return brightness(panel, {113, y, 150, y + 1}); };
        for (int altitude = 1; altitude <= 10; ++altitude) {
            const int top = 93 - 9 * altitude;
            EXPECT_LT(row(top), 70) << altitude;
            EXPECT_GT(row(top), 8 + row(top - 1)) << altitude;
            EXPECT_GT(row(top + 2), 8 + row(top + 3)) << altitude;
        }
        for (const int lens : {13, 33, 53}) {
            const int unlit = brightness(panel, {95, lens, 101, lens + 5});
            EXPECT_LT(unlit, 70) << lens;
            for (const Rect rim :
                 {Rect{95, lens - 1, 101, lens}, {94, lens, 95, lens + 5}, {101, lens, 102, lens + 5}}) {
                EXPECT_GT(unlit, 15 + brightness(panel, rim)) << lens;
            }
        }
        EXPECT_LT(brightness(panel, {38, 27, 44, 44}), 40);
        // The needle points at a mark on each of its eight headings.
        for (const Point tip :
             {Point{47, 9}, {66, 16}, {74, 35}, {66, 54}, {47, 62}, {28, 54}, {20, 35}, {28, 16}}) {
            const Rect mark{tip.x - 1, tip.y - 1, tip.x + 1, tip.y + 1};
            EXPECT_GT(brightness(panel, mark), 70) << tip.x << ' ' << tip.y;
        }
    }
}
