// How far something lies beyond the edge of the round scope. 0 is inside, the edge included.

#pragma once

#include <span>

#include "console/radar_layout.h"
#include "sim/grid.h"

namespace ventrel::apt {

/// Pixels, in a straight line towards the middle; 1 for less than one.
int pixelsOutside(const RadarLayout& layout, std::span<const Point> points);
int pixelsOutside(const RadarLayout& layout, const Rect& box);

/// Moves that a flight in that cell would be away from the nearest cell in which it is not lost.
int cellsOutside(Cell cell);

} // namespace ventrel::apt
