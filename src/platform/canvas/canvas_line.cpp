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

/// The steps of the slope whose pixels lie within the ranges along and aside.
Range stepsWithin(const Slope& slope, Range along, Range aside) {
    if (aside.first > slope.drift || aside.end <= 0) {
        return {};
    }
    Range steps{std::max<std::int64_t>(along.first, 0), std::min(along.end, slope.steps)};
    steps.first = std::max(steps.first, slope.firstStepAt(aside.first));
    if (aside.end <= slope.drift) {
        steps.end = std::min(steps.end, slope.firstStepAt(aside.end));
    }
    return steps;
}

/// A slope laid into the picture.
struct Course {
    Point start;
    int signX = 1;
    int signY = 1;
    bool isFlat = true; ///< the longer side lies along x
    Slope slope;

    static Course between(Point from, Point to) {
        const Point way = to - from;
        const int across = std::abs(way.x);
        const int down = std::abs(way.y);
        return {from,
                way.x < 0 ? -1 : 1,
                way.y < 0 ? -1 : 1,
                across >= down,
                {std::max(across, down), std::min(across, down)}};
    }

    Range stepsInside(const Rect& box) const {
        const Range columns = distancesWithin(start.x, signX, box.left, box.right);
        const Range rows = distancesWithin(start.y, signY, box.top, box.bottom);
        return stepsWithin(slope, isFlat ? columns : rows, isFlat ? rows : columns);
    }

    Rect pixelAt(std::int64_t step, std::int64_t aside) const {
        const auto x = static_cast<int>(isFlat ? step : aside);
        const auto y = static_cast<int>(isFlat ? aside : step);
        return Rect::at(start + Point{signX * x, signY * y}, {1, 1});
    }
};

} // namespace

void Canvas::line(Point from, Point to, Colour colour) {
    const Course course = Course::between(limitedMove(from, origin_), limitedMove(to, origin_));
    const Slope& slope = course.slope;
    if (slope.steps == 0) {
        return;
    }
    const SetTo set{toPixel(colour)};
    // Piece by piece of pixels equally far aside: short rows of a flat line, short columns of a steep one.
    const Range steps = course.stepsInside(clip_.bounds());
    for (std::int64_t k = steps.first; k < steps.end;) {
        const std::int64_t aside = slope.asideAfter(k);
        const std::int64_t next =
            aside < slope.drift ? std::min(slope.firstStepAt(aside + 1), steps.end) : steps.end;
        changeInside(course.pixelAt(k, aside).unitedWith(course.pixelAt(next - 1, aside)), set);
        k = next;
    }
}

void Canvas::polyline(std::span<const Point> points, Colour colour) {
    for (std::size_t i = 1; i < points.size(); ++i) {
        line(points[i - 1], points[i], colour);
    }
}

} // namespace ventrel
