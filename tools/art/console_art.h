// The whole console, as the main window shows it under everything that moves.

#pragma once

#include <string>
#include <string_view>

#include "tools/art/console_fittings.h"

namespace ventrel::art {

/// The drawing of the console with those fittings, with the materials of assets/art/materials.svgpart.
std::string drawConsole(const ConsoleFittings& fittings, std::string_view materials);

} // namespace ventrel::art
