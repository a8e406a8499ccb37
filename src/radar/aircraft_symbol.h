// The little aircraft of the radar, seen from above with its nose towards its heading.

#pragma once

#include "platform/canvas/canvas.h"

namespace ventrel {

/// Side of the square box into which a symbol is drawn, in pixels.
inline constexpr int aircraftSymbolSize = 8;

/// Draws the symbol into the box whose top-left corner is `corner`. A number that is none of the eight
/// headings draws nothing.
void DrawAircraftSymbol(Canvas& canvas, Point corner, Colour colour, int heading);

} // namespace ventrel
