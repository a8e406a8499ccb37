// The orders that are worth a thought for a flight in the air.

#pragma once

#include <vector>

#include "controller/approach.h"
#include "sim/game.h"

namespace ventrel {

struct Choice {
    PanelOrder order;
    int detour = 0; ///< what it costs in time and attention, in points; 0 for the way that leads home
};

/// The best way to the flight's exit: the first of its choices.
PanelOrder bestWayToExit(const Game& game, const Flight& flight);

/// The best way to the flight's runway: the first of its choices.
PanelOrder bestWayToRunway(const Approach& approach, const Flight& flight);

/// The ways to the flight's exit, the best first.
std::vector<Choice> choicesToExit(const Game& game, const Flight& flight);

/// The ways to the flight's runway, the best first.
std::vector<Choice> choicesToRunway(const Approach& approach, const Flight& flight);

} // namespace ventrel
