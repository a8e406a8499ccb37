#include "sim/game_clock.h"

namespace ventrel {

ClockTickResult ClockTick(GameClock& clock, bool gameRunning, Millis now) {
    if (!gameRunning) {
        return {};
    }
    ClockTickResult result{.running = true};
    if (now > clock.lastClockTick + clockSecondLength) {
        ++clock.now;
        clock.lastClockTick = now;
        result.clockPaintDue = clock.now % clockPaintInterval == 0;
    }
    if (now > clock.lastSweepTick + sweepStepLength) {
        clock.lastSweepTick = now;
        clock.sweepIndex = (clock.sweepIndex + 1) % sweepPositions;
        result.sweepMoved = true;
    }
    return result;
}

void ClockSkip(GameClock& clock) {
    clock.now = (clock.now / stepInterval + 1) * stepInterval;
    clock.sweepIndex = sweepStraightUp;
}

void ClockReset(GameClock& clock) {
    clock.now = 0;
}

} // namespace ventrel
