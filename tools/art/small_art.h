// The small pictures: alert lamps, strip buttons, pointers and the program's icon.

#pragma once

#include <string>
#include <string_view>

#include "tools/art/svg.h"

namespace ventrel::art {

enum class LampColour { green, yellow, red };

/// A lamp 26 pixels across, in a drawing that knows the material "rim". One of each colour to a drawing.
void drawLampAt(Svg& svg, Spot middle, LampColour colour, bool bright);

/// The three lamps in their tray, the green one lit, around a middle; also "lip" is to be known.
void drawAlertLamps(Svg& svg, Spot middle);

/// A lamp of 28 x 28 pixels, to be shown through a round opening.
std::string drawLamp(LampColour colour, bool bright);

/// A strip's button of 20 x 12 pixels.
std::string drawStripButton(bool pressed);

/// The pointing hand, 32 x 32 with its finger tip at (6, 0), and the arrow, with its tip at (7, 9), on a
/// clear ground.
std::string drawHandPointer();
std::string drawArrowPointer();

/// The program's icon, 64 x 64, on a clear ground.
std::string drawIcon();

} // namespace ventrel::art
