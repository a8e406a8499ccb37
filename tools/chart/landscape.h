// The lie of the land: where there is land at all, how high it is, and how the light falls on it.

#pragma once

#include "console/radar_layout.h"
#include "tools/chart/chart.h"
#include "tools/chart/plane.h"

namespace ventrel::chart {

struct Landscape {
    Plane land;     ///< the part of each pixel that is land
    Plane inland;   ///< cells to the nearest water
    Plane offshore; ///< cells to the nearest land
    Plane height;   ///< 0 the plain to about 1
    Plane light;    ///< how much more light than on the plain falls there, -1 to 1; from the top left
    Plane towns;    ///< 0 open country to 1
};

/// As far as the layout's scope shows it.
Landscape landscapeOf(const Chart& chart, const RadarLayout& layout);

/// The spots of a line as pixels.
Line inPixels(const Line& cells, int cellSize);

} // namespace ventrel::chart
