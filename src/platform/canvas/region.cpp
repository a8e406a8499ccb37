#include "platform/canvas/region.h"

#include <algorithm>
#include <cassert>
#include <functional>

namespace ventrel {

namespace {

[[maybe_unused]] bool areInOrder(std::span<const Run> runs) {
    const auto follows = [](const Run& a, const Run& b) {
        return a.y < b.y || (a.y == b.y && a.right < b.left);
    };
    const auto holdsPixels = [](const Run& run) { return run.left < run.right; };
    return std::all_of(runs.begin(), runs.end(), holdsPixels) &&
           std::adjacent_find(runs.begin(), runs.end(), std::not_fn(follows)) == runs.end();
}

} // namespace

Region::Region(const Rect& rect) : bounds_(rect.intersectedWith(regionSpace)) {
    runs_.reserve(static_cast<std::size_t>(bounds_.height()));
    for (int y = bounds_.top; y < bounds_.bottom; ++y) {
        runs_.push_back({y, bounds_.left, bounds_.right});
    }
}

Region Region::fromRuns(std::vector<Run> runs) {
    assert(areInOrder(runs));
    Region region;
    if (!runs.empty()) {
        Rect& bounds = region.bounds_;
        bounds = {runs.front().left, runs.front().y, runs.front().right, runs.back().y + 1};
        for (const Run& run : runs) {
            bounds.left = std::min(bounds.left, run.left);
            bounds.right = std::max(bounds.right, run.right);
        }
    }
    region.runs_ = std::move(runs);
    return region;
}

Region Region::movedBy(Point offset) const {
    // A longer way leads out of the space of regions from anywhere in it.
    const int longest = regionSpace.width();
    const int dx = std::clamp(offset.x, -longest, longest);
    const int dy = std::clamp(offset.y, -longest, longest);
    std::vector<Run> moved;
    moved.reserve(runs_.size());
    for (const Run& run : runs_) {
        const Run to{run.y + dy, std::max(run.left + dx, regionSpace.left),
                     std::min(run.right + dx, regionSpace.right)};
        if (to.y >= regionSpace.top && to.y < regionSpace.bottom && to.left < to.right) {
            moved.push_back(to);
        }
    }
    return fromRuns(std::move(moved));
}

Region Region::interior() const {
    return intersectedWith(movedBy({1, 0}))
        .intersectedWith(movedBy({-1, 0}))
        .intersectedWith(movedBy({0, 1}))
        .intersectedWith(movedBy({0, -1}));
}

bool Region::contains(Point p) const {
    const auto row = runsOfRow(p.y);
    return std::any_of(row.begin(), row.end(),
                       [p](const Run& run) { return p.x >= run.left && p.x < run.right; });
}

std::span<const Run> Region::runsOfRow(int y) const {
    return y >= bounds_.top && y < bounds_.bottom ? runsOfRows(y, y + 1) : std::span<const Run>{};
}

std::span<const Run> Region::runsOfRows(int top, int bottom) const {
    const int first = std::max(top, bounds_.top);
    const int end = std::min(bottom, bounds_.bottom);
    if (first >= end) {
        return {};
    }
    const std::size_t begin = firstRunFrom(first);
    const std::size_t afterLast = end == bounds_.bottom ? runs_.size() : firstRunFrom(end);
    return std::span(runs_).subspan(begin, afterLast - begin);
}

std::size_t Region::firstRunFrom(int y) const {
    // Most regions have one run in each of their rows: then its place is known.
    const auto guess = static_cast<std::size_t>(y - bounds_.top);
    if (guess < runs_.size() && runs_[guess].y == y && (guess == 0 || runs_[guess - 1].y < y)) {
        return guess;
    }
    const auto isAbove = [](const Run& run, int row) { return run.y < row; };
    return static_cast<std::size_t>(std::lower_bound(runs_.begin(), runs_.end(), y, isAbove) - runs_.begin());
}

} // namespace ventrel
