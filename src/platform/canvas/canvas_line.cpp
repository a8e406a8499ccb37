#include <cstdlib>

#include "platform/canvas/canvas_change.h"

namespace ventrel {

namespace {

/// A line seen along its longer side: `steps` pixels along, drifting `drift` pixels aside in all. After k
/// steps it stands k * drift / steps aside, rounded, a half towards 0.
struct Slope {
    std::int64_t steps = 0; ///< above 0
    std::int64_t drift = 0; ///< 0 to `steps`

    std::int64_t asideAfter(std::int64_t k) const { return (2 * k * drift + steps - 1) / (2 * steps); }

    /// The first step at which the line stands at least `aside` (at most `drift`) pixels aside.
    std::int64_t firstStepAt(std::int64_t aside) const {
        if (aside <= 0) {
            return 0;
        }
        const std::int64_t needed = (2 * aside - 1) * steps + 1;
        return (needed + 2 * drift - 1) / (2 * drift);
    }
};

struct Range {
    std::int64_t first = 0;
    std::int64_t end = 0;
};

/// The distances in the direction of `sign` from `start` that lie from `low` to `high` (exclusive).
Range distancesWithin(int start, int sign, int low, int high) {
    return sign > 0 ? Range{std::int64_t{low} - start, std::int64_t{high} - start}
                    : Range{std::int64_t{start} - high + 1, std::int64_t{start} - low + 1};
}

/// The steps of the line whose pixels lie within the ranges along and aside.
Range stepsWithin(const Slope& slope, Range along, Range aside) {
    Range steps{std::max<std::int64_t>(along.first, 0), std::min(along.end, slope.steps)};
    if (aside.first > slope.drift || aside.end <= 0) {
        return {};
    }
    steps.first = std::max(steps.first, slope.firstStepAt(aside.first));
    if (aside.end <= slope.drift) {
        steps.end = std::min(steps.end, slope.firstStepAt(aside.end));
    }
    return steps;
}

} // namespace

void Canvas::line(Point from, Point to, Colour colour) {
    const Point start = limitedMove(from, origin_);
    const Point way = limitedMove(to, origin_) - start;
    const bool isFlat = std::abs(way.x) >= std::abs(way.y);
    const Slope slope{isFlat ? std::abs(way.x) : std::abs(way.y), isFlat ? std::abs(way.y) : std::abs(way.x)};
    if (slope.steps == 0) {
        return;
    }
    const int signX = way.x < 0 ? -1 : 1;
    const int signY = way.y < 0 ? -1 : 1;
    const Rect box = clip_.bounds();
    const Range columns = distancesWithin(start.x, signX, box.left, box.right);
    const Range rows = distancesWithin(start.y, signY, box.top, box.bottom);
    const Range steps = stepsWithin(slope, isFlat ? columns : rows, isFlat ? rows : columns);
    const SetTo set{toPixel(colour)};
    for (std::int64_t k = steps.first; k < steps.end; ++k) {
        const auto along = static_cast<int>(k);
        const auto aside = static_cast<int>(slope.asideAfter(k));
        const Point offset{signX * (isFlat ? along : aside), signY * (isFlat ? aside : along)};
        changeInside(Rect::at(start + offset, {1, 1}), set);
    }
}

void Canvas::polyline(std::span<const Point> points, Colour colour) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        line(points[i - 1], points[i], colour);
    }
}

} // namespace ventrel
