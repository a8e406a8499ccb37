#include "map_geometry/map_geometry.h"

#include <cstddef>

#include "console/window_size.h"

namespace ventrel {

namespace {

// Nothing is scaled: a flight is drawn at its cell's top-left corner, a map point at its own pixel position.
static_assert(radarCells == gridSize);
static_assert(smallWindow.width == smallLayout.windowWidth && largeWindow.width == largeLayout.windowWidth);
static_assert(smallRadarLayout.cellSize == smallLayout.cellSize);
static_assert(largeRadarLayout.cellSize == largeLayout.cellSize);

constexpr int headingCount = fullCircle / headingStep;
constexpr int runwayAxes = headingCount / 2;

constexpr int labelGap = 3; // between a circle and its label

/// How far a label is pushed out of a corner into which the runway points.
constexpr int smallRunwayGap = 6;
constexpr int largeRunwayGap = 9;

enum VorLabelPlace { above = 0, left = 1, right = 2 };
enum AirportLabelPlace { upperLeft = 0, upperRight = 1, lowerLeft = 2 };

/// The cone of one heading. Points are offsets from the airport in cells, doubled so that half a cell is a
/// whole number.
struct Cone {
    Point apex;
    std::array<Point, 2> ends;
};

constexpr std::array<Cone, headingCount> cones{{
    {{0, 2}, {{{-1, 6}, {1, 6}}}},      // 0
    {{-2, 2}, {{{-4, 6}, {-6, 4}}}},    // 45
    {{-2, 0}, {{{-6, -1}, {-6, 1}}}},   // 90
    {{-2, -2}, {{{-4, -6}, {-6, -4}}}}, // 135
    {{0, -2}, {{{-1, -6}, {1, -6}}}},   // 180
    {{2, -2}, {{{4, -6}, {6, -4}}}},    // 225
    {{2, 0}, {{{6, -1}, {6, 1}}}},      // 270
    {{2, 2}, {{{4, 6}, {6, 4}}}},       // 315
}};

/// The runway's lines by axis: 0, 45, 90, 135, the same for the opposite headings. Offsets in pixels.
using RunwayTable = std::array<std::array<MapLine, 2>, runwayAxes>;

constexpr RunwayTable smallRunways{{
    {{{{-1, -10}, {-1, 10}}, {{1, -10}, {1, 10}}}},
    {{{{6, -7}, {-7, 6}}, {{8, -6}, {-6, 8}}}},
    {{{{-10, -1}, {10, -1}}, {{-10, 1}, {10, 1}}}},
    {{{{-8, -7}, {7, 8}}, {{-6, -8}, {9, 7}}}},
}};

constexpr RunwayTable largeRunways{{
    {{{{-2, -13}, {-2, 13}}, {{2, -13}, {2, 13}}}},
    {{{{9, -11}, {-11, 9}}, {{11, -9}, {-9, 11}}}},
    {{{{-13, -2}, {13, -2}}, {{-13, 2}, {13, 2}}}},
    {{{{-12, -10}, {10, 12}}, {{-10, -12}, {12, 10}}}},
}};

bool isLarge(const RadarLayout& layout) {
    return layout.windowWidth == largeRadarLayout.windowWidth;
}

Point vorLabelCorner(const RadarLayout& layout, const Vor& vor, Size label) {
    constexpr int gapAbove = 5;
    const int radius = layout.markerDiameter / 2;
    const auto [x, y] = vor.pixel;
    switch (vor.labelPlace) {
    case above: return {x - label.width / 2, y - layout.markerDiameter - gapAbove};
    case left: return {x - radius - label.width - labelGap, y - label.height / 2};
    case right: return {x + radius + labelGap, y - label.height / 2};
    default: return {x - label.width / 2, y + radius + labelGap};
    }
}

/// Whether the runway lies along the axis from the upper left to the lower right, or along the other
/// diagonal.
bool runsDownward(int heading) {
    return heading == 135 || heading == 315;
}
bool runsUpward(int heading) {
    return heading == 45 || heading == 225;
}

Point airportLabelCorner(const RadarLayout& layout, const Vor& airport, Size label) {
    constexpr int upperGap = 6;
    constexpr int lowerRightGap = 4;
    const int radius = layout.markerDiameter / 2;
    const int push = isLarge(layout) ? largeRunwayGap : smallRunwayGap;
    const int pushDown = runsDownward(airport.runwayHeading) ? push : 0;
    const int pushUp = runsUpward(airport.runwayHeading) ? push : 0;
    const auto [x, y] = airport.pixel;
    switch (airport.labelPlace) {
    case upperLeft: return {x - radius - label.width - labelGap - pushDown, y - radius - upperGap};
    case upperRight: return {x + radius + labelGap + pushUp, y - radius - upperGap};
    case lowerLeft: return {x - radius - label.width - labelGap - pushUp, y + radius};
    default: return {x + radius + lowerRightGap + pushDown, y + radius};
    }
}

/// Where a runway's number stands: cells backwards along its line, and to the side.
constexpr std::array<Point, 3> numberPlaces{{{4, 0}, {2, 2}, {2, -2}}};

/// The first of them that is on the scope.
Rect numberBox(const RadarLayout& layout, Point airport, Cell behind, Size size) {
    Rect box;
    for (const Point& place : numberPlaces) {
        const Point cells{behind.x * place.x - behind.y * place.y, behind.y * place.x + behind.x * place.y};
        const Point middle = airport + Point{cells.x * layout.cellSize, cells.y * layout.cellSize};
        box = Rect::at(middle - Point{size.width / 2, size.height / 2}, size);
        if (cornersOutside(layout.scopeEllipse, box) == 0) {
            break;
        }
    }
    return box;
}

} // namespace

std::optional<std::size_t> headingNumber(int heading) {
    if (heading < 0 || heading >= fullCircle || heading % headingStep != 0) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(heading / headingStep);
}

Rect markerBox(const RadarLayout& layout, Point pixel) {
    const int radius = layout.markerDiameter / 2;
    return {pixel.x - radius + 1, pixel.y - radius + 1, pixel.x + radius, pixel.y + radius};
}

Point labelCorner(const RadarLayout& layout, const Vor& vor, Size label) {
    return vor.isAirport ? airportLabelCorner(layout, vor, label) : vorLabelCorner(layout, vor, label);
}

std::optional<std::array<MapLine, 2>> approachCone(const RadarLayout& layout, Point pixel,
                                                   int runwayHeading) {
    const auto number = headingNumber(runwayHeading);
    if (!number) {
        return std::nullopt;
    }
    const auto pixels = [&](Point doubledCells) {
        return pixel + Point{doubledCells.x * layout.cellSize / 2, doubledCells.y * layout.cellSize / 2};
    };
    const Cone& cone = cones[*number];
    const Point apex = pixels(cone.apex);
    return std::array<MapLine, 2>{{{apex, pixels(cone.ends[0])}, {apex, pixels(cone.ends[1])}}};
}

std::optional<Centreline> centreline(const RadarLayout& layout, Point pixel, int runwayHeading, Size number) {
    constexpr std::array dashCells{1, 2, 5, 6, 7}; // from the airport to where a dash's cell begins
    constexpr int dashPart = 4;                    // of a cell is clear at either end
    if (!headingNumber(runwayHeading)) {
        return std::nullopt;
    }
    const Cell behind = stepCell({0, 0}, turned(runwayHeading, fullCircle / 2));
    const auto along = [&](int cells) {
        return Point{behind.x * layout.cellSize * cells, behind.y * layout.cellSize * cells};
    };
    const Point gap{along(1).x / dashPart, along(1).y / dashPart};
    Centreline line{.number = numberBox(layout, pixel, behind, number)};
    for (std::size_t i = 0; i < dashCells.size(); ++i) {
        line.dashes[i] = {pixel + along(dashCells[i]) + gap, pixel + along(dashCells[i] + 1) - gap};
    }
    return line;
}

int cornersOutside(const Rect& ellipse, const Rect& box) {
    const auto width = static_cast<long long>(ellipse.width());
    const auto height = static_cast<long long>(ellipse.height());
    const auto isOutside = [&](int cornerX, int cornerY) {
        const long long x = (2LL * cornerX - ellipse.left - ellipse.right) * height;
        const long long y = (2LL * cornerY - ellipse.top - ellipse.bottom) * width;
        return x * x + y * y > width * width * height * height;
    };
    int count = 0;
    for (const int x : {box.left, box.right}) {
        for (const int y : {box.top, box.bottom}) {
            count += isOutside(x, y) ? 1 : 0;
        }
    }
    return count;
}

std::optional<std::array<MapLine, 2>> runwayLines(const RadarLayout& layout, Point pixel, int runwayHeading) {
    const auto number = headingNumber(runwayHeading);
    if (!number) {
        return std::nullopt;
    }
    auto lines = (isLarge(layout) ? largeRunways : smallRunways)[*number % runwayAxes];
    for (MapLine& line : lines) {
        line = {pixel + line.from, pixel + line.to};
    }
    return lines;
}

} // namespace ventrel
