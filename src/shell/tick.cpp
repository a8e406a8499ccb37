#include "shell/tick.h"

#include "platform/devices/deadline.h"
#include "sim/flight_step.h"

namespace ventrel {

std::optional<Millis> Tick(Shell& shell) {
    LogWindowTick(shell);
    followLesson(shell);
    if (shell.paused && shell.game.isRunning()) {
        return CaptionsTick(shell.captions);
    }
    const bool isSkipping = followEventSkip(shell);
    std::optional<Millis> next = ClockTick(shell.topBar);
    next = earlier(next, ScrollerTick(shell.scroller));
    next = earlier(next, CaptionsTick(shell.captions));
    if (!steerWhole(shell)) {
        steerBeforeStep(shell);
        SimulationStep(shell.game, shell.events);
    }
    steerAfterStep(shell);
    next = earlier(next, LampsTick(shell.topBar));
    next = earlier(next, RadarTick(shell.radar));
    CtrlTick(shell.panel);
    return isSkipping ? std::optional(shell.desktop.now()) : next;
}

} // namespace ventrel
