// What the New Game dialog has found out.

#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "base/utc_time.h"
#include "sim/shift_setup.h"

namespace ventrel {

/// What a shift is played for.
enum class ShiftKind {
    scored,   ///< its score may enter the table
    practice, ///< whatever its score, no table hears of it
};

struct GameSetup {
    ShiftKind kind = ShiftKind::scored;
    Skill skill = Skill::normal;
    std::string controllerName; ///< at most 30 characters
    std::string airportName;
    std::filesystem::path airportFile;
    std::optional<UtcDate> day = {}; ///< of whose Shift of the Day it is; none for any other shift
};

} // namespace ventrel
