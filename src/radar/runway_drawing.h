// An airport's runway on the map: two lines, the landing arrow behind them, and the approach cone.

#pragma once

#include "console/radar_layout.h"
#include "platform/canvas/canvas.h"
#include "platform/text/font.h"
#include "sim/vor.h"

namespace ventrel {

/// The cone on the side from which landing flights come, in two thirds of the runway's colour.
void drawApproachCone(Canvas& canvas, const RadarLayout& layout, const Vor& airport);

/// The runway's two lines and the arrow that points in the landing direction.
void drawRunway(Canvas& canvas, const RadarLayout& layout, const Vor& airport);

/// The line on which to come in, a dash for each cell, and at its end the runway's number: tens of degrees,
/// 01 to 36.
void drawCentreline(Canvas& canvas, const RadarLayout& layout, const Vor& airport, const Font& font);

/// Two thirds of each channel, in whole numbers.
Colour approachConeColour(Colour runwayColour);

} // namespace ventrel
