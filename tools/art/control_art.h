// The static part of the control panel: dial, lamps, altitude scale, selector and preview well.

#pragma once

#include "tools/art/svg.h"

namespace ventrel::art {

/// Draws it for a panel whose window has its corner at `corner`.
void drawControls(Svg& svg, Point corner);

} // namespace ventrel::art
