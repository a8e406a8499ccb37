#include <algorithm>
#include <cmath>

#include "platform/canvas/canvas_limits.h"
#include "platform/canvas/region.h"

namespace ventrel {

namespace {

/// An ellipse around (0, 0) through the middles of the outermost pixels, measured in half pixels. Whole
/// numbers up to the size of any picture are exact in it, and sizes far beyond still do not overflow.
struct Oval {
    double halfWidth = 0;
    double halfHeight = 0;

    bool holds(double x, double y) const {
        const double across = x * halfHeight;
        const double down = y * halfWidth;
        const double all = halfWidth * halfHeight;
        return across * across + down * down <= all * all;
    }
};

/// The greatest whole x for which the oval holds (x, y); y is 0 to the half height.
double farthestAcross(const Oval& oval, double y) {
    if (oval.halfHeight == 0) {
        return oval.halfWidth;
    }
    const double height = y / oval.halfHeight;
    double x = std::floor(oval.halfWidth * std::sqrt(std::max(0.0, 1 - height * height)));
    while (x < oval.halfWidth && oval.holds(x + 1, y)) {
        ++x;
    }
    while (x > 0 && !oval.holds(x, y)) {
        --x;
    }
    return x;
}

/// How far, in half pixels from the centre, the middle of the last pixel lies in the row `y` half pixels from
/// the centre. That pixel lies within when the point half a pixel nearer, across or down, does.
int lastPixelAcross(const Oval& oval, int y) {
    const double beside = farthestAcross(oval, y) + 1;
    const double below = farthestAcross(oval, std::max(y - 1, 0));
    const auto last = static_cast<int>(std::min(std::max(beside, below), oval.halfWidth));
    const bool isBetweenPixels = (static_cast<int>(oval.halfWidth) - last) % 2 != 0;
    return isBetweenPixels ? last - 1 : last;
}

} // namespace

Region Region::ellipse(const Rect& bounds, const Rect& window) {
    const Rect box = limited(bounds);
    if (box.isEmpty()) {
        return {};
    }
    const Oval oval{static_cast<double>(box.width() - 1), static_cast<double>(box.height() - 1)};
    const Rect space = window.intersectedWith(regionSpace);
    std::vector<Run> runs;
    for (int y = std::max(box.top, space.top); y < std::min(box.bottom, space.bottom); ++y) {
        const int fromCentre = std::abs((y - box.top) - (box.bottom - 1 - y));
        const int last = lastPixelAcross(oval, fromCentre);
        const Run run{y, (box.left + box.right - 1 - last) / 2, (box.left + box.right - 1 + last) / 2 + 1};
        const Run visible{y, std::max(run.left, regionSpace.left), std::min(run.right, regionSpace.right)};
        if (visible.left < visible.right) {
            runs.push_back(visible);
        }
    }
    return fromRuns(std::move(runs));
}

} // namespace ventrel
