// Practice at half speed: for as long as it is on, every shift that the player begins is practice, at half
// the clock's pace, and enters no high scores.

#pragma once

#include "shell/game_setup.h"
#include "sim/game_clock.h"

namespace ventrel {

struct Shell;

/// Turns it on or off, for the running game at once. The player is asked first whether a scored shift may
/// become practice; it stays that when this is off again.
void switchHalfSpeed(Shell& shell);

/// The kind and the pace of a shift that begins now.
ShiftKind kindOfShift(const Shell& shell, ShiftKind wanted);
ClockPace paceOfShift(const Shell& shell);

} // namespace ventrel
