#include "shell/tick.h"

#include "platform/devices/deadline.h"
#include "sim/flight_step.h"

namespace ventrel {

std::optional<Millis> Tick(Shell& shell) {
    LogWindowTick(shell);
    if (shell.paused && shell.game.isRunning()) {
        return std::nullopt;
    }
    std::optional<Millis> next = ClockTick(shell.topBar);
    next = earlier(next, ScrollerTick(shell.scroller));
    SimulationStep(shell.game, shell.events);
    next = earlier(next, LampsTick(shell.topBar));
    next = earlier(next, RadarTick(shell.radar));
    CtrlTick(shell.panel);
    return next;
}

} // namespace ventrel
