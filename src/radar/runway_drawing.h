// An airport's runway on the map: two lines, the landing arrow behind them, and the approach cone.

#pragma once

#include "platform/canvas/canvas.h"
#include "radar/radar_layout.h"
#include "sim/vor.h"

namespace ventrel {

/// The cone on the side from which landing flights come, in two thirds of the runway's colour.
void drawApproachCone(Canvas& canvas, const RadarLayout& layout, const Vor& airport);

/// The runway's two lines and the arrow that points in the landing direction.
void drawRunway(Canvas& canvas, const RadarLayout& layout, const Vor& airport);

/// Two thirds of each channel, in whole numbers.
Colour approachConeColour(Colour runwayColour);

} // namespace ventrel
