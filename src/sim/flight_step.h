// The flight step: the simulation's heartbeat on every multiple of 15 clock seconds.
//
// First the flights that are due move, after landings, exits, losses and separation have been judged; then
// flights become active and waiting departures complain. The shell calls it on every idle pass while a game
// runs.

#pragma once

#include "sim/simulation.h"

namespace ventrel {

/// Acts when `now` is a new multiple of 15. True while the game goes on; false when none is running or it has
/// just ended, which has then been told as `shiftEnded`.
bool SimulationStep(Simulation& simulation, ClockSeconds now);

/// Whether the flight makes a move in the step at `now`: a Fast one in every step, a Normal one in every
/// second and a Slow one in every fourth, counted from its activation.
bool isDue(const Flight& flight, ClockSeconds now);

/// Moves an airborne flight one cell along its plan; past the last step it flies straight on.
void moveAlongPlan(Flight& flight);

} // namespace ventrel
