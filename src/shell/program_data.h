// What the program takes from its folder before there is a screen.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/devices/backend.h"
#include "platform/text/font.h"

namespace ventrel {

struct ProgramData {
    FontSet fonts;                     ///< without a face nothing can be told on a screen
    std::optional<CursorImage> icon;   ///< of the window
    std::vector<std::string> troubles; ///< what is missing or damaged, in words for the player
};

ProgramData openProgramData(const std::filesystem::path& programFolder);

} // namespace ventrel
