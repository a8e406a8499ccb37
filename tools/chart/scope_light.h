// What makes a map lie behind the glass of the scope: rings and marks on the tube, the shadow of its bezel,
// and the light of the room in the glass, which comes from the top left as everywhere on the console.

#pragma once

#include "console/radar_layout.h"
#include "tools/chart/plane.h"

namespace ventrel::chart {

/// Whether the place lies on the tube, or so near that it reaches into what does: all else of a picture stays
/// black.
bool isSeen(const RadarLayout& layout, int x, int y);

/// The lines on the tube: range rings every `step` pixels around its middle, marks at its rim; 0 to 1.
Plane graticule(const RadarLayout& layout, double step);

/// How much of the light reaches the place, 0 to 1.
double shadeAt(const RadarLayout& layout, int x, int y);

/// How much white the glass adds there, 0 to 1.
double glareAt(const RadarLayout& layout, int x, int y);

} // namespace ventrel::chart
