// Separation: two airborne flights at one altitude must never share a cell and should not stand in
// neighbouring ones.

#pragma once

#include "sim/crowd.h"
#include "sim/game.h"

namespace ventrel {

/// Judges a flight against all others, which stand where `crowd` has them, before it moves. Every near miss
/// is reported, paid for, and marks the moving flight alone. True when it shares a cell with another: the
/// collision's two flights are then noted in the game.
bool checkSeparation(Game& game, SimulationEvents& events, const Crowd& crowd, FlightIndex mover);

/// Lowers a flight that is just entering by 1 when it comes in at the altitude of a flight within one column,
/// or within one row, of it.
void separateOnEntry(Game& game, Flight& entering);

} // namespace ventrel
