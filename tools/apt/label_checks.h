// Whether the names on the map can be read: labels against the scope's edge, each other, and what is drawn.

#pragma once

#include <cstddef>
#include <span>

#include "console/radar_layout.h"
#include "sim/vor.h"
#include "tools/apt/faults.h"

namespace ventrel::apt {

/// The box that a point's label may fill, a little on the large side.
Rect labelBox(const RadarLayout& layout, const Vor& vor);

/// Adds the problems of one point's label; each pair of labels is told once, with the later point.
void checkLabel(std::span<const Vor> points, std::size_t index, const RadarLayout& layout,
                Problems& problems);

} // namespace ventrel::apt
