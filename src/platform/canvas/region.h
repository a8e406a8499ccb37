// A set of pixels of any shape, kept as sorted runs row by row: what drawing is clipped to, and what is
// inverted.
//
// A value like any other: every operation returns a new region, in time linear in the runs it reads.

#pragma once

#include <span>
#include <vector>

#include "base/geometry.h"

namespace ventrel {

/// Regions hold pixels of this space only. What a shape has outside it is left out.
inline constexpr Rect regionSpace{-16384, -16384, 16384, 16384};

/// The pixels from `left` to `right` (exclusive) of row `y`.
struct Run {
    int y = 0;
    int left = 0;
    int right = 0;

    friend constexpr bool operator==(const Run&, const Run&) = default;
};

class Region {
public:
    Region() = default;

    /*implicit*/ Region(const Rect& rect);

    /// The region of these runs, which must be in the order and of the form that `runs` describes.
    static Region fromRuns(std::vector<Run> runs);

    /// The pixels of the ellipse that fills `bounds`, whose right and bottom are exclusive: exactly those
    /// that Canvas::filledEllipse paints. The ellipse runs through the middles of the outermost pixels and
    /// takes in every pixel that it passes at most half a pixel away along a row or a column. Only the rows
    /// of `window` are made.
    static Region ellipse(const Rect& bounds, const Rect& window = regionSpace);

    /// The pixels of the closed polygon, by the winding rule: those in which it crosses the pixel's vertical
    /// middle line. All pixels whose middles lie inside are among them. Right and bottom edges are exclusive,
    /// so a polygon along pixel edges holds just the pixels within. A polygon at least one pixel wide in
    /// every row, however flat it slants, makes one unbroken line: its rows always share a column.
    static Region polygon(std::span<const Point> corners);

    Region intersectedWith(const Region& other) const;
    Region unitedWith(const Region& other) const;
    Region minus(const Region& other) const;
    Region movedBy(Point offset) const;
    /// The pixels whose left, right, upper and lower neighbours belong to the region too.
    Region interior() const;

    bool isEmpty() const { return runs_.empty(); }
    bool contains(Point p) const;
    Rect bounds() const { return bounds_; }

    /// Every run, by rows from the top, within a row from the left; runs of a row neither meet nor overlap.
    std::span<const Run> runs() const { return runs_; }

    /// The runs of row `y`; none when the region has no pixel there.
    std::span<const Run> runsOfRow(int y) const;
    /// The runs of the rows from `top` to `bottom` (exclusive).
    std::span<const Run> runsOfRows(int top, int bottom) const;

    friend bool operator==(const Region& a, const Region& b) { return a.runs_ == b.runs_; }

private:
    /// Where the runs of row `y` and below begin. The row must lie within the bounds.
    std::size_t firstRunFrom(int y) const;

    std::vector<Run> runs_;
    Rect bounds_;
};

} // namespace ventrel
