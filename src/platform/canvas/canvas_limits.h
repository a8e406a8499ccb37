// How far out positions are calculated with, so that no sum or product of them overflows.
//
// Nothing visible lies anywhere near: a position beyond counts as lying at the limit.

#pragma once

#include <algorithm>
#include <cstdint>

#include "base/geometry.h"

namespace ventrel {

inline constexpr int farthestPosition = 1 << 29;

constexpr int limited(std::int64_t position) {
    return static_cast<int>(
        std::clamp<std::int64_t>(position, -std::int64_t{farthestPosition}, farthestPosition));
}

constexpr Point limited(Point p) {
    return {limited(p.x), limited(p.y)};
}

constexpr Rect limited(const Rect& r) {
    return {limited(r.left), limited(r.top), limited(r.right), limited(r.bottom)};
}

/// `p` moved by `offset`, which must itself be limited.
constexpr Point limitedMove(Point p, Point offset) {
    return {limited(std::int64_t{p.x} + offset.x), limited(std::int64_t{p.y} + offset.y)};
}

constexpr Rect limitedMove(const Rect& r, Point offset) {
    const Point corner = limitedMove(Point{r.left, r.top}, offset);
    const Point end = limitedMove(Point{r.right, r.bottom}, offset);
    return {corner.x, corner.y, end.x, end.y};
}

} // namespace ventrel
