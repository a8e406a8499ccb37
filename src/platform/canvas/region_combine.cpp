// Union, intersection and difference: two sorted lists of runs merged row by row.

#include <algorithm>

#include "platform/canvas/region.h"

namespace ventrel {

namespace {

using Runs = std::span<const Run>;

/// Appends the combination of two rows of the same y to `result`. Either row may be empty, not both.
using CombineRow = void (*)(Runs a, Runs b, std::vector<Run>& result);

void intersectRow(Runs a, Runs b, std::vector<Run>& result) {
    while (!a.empty() && !b.empty()) {
        const Run common{a.front().y, std::max(a.front().left, b.front().left),
                         std::min(a.front().right, b.front().right)};
        if (common.left < common.right) {
            result.push_back(common);
        }
        Runs& endsFirst = a.front().right < b.front().right ? a : b;
        endsFirst = endsFirst.subspan(1);
    }
}

void uniteRow(Runs a, Runs b, std::vector<Run>& result) {
    const std::size_t before = result.size();
    while (!a.empty() || !b.empty()) {
        Runs& startsFirst = b.empty() || (!a.empty() && a.front().left < b.front().left) ? a : b;
        const Run next = startsFirst.front();
        startsFirst = startsFirst.subspan(1);
        if (result.size() > before && next.left <= result.back().right) {
            result.back().right = std::max(result.back().right, next.right);
        } else {
            result.push_back(next);
        }
    }
}

void subtractRow(Runs a, Runs b, std::vector<Run>& result) {
    for (Run rest : a) {
        for (const Run& hole : b) {
            if (hole.right <= rest.left || hole.left >= rest.right) {
                continue;
            }
            if (rest.left < hole.left) {
                result.push_back({rest.y, rest.left, hole.left});
            }
            rest.left = std::min(hole.right, rest.right);
        }
        if (rest.left < rest.right) {
            result.push_back(rest);
        }
    }
}

/// Takes the runs of row `y` from the front of `rest`.
Runs takeRow(Runs& rest, int y) {
    std::size_t count = 0;
    while (count < rest.size() && rest[count].y == y) {
        ++count;
    }
    const Runs row = rest.first(count);
    rest = rest.subspan(count);
    return row;
}

std::vector<Run> combine(Runs a, Runs b, CombineRow combineRow) {
    std::vector<Run> result;
    result.reserve(std::max(a.size(), b.size()));
    while (!a.empty() || !b.empty()) {
        const int y = b.empty() || (!a.empty() && a.front().y < b.front().y) ? a.front().y : b.front().y;
        const Runs rowOfA = takeRow(a, y);
        combineRow(rowOfA, takeRow(b, y), result);
    }
    return result;
}

} // namespace

Region Region::intersectedWith(const Region& other) const {
    const Rect common = bounds_.intersectedWith(other.bounds_);
    return fromRuns(combine(runsOfRows(common.top, common.bottom),
                            other.runsOfRows(common.top, common.bottom), intersectRow));
}

Region Region::unitedWith(const Region& other) const {
    return fromRuns(combine(runs_, other.runs_, uniteRow));
}

Region Region::minus(const Region& other) const {
    return fromRuns(combine(runs_, other.runsOfRows(bounds_.top, bounds_.bottom), subtractRow));
}

} // namespace ventrel
