#include "shell/event_skip.h"

#include "shell/shell.h"
#include "sim/flight_step.h"

namespace ventrel {

namespace {

/// Five minutes of the game clock.
constexpr int mostSkips = 20;

} // namespace

void skipToEvent(Shell& shell) {
    if (!shell.game.isRunning() || shell.paused) {
        return;
    }
    shell.eventSkip.watch.begin(shell.game);
    shell.eventSkip.skipsLeft = mostSkips;
    shell.mainWindow.post([] {}); // wakes the loop, whose ticks do the rest
}

bool followEventSkip(Shell& shell) {
    EventSkip& skip = shell.eventSkip;
    if (skip.skipsLeft == 0) {
        return false;
    }
    if (!shell.game.isRunning() || skip.watch.hasHappened(shell.game)) {
        endEventSkip(shell);
        return false;
    }
    if (!isStepDue(shell.game)) {
        skip.watch.begin(shell.game);
        --skip.skipsLeft;
        skipClock(shell);
    }
    return true;
}

void endEventSkip(Shell& shell) {
    shell.eventSkip.skipsLeft = 0;
}

} // namespace ventrel
