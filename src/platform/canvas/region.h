// A set of pixels of any shape, kept as sorted runs row by row: what drawing is clipped to, and what is
// inverted.

#pragma once

#include <span>
#include <vector>

#include "base/geometry.h"

namespace ventrel {

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

    /// The pixels inside the ellipse that fills `bounds`, whose right and bottom are exclusive.
    static Region ellipse(const Rect& bounds);

    /// The pixels whose centres lie inside the closed polygon, by the winding rule; right and bottom edges
    /// are exclusive, so polygons that share an edge share no pixel.
    static Region polygon(std::span<const Point> corners);

    Region intersectedWith(const Region& other) const;
    Region unitedWith(const Region& other) const;
    Region minus(const Region& other) const;
    Region movedBy(Point offset) const;

    bool isEmpty() const { return runs_.empty(); }
    bool contains(Point p) const;
    Rect bounds() const { return bounds_; }

    /// Every run, by rows from the top, within a row from the left; runs of a row neither meet nor overlap.
    std::span<const Run> runs() const { return runs_; }

    /// The runs of row `y`; none when the region has no pixel there.
    std::span<const Run> runsOfRow(int y) const;

    friend bool operator==(const Region& a, const Region& b) { return a.runs_ == b.runs_; }

private:
    std::vector<Run> runs_;
    Rect bounds_;
};

} // namespace ventrel
