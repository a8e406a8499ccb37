#include <algorithm>

#include "platform/canvas/canvas_limits.h"
#include "platform/canvas/region.h"

namespace ventrel {

namespace {

/// One side of a polygon on its way down: where it crosses the border between two rows of pixels, as the
/// column of the first pixel whose middle lies to the right of the crossing or on it.
class Side {
public:
    Side(Point from, Point to)
        : winding_(from.y < to.y ? 1 : -1), upper_(from.y < to.y ? from : to),
          lower_(from.y < to.y ? to : from), divisor_(2 * (std::int64_t{lower_.y} - upper_.y)) {}

    int winding() const { return winding_; }
    int top() const { return upper_.y; }
    int bottom() const { return lower_.y; }
    std::int64_t columnAbove() const { return columnAbove_; }
    std::int64_t columnBelow() const { return columnBelow_; }

    /// Places the side at row `y`, one of those it passes.
    void start(int y) {
        const std::int64_t across = 2 * (std::int64_t{lower_.x} - upper_.x);
        const std::int64_t position = (std::int64_t{y} - upper_.y) * across + divisor_ * upper_.x;
        columnsPerRow_ = floorQuotient(across, divisor_);
        remainderPerRow_ = across - columnsPerRow_ * divisor_;
        // The crossing less half a pixel, rounded up.
        const std::int64_t rounded = position + divisor_ / 2 - 1;
        columnBelow_ = floorQuotient(rounded, divisor_);
        remainder_ = rounded - columnBelow_ * divisor_;
        stepDown();
    }

    void stepDown() {
        columnAbove_ = columnBelow_;
        columnBelow_ += columnsPerRow_;
        remainder_ += remainderPerRow_;
        if (remainder_ >= divisor_) {
            remainder_ -= divisor_;
            ++columnBelow_;
        }
    }

private:
    static std::int64_t floorQuotient(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

    int winding_;
    Point upper_;
    Point lower_;
    std::int64_t divisor_;
    std::int64_t columnsPerRow_ = 0;
    std::int64_t remainderPerRow_ = 0;
    std::int64_t remainder_ = 0;
    std::int64_t columnAbove_ = 0;
    std::int64_t columnBelow_ = 0;
};

std::vector<Side> sidesFromTheTop(std::span<const Point> corners) {
    std::vector<Side> sides;
    sides.reserve(corners.size());
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Point from = limited(corners[i]);
        const Point to = limited(corners[(i + 1) % corners.size()]);
        if (from.y != to.y) {
            sides.emplace_back(from, to);
        }
    }
    std::sort(sides.begin(), sides.end(), [](const Side& a, const Side& b) { return a.top() < b.top(); });
    return sides;
}

/// Adds a run, joined with those of its row that it touches.
void addRun(std::vector<Run>& runs, Run run) {
    while (!runs.empty() && runs.back().y == run.y && runs.back().right >= run.left) {
        run.left = std::min(run.left, runs.back().left);
        run.right = std::max(run.right, runs.back().right);
        runs.pop_back();
    }
    if (run.left < run.right) {
        runs.push_back(run);
    }
}

/// Adds what lies inside between the sides that pass row `y`, and takes them on to the next row.
void addRow(std::vector<Run>& runs, std::vector<Side>& passing, int y) {
    const auto isLefter = [](const Side& a, const Side& b) {
        return a.columnAbove() + a.columnBelow() < b.columnAbove() + b.columnBelow();
    };
    if (!std::is_sorted(passing.begin(), passing.end(), isLefter)) {
        std::sort(passing.begin(), passing.end(), isLefter);
    }
    int winding = 0;
    std::int64_t left = 0;
    for (Side& side : passing) {
        if (winding == 0) {
            left = std::min(side.columnAbove(), side.columnBelow());
        }
        winding += side.winding();
        if (winding == 0) {
            const std::int64_t right = std::max(side.columnAbove(), side.columnBelow());
            addRun(runs, {y, static_cast<int>(std::max<std::int64_t>(left, regionSpace.left)),
                          static_cast<int>(std::min<std::int64_t>(right, regionSpace.right))});
        }
        side.stepDown();
    }
}

/// So many rows of the region's space the sides pass together.
std::size_t rowCount(std::span<const Side> sides) {
    if (sides.empty()) {
        return 0;
    }
    const auto lowest = std::max_element(
        sides.begin(), sides.end(), [](const Side& a, const Side& b) { return a.bottom() < b.bottom(); });
    const int top = std::max(sides.front().top(), regionSpace.top);
    return static_cast<std::size_t>(std::max(std::min(lowest->bottom(), regionSpace.bottom) - top, 0));
}

} // namespace

Region Region::polygon(std::span<const Point> corners) {
    const std::vector<Side> sides = sidesFromTheTop(corners);
    std::vector<Side> passing;
    std::vector<Run> runs;
    runs.reserve(rowCount(sides));
    std::size_t next = 0;
    int y = sides.empty() ? regionSpace.bottom : std::max(sides.front().top(), regionSpace.top);
    for (; y < regionSpace.bottom && (next < sides.size() || !passing.empty()); ++y) {
        std::erase_if(passing, [y](const Side& side) { return side.bottom() <= y; });
        for (; next < sides.size() && sides[next].top() <= y; ++next) {
            if (sides[next].bottom() > y) {
                passing.push_back(sides[next]);
                passing.back().start(y);
            }
        }
        addRow(runs, passing, y);
    }
    return fromRuns(std::move(runs));
}

} // namespace ventrel
