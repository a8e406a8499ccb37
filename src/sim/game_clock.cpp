#include "sim/game_clock.h"

#include "sim/game.h"

namespace ventrel {

ClockTickResult ClockTick(GameClock& clock, Game& game, Millis now) {
    if (!game.isRunning()) {
        return {};
    }
    ClockTickResult result{.running = true};
    if (now > clock.lastClockTick + secondLength(clock.pace) && !isStepDue(game)) {
        game.clock += 1_s;
        clock.lastClockTick = now;
        result.clockPaintDue = game.clock % clockPaintInterval == 0_s;
    }
    if (now > clock.lastSweepTick + sweepStepLength) {
        clock.lastSweepTick = now;
        clock.sweepIndex = (clock.sweepIndex + 1) % sweepPositions;
        result.sweepMoved = true;
    }
    return result;
}

void ClockSkip(GameClock& clock, Game& game, Millis now) {
    game.clock = nextStepTime(game.clock);
    clock.lastClockTick = now;
    clock.sweepIndex = sweepStraightUp;
    ++clock.skips;
}

} // namespace ventrel
