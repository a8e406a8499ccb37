// Whether what is drawn on the console lies where the table says that the windows and hit areas are: edges
// are looked for in the pixels of the pictures, at both sizes. Every check is then shown the same picture
// with its place moved by three pixels, and has to see it.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <numbers>
#include <string>
#include <vector>

#include "console/console_layout.h"
#include "drawn_picture.h"
#include "platform/canvas/canvas.h"

using namespace ventrel;

namespace {

int brightness(const Bitmap& picture, Point at) {
    return ventrel::brightness(toColour(picture.at(at.x, at.y)));
}

/// Whole pixels outside a place's border; negative inside.
struct Reach {
    int from;
    int to;
    bool contains(int offset) const { return offset >= from && offset <= to; }
};

constexpr int nowhere = 99;
constexpr int searched = 7; // pixels outside a border

/// The first offset from `start` outward whose brightness has crossed the threshold.
int firstCrossing(int start, int threshold, bool upward, const std::function<int(int)>& brightnessAt) {
    for (int offset = start; offset < searched; ++offset) {
        if ((brightnessAt(offset) > threshold) == upward) {
            return offset;
        }
    }
    return nowhere;
}

enum class Side { left, top, right, bottom };
constexpr std::array allSides{Side::left, Side::top, Side::right, Side::bottom};

/// The mean brightness of the line beside the middle of a side, `offset` pixels outside it.
int beside(const Bitmap& picture, const Rect& area, Side side, int offset) {
    const bool isUpright = side == Side::left || side == Side::right;
    const int length = isUpright ? area.height() : area.width();
    int sum = 0;
    int count = 0;
    for (int along = length / 4; along < length - length / 4; ++along, ++count) {
        const Point at = side == Side::left    ? Point{area.left - 1 - offset, area.top + along}
                         : side == Side::right ? Point{area.right + offset, area.top + along}
                         : side == Side::top   ? Point{area.left + along, area.top - 1 - offset}
                                               : Point{area.left + along, area.bottom + offset};
        sum += picture.bounds().contains(at) ? brightness(picture, at) : 0;
    }
    return sum / count;
}

/// What is to be found across an edge, walking outward.
struct Edge {
    int start;     ///< offset at which the walk begins
    int threshold; ///< of brightness
    bool upward;   ///< from dark to bright
    Reach expected;
};

using Check = std::function<bool(const Bitmap&)>;

struct Place {
    std::string name;
    Rect area;
    Check isRight;
    bool isWide = false; ///< it runs from side to side, and only moves up and down
};

Place straight(std::string name, const Rect& area, const Edge& edge,
               std::vector<Side> sides = {allSides.begin(), allSides.end()}) {
    return {std::move(name), area, [=](const Bitmap& picture) {
                return std::ranges::all_of(sides, [&](Side side) {
                    return edge.expected.contains(
                        firstCrossing(edge.start, edge.threshold, edge.upward,
                                      [&](int offset) { return beside(picture, area, side, offset); }));
                });
            }};
}

/// The same across the border of an ellipse, in eight directions that begin at `firstDegrees`.
Place round(std::string name, const Rect& area, const Edge& edge, double firstDegrees = 0) {
    return {std::move(name), area, [=](const Bitmap& picture) {
                for (double degrees = firstDegrees; degrees < 360; degrees += 45) {
                    const double angle = degrees * std::numbers::pi / 180;
                    const auto brightnessAt = [&](int offset) {
                        const double x = (area.left + area.right) / 2.0 +
                                         (area.width() / 2.0 + offset + 0.5) * std::sin(angle);
                        const double y = (area.top + area.bottom) / 2.0 -
                                         (area.height() / 2.0 + offset + 0.5) * std::cos(angle);
                        const Point at{static_cast<int>(std::floor(x)), static_cast<int>(std::floor(y))};
                        return picture.bounds().contains(at) ? brightness(picture, at) : 0;
                    };
                    if (!edge.expected.contains(
                            firstCrossing(edge.start, edge.threshold, edge.upward, brightnessAt))) {
                        return false;
                    }
                }
                return true;
            }};
}

constexpr Edge wellEdge{-2, 45, true, {0, 2}};     // dark floor, then lip and metal
constexpr Edge arrowEdge{-4, 40, false, {-2, -1}}; // a key within a dark gap
constexpr Edge keyEdge{-2, 35, false, {-1, 0}};    // a key with the dark gap around it
constexpr Edge systemKeyEdge{-2, 55, false, {0, 0}};
constexpr Edge lensEdge{-2, 28, false, {0, 0}};      // brown glass in a dark frame
constexpr Edge lampWellEdge{-5, 30, true, {-3, -1}}; // the metal rim lies within the window
constexpr Edge faceEdge{-2, 45, true, {0, 2}};
constexpr Edge dialEdge{-2, 55, true, {0, 2}};
constexpr Edge directLampEdge{-1, 70, true, {0, 1}};
constexpr Edge glassEdge{-3, 20, true, {2, 4}}; // the closed lip, then the bezel
constexpr Edge dragEdge{-1, 62, true, {0, 0}};
constexpr double betweenMarks = 7.5; // degrees, on the dial
constexpr double betweenTicks = 1;   // on the scope's bezel

bool isAmber(const Bitmap& picture, Point at) {
    const Colour colour = toColour(picture.at(at.x, at.y));
    return colour.red() > colour.blue() + 60;
}

/// The unlit bar of an altitude: its light upper row ends where the lit bar does, and its tick is level with
/// it.
Place altitudeBar(Point corner, int altitude) {
    constexpr int contrast = 8;
    const Rect bar = panelLayout.altitudeBar(altitude).movedBy(corner);
    const Point tick{corner.x + panelLayout.altitudeWell.right + 2, bar.top + 1};
    return {"altitude " + std::to_string(altitude), bar, [=](const Bitmap& picture) {
                const auto at = [&](int x, int y) { return brightness(picture, {x, y}); };
                return at(bar.left, bar.top) > at(bar.left - 1, bar.top) + contrast &&
                       at(bar.right - 1, bar.top) > at(bar.right, bar.top) + contrast &&
                       at(bar.left, bar.top) > at(bar.left, bar.top - 1) + contrast &&
                       at(bar.left, bar.bottom - 1) > at(bar.left, bar.bottom) + contrast / 2 &&
                       isAmber(picture, tick);
            }};
}

void addTopBar(std::vector<Place>& places, const TopBarLayout& bar) {
    places.push_back(straight("drag strip", bar.dragStrip, dragEdge, {Side::bottom}));
    places.back().isWide = true;
    places.push_back(straight("system square", bar.systemSquare, systemKeyEdge));
    places.push_back(straight("File", bar.fileButton, wellEdge));
    places.push_back(straight("Options", bar.optionsButton, wellEdge));
    places.push_back(straight("Help", bar.helpButton, wellEdge));
    places.push_back(round("small scope", bar.smallScopeFace.movedBy(bar.smallScope.topLeft()), faceEdge));
    places.push_back(straight("clock", bar.clock, wellEdge));
    places.push_back(straight("ticker", bar.ticker, wellEdge));
    for (std::size_t lamp = 0; lamp < bar.lamps.size(); ++lamp) {
        places.push_back(round("lamp " + std::to_string(lamp), bar.lamps[lamp], lampWellEdge));
    }
}

void addStrips(std::vector<Place>& places, const StripsLayout& strips) {
    places.push_back(straight("strips", strips.well(), wellEdge));
    for (int i = 0; i < strips.count; ++i) {
        places.push_back(straight("strip button " + std::to_string(i), strips.button(i), wellEdge));
    }
    places.push_back(straight("scroll up", strips.scrollUp, arrowEdge));
    places.push_back(straight("scroll down", strips.scrollDown, arrowEdge));
}

void addPanel(std::vector<Place>& places, Point corner) {
    const auto at = [&](const Rect& rect) { return rect.movedBy(corner); };
    const int radius = panelLayout.dialRadius;
    const Point middle = panelLayout.dialMiddle;
    // The face's middle lies half a pixel below the pivot.
    const Rect dial{middle.x - radius, middle.y - radius, middle.x + radius, middle.y + radius + 1};
    places.push_back(round("dial", at(dial), dialEdge, betweenMarks));
    places.push_back(straight("fast lamp", at(panelLayout.fast.lens), lensEdge));
    places.push_back(straight("normal lamp", at(panelLayout.normal.lens), lensEdge));
    places.push_back(straight("slow lamp", at(panelLayout.slow.lens), lensEdge));
    places.push_back(straight("altitude scale", at(panelLayout.altitudeWell), wellEdge));
    for (int altitude = 1; altitude <= 10; ++altitude) {
        places.push_back(altitudeBar(corner, altitude));
    }
    places.push_back(straight("direct button", at(panelLayout.directButton), keyEdge));
    places.push_back(round("direct lamp", at(panelLayout.directLamp), directLampEdge));
    places.push_back(straight("target box", at(panelLayout.targetBox), wellEdge));
    places.push_back(straight("target up", at(panelLayout.targetUp), arrowEdge));
    places.push_back(straight("target down", at(panelLayout.targetDown), arrowEdge));
    places.push_back(straight("preview", at(panelLayout.previewWell), wellEdge));
}

std::vector<Place> placesOf(const ConsoleLayout& console) {
    std::vector<Place> places;
    addTopBar(places, console.topBar);
    addStrips(places, console.strips);
    addPanel(places, console.controlPanel.topLeft());
    places.push_back(straight("EXEC", console.execButton, wellEdge));
    const RadarLayout& radar = console.radar;
    places.push_back(round("radar", radar.scopeEllipse.movedBy(radar.corner), glassEdge, betweenTicks));
    return places;
}

struct Console {
    const ConsoleLayout& places;
    const char* picture;
};
constexpr std::array<Console, 2> consoles{{{smallConsole, "bkgnd8"}, {largeConsole, "bkgnd10"}}};

/// The picture with one place, and a little of what is around it, drawn somewhere else.
Bitmap displaced(const Bitmap& picture, const Rect& area, Point offset) {
    constexpr int around = 9;
    const Rect from = area.grownBy(around).intersectedWith(picture.bounds());
    Bitmap moved = picture;
    Canvas(moved).draw(from.movedBy(offset), picture, from);
    return moved;
}

} // namespace

TEST(ArtPlaces, EverythingIsDrawnWhereTheTableSaysItIs) {
    for (const Console& console : consoles) {
        const Bitmap picture = drawnPicture(console.picture);
        for (const Place& place : placesOf(console.places)) {
            EXPECT_TRUE(place.isRight(picture)) << console.picture << ": " << place.name;
        }
    }
}

TEST(ArtPlaces, ThreePixelsBesideAreSeen) {
    constexpr std::array<Point, 4> offsets{{{0, 3}, {0, -3}, {3, 0}, {-3, 0}}};
    for (const Console& console : consoles) {
        const Bitmap picture = drawnPicture(console.picture);
        for (const Place& place : placesOf(console.places)) {
            for (const Point offset : offsets) {
                if (place.isWide && offset.x != 0) {
                    continue;
                }
                EXPECT_FALSE(place.isRight(displaced(picture, place.area, offset)))
                    << console.picture << ": " << place.name << " moved by " << offset.x << ", " << offset.y;
            }
        }
    }
}
