// The flight step: the simulation's heartbeat on every multiple of 15 clock seconds.
//
// First the flights that are due move, after landings, exits, losses and separation have been judged; then
// flights become active and waiting departures complain. The shell calls it on every idle pass while a game
// runs.

#pragma once

#include "sim/clock_seconds.h"
#include "sim/simulation_events.h"

namespace ventrel {

struct Flight;
struct Game;

/// The last step's time while none has acted, so that the step at clock 0 will.
inline constexpr ClockSeconds beforeFirstStep{-1};

/// Moves the clock of a game to its next multiple of 15 (first of all to 0) and plays the step and the frame
/// that follows it. True while the shift goes on. What happens is told to `events`, or to nobody.
bool step(Game& game, SimulationEvents& events);
bool step(Game& game);

/// Acts when the clock stands at a new multiple of 15. True while the game goes on; false when none is
/// running or it has just ended, which has then been told as `shiftEnded`.
bool SimulationStep(Game& game, SimulationEvents& events);

/// Whether a running game stands at a multiple of 15 at which no step has acted yet.
bool isStepDue(const Game& game);

/// The time at which the next step acts.
ClockSeconds timeOfNextStep(const Game& game);

/// The next multiple of 15, always later.
constexpr ClockSeconds nextStepTime(ClockSeconds now) {
    return (now / stepInterval + 1) * stepInterval;
}

/// Once for every frame that the radar shows: the lamp that the flights ask for is lit, and clouds drift on.
/// Without frames no lamp is put out and none lit but by a lost flight.
void makeFrame(Game& game, SimulationEvents& events);

/// Whether the flight makes a move in the step at `now`: a Fast one in every step, a Normal one in every
/// second and a Slow one in every fourth, counted from its activation.
bool isDue(const Flight& flight, ClockSeconds now);

/// Takes a rolling flight off the runway and onto a course for its destination.
void liftOff(const Game& game, Flight& flight);

/// Moves an airborne flight one cell along its plan; past the last step it flies straight on.
void moveAlongPlan(Flight& flight);

} // namespace ventrel
