// What moves the game's clock in real time, and with it the small scope's sweep: pure logic over the time
// handed in.
//
// The shell ticks it while a game runs and is not paused; a late tick never catches up on missed seconds.
// Whoever plays without real time needs none of it (see step).

#pragma once

#include <array>
#include <cstddef>

#include "base/millis.h"
#include "sim/clock_seconds.h"

namespace ventrel {

struct Game;

/// Real time that must be exceeded for the next clock second at the normal pace, and for the sweep's next
/// position at any.
inline constexpr Millis clockSecondLength = 400;
inline constexpr Millis sweepStepLength = 80;
inline constexpr int sweepPositions = 120; ///< of one turn
inline constexpr int sweepStraightUp = 15;
inline constexpr ClockSeconds clockPaintInterval = 5_s;

/// How fast the clock runs, the slowest first; `unlimited` is as fast as the program can follow.
enum class ClockPace { half, normal, twice, fourTimes, eightTimes, sixteenTimes, unlimited };
inline constexpr std::array clockPaces{ClockPace::half,      ClockPace::normal,     ClockPace::twice,
                                       ClockPace::fourTimes, ClockPace::eightTimes, ClockPace::sixteenTimes,
                                       ClockPace::unlimited};

/// Real time that must be exceeded for the next clock second.
constexpr Millis secondLength(ClockPace pace) {
    constexpr std::array<Millis, clockPaces.size()> lengths{2 * clockSecondLength,
                                                            clockSecondLength,
                                                            clockSecondLength / 2,
                                                            clockSecondLength / 4,
                                                            clockSecondLength / 8,
                                                            clockSecondLength / 16,
                                                            0};
    return lengths[static_cast<std::size_t>(pace)];
}

struct GameClock {
    ClockPace pace = ClockPace::normal;
    Millis lastClockTick = -clockSecondLength - 1; ///< so that the first tick advances at once
    int sweepIndex = sweepStraightUp;              ///< 0 to 119, clockwise from the upper left corner
    Millis lastSweepTick = -sweepStepLength - 1;
    int skips = 0; ///< how often it has jumped
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
