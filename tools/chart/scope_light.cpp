#include "tools/chart/scope_light.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tools/chart/strokes.h"

namespace ventrel::chart {

namespace {

constexpr int markStep = 10; // degrees
constexpr int longMarkStep = 30;
constexpr double shadowDepth = 1.0 / 26; // of the scope's width

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
    constexpr double toRim = 2;
    for (int degrees = 0; degrees < 360; degrees += markStep) {
        const double length = degrees % longMarkStep == 0 ? 12 : 6;
        const double x = std::sin(degrees * std::numbers::pi / 180);
        const double y = -std::cos(degrees * std::numbers::pi / 180);
        const auto at = [&](double inward) {
            return Spot{tube.middle.x + (tube.radii.x - inward) * x,
                        tube.middle.y + (tube.radii.y - inward) * y};
        };
        stroke(plane, {at(toRim), at(toRim + length)}, {.width = 1});
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
    for (double radius = step; radius < tube.radii.x - 2; radius += step) {
        strokeEllipse(plane, tube.middle, {radius, radius * tube.radii.y / tube.radii.x}, {.width = 0.9});
    }
    strokeMarks(plane, tube);
    return plane;
}

double shadeAt(const RadarLayout& layout, int x, int y) {
    const Tube tube = tubeOf(layout);
    const double depth = tube.radii.x * 2 * shadowDepth;
    // The bezel's shadow falls from the top left; a narrower one lies all around.
    const double shadowed = (1 - reach(tube, x - depth / 3, y - depth / 2)) * tube.radii.x;
    const double rim = (1 - reach(tube, x, y)) * tube.radii.x;
    const double falloff =
        1 - 0.16 * smoothStep(0.35, 1.05, reach(tube, x + tube.radii.x * 0.2, y + tube.radii.y * 0.28) / 1.3);
    return falloff * mixed(0.30, 1, smoothStep(-depth * 0.6, depth, shadowed)) *
           mixed(0.6, 1, smoothStep(0, depth / 2, rim));
}

double glareAt(const RadarLayout& layout, int x, int y) {
    const Tube tube = tubeOf(layout);
    // The reflection is a crescent along the upper left rim: inside one circle and outside a larger one.
    const double outer = (0.93 - reach(tube, x, y)) * tube.radii.x;
    const double inner = reach(tube, x - tube.radii.x * 0.16, y - tube.radii.y * 0.16) - 1.02;
    const double within = smoothStep(0, 4, outer) * smoothStep(0, 40, inner * tube.radii.x);
    return within * 0.06;
}

} // namespace ventrel::chart
