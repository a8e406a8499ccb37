// What the New Game dialog has found out.

#pragma once

#include <filesystem>
#include <string>

#include "sim/shift_setup.h"

namespace ventrel {

struct GameSetup {
    Skill skill = Skill::normal;
    std::string controllerName; ///< at most 30 characters
    std::string airportName;
    std::filesystem::path airportFile;
};

} // namespace ventrel
