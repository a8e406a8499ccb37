// Points, sizes and rectangles in whole pixels, and cells of the airspace grid.
//
// Plain values with their arithmetic; nothing here knows of windows or aircraft.
// A rectangle's right and bottom edges are exclusive everywhere in the program.

#pragma once

#include <algorithm>

namespace ventrel {

/// A position in pixels; x grows to the right, y downward.
struct Point {
    int x = 0;
    int y = 0;

    friend constexpr bool operator==(const Point&, const Point&) = default;
    friend constexpr Point operator+(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
    friend constexpr Point operator-(Point a, Point b) { return {a.x - b.x, a.y - b.y}; }
};

/// A width and a height in pixels.
struct Size {
    int width = 0;
    int height = 0;

    friend constexpr bool operator==(const Size&, const Size&) = default;
};

/// left <= x < right, top <= y < bottom. Empty when either side is not positive.
struct Rect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    static constexpr Rect at(Point corner, Size size) {
        return {corner.x, corner.y, corner.x + size.width, corner.y + size.height};
    }

    constexpr int width() const { return right - left; }
    constexpr int height() const { return bottom - top; }
    constexpr Size size() const { return {width(), height()}; }
    constexpr Point topLeft() const { return {left, top}; }
    constexpr bool isEmpty() const { return right <= left || bottom <= top; }
    constexpr bool contains(Point p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    constexpr bool contains(const Rect& r) const {
        return r.left >= left && r.right <= right && r.top >= top && r.bottom <= bottom;
    }
    constexpr Rect movedBy(Point offset) const {
        return {left + offset.x, top + offset.y, right + offset.x, bottom + offset.y};
    }
    /// Every side pushed outward by `amount` (inward when negative).
    constexpr Rect grownBy(int amount) const {
        return {left - amount, top - amount, right + amount, bottom + amount};
    }
    /// The common part; an empty rectangle at (0, 0) when there is none.
    constexpr Rect intersectedWith(const Rect& r) const {
        const Rect common{std::max(left, r.left), std::max(top, r.top), std::min(right, r.right),
                          std::min(bottom, r.bottom)};
        return common.isEmpty() ? Rect{} : common;
    }
    constexpr bool intersects(const Rect& r) const { return !intersectedWith(r).isEmpty(); }
    /// The smallest rectangle around both; an empty one counts for nothing.
    constexpr Rect unitedWith(const Rect& r) const {
        if (isEmpty()) {
            return r;
        }
        if (r.isEmpty()) {
            return *this;
        }
        return {std::min(left, r.left), std::min(top, r.top), std::max(right, r.right),
                std::max(bottom, r.bottom)};
    }

    friend constexpr bool operator==(const Rect&, const Rect&) = default;
};

/// A position on the 49 x 49 grid of the airspace: column x to the east, row y to the south.
/// May lie outside the grid while a flight is leaving it. Cells are not pixels.
struct Cell {
    int x = 0;
    int y = 0;

    friend constexpr bool operator==(const Cell&, const Cell&) = default;
};

/// Maps `point` from `source` proportionally into `target`, truncating toward zero.
/// A source without width (or height) gives the middle of the target on that axis.
Point MapPointBetweenRects(const Rect& target, const Rect& source, Point point);

} // namespace ventrel
