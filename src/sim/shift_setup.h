// What a shift is made from: how hard it is, and what the player has asked for.

#pragma once

#include <span>
#include <string>

#include "sim/clock_seconds.h"
#include "sim/grid.h"

namespace ventrel {

enum class Skill { easy = 0, normal = 1, moderate = 2, hard = 3, custom = 4 };

/// How many planes in how much time, and the bonus that they are worth.
struct ShiftSize {
    int planeCount = 0;
    ClockSeconds length;
    int bonus = 0;
};

struct ShiftSetup {
    Skill skill = Skill::normal;
    ShiftSize custom{25, 2100_s, 475}; ///< of a Custom shift; brought into range (see shiftSizeFor)
    bool cloudCover = true;            ///< earns more, but for Easy; clouds are made in any case
    bool directEntry = true; ///< flights enter on a course for their destination; costs, but for Easy
    int voiceSetCount = 0;   ///< installed pilot voices; with 0 every flight gets voice 0
    std::span<const Size> cloudSizes{}; ///< pixels of the cloud pictures, by number; a missing one is empty
    ScopeLayout layout = smallLayout;
    std::string controllerName{};
};

} // namespace ventrel
