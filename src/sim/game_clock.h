// The game clock's value and the small scope's sweep, as pure logic over the time handed in.
//
// The shell ticks it while a game runs and is not paused; a late tick never catches up on missed seconds.

#pragma once

#include "sim/time_units.h"

namespace ventrel {

inline constexpr Millis clockSecondLength =
    400;                                      ///< real time that must be exceeded for the next clock second
inline constexpr Millis sweepStepLength = 80; ///< and for the sweep's next position
inline constexpr int sweepPositions = 120;    ///< of one turn
inline constexpr int sweepStraightUp = 15;
inline constexpr ClockSeconds clockPaintInterval = 5;

struct GameClock {
    ClockSeconds now = 0;
    Millis lastClockTick = -clockSecondLength - 1; ///< so that the first tick advances at once
    int sweepIndex = sweepStraightUp;              ///< 0 to 119, clockwise from the upper left corner
    Millis lastSweepTick = -sweepStepLength - 1;
};

/// What a tick has made due for painting.
struct ClockTickResult {
    bool running = false; ///< false when no game is in progress; then nothing has moved
    bool clockPaintDue = false;
    bool sweepMoved = false;
};

ClockTickResult ClockTick(GameClock& clock, bool gameRunning, Millis now);

/// Jumps to the next multiple of 15, always later, and points the sweep straight up. The caller has checked
/// that a game is in progress.
void ClockSkip(GameClock& clock);

/// Back to 0 when a game ends. The sweep stays where it is.
void ClockReset(GameClock& clock);

} // namespace ventrel
