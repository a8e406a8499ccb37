// What moves the game's clock in real time, and with it the small scope's sweep: pure logic over the time
// handed in.
//
// The shell ticks it while a game runs and is not paused; a late tick never catches up on missed seconds.
// Whoever plays without real time needs none of it (see step).

#pragma once

#include "base/millis.h"
#include "sim/clock_seconds.h"

namespace ventrel {

struct Game;

/// Real time that must be exceeded for the next clock second, and for the sweep's next position.
inline constexpr Millis clockSecondLength = 400;
inline constexpr Millis sweepStepLength = 80;
inline constexpr int sweepPositions = 120; ///< of one turn
inline constexpr int sweepStraightUp = 15;
inline constexpr ClockSeconds clockPaintInterval = 5_s;

struct GameClock {
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

/// A second that is due waits while the step at the present one has still to act.
ClockTickResult ClockTick(GameClock& clock, Game& game, Millis now);

/// Jumps to the next multiple of 15, always later, where the second begins anew, and points the sweep
/// straight up. The caller has checked that a game is in progress.
void ClockSkip(GameClock& clock, Game& game, Millis now);

} // namespace ventrel
