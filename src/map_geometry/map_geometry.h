// Where the parts of a map point stand on the radar picture: circle, label, runway and approach cone.
//
// Pure geometry, shared by the map's drawing and by the airspace tool's checks.

#pragma once

#include <array>
#include <optional>

#include "console/radar_layout.h"
#include "sim/grid.h"
#include "sim/vor.h"

namespace ventrel {

/// The box around a map point's circle.
Rect markerBox(const RadarLayout& layout, Point pixel);

/// The top-left corner of a label of that size, by the point's `labelPlace`.
Point labelCorner(const RadarLayout& layout, const Vor& vor, Size label);

/// A line of one pixel's width; its last pixel is not drawn.
struct MapLine {
    Point from;
    Point to;
};

/// The cone's two lines from its apex, on the side from which landing flights come; nothing for a number that
/// is none of the eight headings.
std::optional<std::array<MapLine, 2>> approachCone(const RadarLayout& layout, Point pixel, int runwayHeading);

/// The runway's two lines through the circle.
std::optional<std::array<MapLine, 2>> runwayLines(const RadarLayout& layout, Point pixel, int runwayHeading);

/// The middle line of the approach, a dash for each cell from the cone's apex outward; none where the
/// runway's number stands, beyond the mouth of the cone or, at the rim of the scope, beside it.
struct Centreline {
    std::array<MapLine, 5> dashes = {};
    Rect number = {};
};
/// With the size of the number's text. Nothing for a number that is none of the eight headings.
std::optional<Centreline> centreline(const RadarLayout& layout, Point pixel, int runwayHeading, Size number);

/// How many of a box's corners lie outside the ellipse in that rectangle.
int cornersOutside(const Rect& ellipse, const Rect& box);

/// 0 to 7 for the eight headings.
std::optional<std::size_t> headingNumber(int heading);

} // namespace ventrel
