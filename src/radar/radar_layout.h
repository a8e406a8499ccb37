// How the radar's places and the airspace's grid agree: nothing is scaled, a flight is drawn at its cell's
// top-left corner and a map point at its own pixel position.

#pragma once

#include "console/radar_layout.h"
#include "sim/grid.h"

namespace ventrel {

static_assert(radarCells == gridSize);
static_assert(smallRadarLayout.cellSize == smallLayout.cellSize);
static_assert(largeRadarLayout.cellSize == largeLayout.cellSize);

} // namespace ventrel
