// The whole console, as the main window shows it under everything that moves.

#pragma once

#include <string>
#include <string_view>

#include "tools/art/console_layout.h"

namespace ventrel::art {

/// The drawing of that layout, with the materials of assets/art/materials.svgpart.
std::string drawConsole(const ConsoleLayout& layout, std::string_view materials);

} // namespace ventrel::art
