// The program's name as it stands on the About picture, the title and the other large pictures.

#pragma once

#include <string_view>

#include "tools/art/svg.h"

namespace ventrel::art {

/// How the name is set: its letters stand on `base`, centred. One to a drawing that knows the material
/// "soften".
struct NameLook {
    Spot base;
    double size = 68;
    double spacing = 1;
};

/// Polished letters with their shadow on what is behind them.
void drawPolished(Svg& svg, const NameLook& look, std::string_view words);

/// The program's name, a rule under it, and what the program is.
void drawName(Svg& svg, const NameLook& look);

} // namespace ventrel::art
