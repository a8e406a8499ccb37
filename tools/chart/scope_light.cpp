#include "tools/chart/scope_light.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tools/chart/strokes.h"

namespace ventrel::chart {

namespace {

constexpr int markStep = 10; // degrees
constexpr int longMarkStep = 30;
constexpr double markLength = 6; // pixels
constexpr double longMarkLength = 12;
constexpr double rimGap = 2; // between the marks and the rim
constexpr Pen ringPen{.width = 0.9};
constexpr Pen markPen{.width = 1};

// Of the light that is left where it is darkest.
constexpr double underBezel = 0.3;
constexpr double atRim = 0.6;
constexpr double farFromLight = 0.84;

// Parts of the tube's radius.
constexpr double bezelShadow = 1.0 / 13;
constexpr Spot lightPlace{-0.2, -0.28}; // where the tube is brightest, from its middle
constexpr double brightRadius = 0.455;
constexpr double darkRadius = 1.365;
constexpr double glareEdge = 0.93;
constexpr double glareBend = 0.16; // how far the circle that cuts the crescent is moved to the lower right
constexpr double glareInner = 1.02;

constexpr double glareStrength = 0.06;
constexpr double glareSoftEdge = 4; // pixels, towards the rim
constexpr double glareFade = 40;    // and towards the middle

struct Tube {
    Spot middle;
    Spot radii;
};

Tube tubeOf(const RadarLayout& layout) {
    const Rect& box = layout.scopeEllipse;
    return {{(box.left + box.right - 1) / 2.0, (box.top + box.bottom - 1) / 2.0},
            {box.width() / 2.0, box.height() / 2.0}};
}

/// 0 in the middle, 1 at the rim.
double reach(const Tube& tube, double x, double y) {
    const double across = (x - tube.middle.x) / tube.radii.x;
    const double down = (y - tube.middle.y) / tube.radii.y;
    return std::sqrt(across * across + down * down);
}

void strokeMarks(Plane& plane, const Tube& tube) {
    for (int degrees = 0; degrees < 360; degrees += markStep) {
        const double length = degrees % longMarkStep == 0 ? longMarkLength : markLength;
        const double x = std::sin(degrees * std::numbers::pi / 180);
        const double y = -std::cos(degrees * std::numbers::pi / 180);
        const auto at = [&](double inward) {
            return Spot{tube.middle.x + (tube.radii.x - inward) * x,
                        tube.middle.y + (tube.radii.y - inward) * y};
        };
        stroke(plane, {at(rimGap), at(rimGap + length)}, markPen);
    }
}

} // namespace

bool isSeen(const RadarLayout& layout, int x, int y) {
    constexpr double around = 10; // pixels, more than a block of JPEG
    const Tube tube = tubeOf(layout);
    return (reach(tube, x, y) - 1) * tube.radii.x < around;
}

Plane graticule(const RadarLayout& layout, double step) {
    const Tube tube = tubeOf(layout);
    Plane plane(layout.scopeSize);
    for (double radius = step; radius < tube.radii.x - rimGap; radius += step) {
        strokeEllipse(plane, tube.middle, {radius, radius * tube.radii.y / tube.radii.x}, ringPen);
    }
    strokeMarks(plane, tube);
    return plane;
}

double shadeAt(const RadarLayout& layout, int x, int y) {
    const Tube tube = tubeOf(layout);
    const double depth = tube.radii.x * bezelShadow;
    // The bezel's shadow falls from the top left; a narrower one lies all around.
    const double shadowed = (1 - reach(tube, x - depth / 3, y - depth / 2)) * tube.radii.x;
    const double rim = (1 - reach(tube, x, y)) * tube.radii.x;
    const double away = reach(tube, x - tube.radii.x * lightPlace.x, y - tube.radii.y * lightPlace.y);
    return mixed(1, farFromLight, smoothStep(brightRadius, darkRadius, away)) *
           mixed(underBezel, 1, smoothStep(-depth / 2, depth, shadowed)) *
           mixed(atRim, 1, smoothStep(0, depth / 2, rim));
}

double glareAt(const RadarLayout& layout, int x, int y) {
    const Tube tube = tubeOf(layout);
    // The reflection is a crescent along the upper left rim: inside one circle and outside another.
    const double inside = (glareEdge - reach(tube, x, y)) * tube.radii.x;
    const double bend = reach(tube, x - tube.radii.x * glareBend, y - tube.radii.y * glareBend);
    const double outside = (bend - glareInner) * tube.radii.x;
    return glareStrength * smoothStep(0, glareSoftEdge, inside) * smoothStep(0, glareFade, outside);
}

} // namespace ventrel::chart
