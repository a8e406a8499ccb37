// A control panel on a console of its own, and the orders that tests set on it.

#pragma once

#include "console_stage.h"
#include "controls/control_panel.h"

namespace ventrel {

struct PanelStage : ConsoleStage {
    PanelStage() { CtrlCreate(panel, main, console); }

    ControlPanel panel{
        .sources = {game, options, fonts, hand, arrow},
        .callbacks = {.click = [this] { log.emplace_back("click"); },
                      .enableExec = [this](bool on) { log.emplace_back(on ? "exec on" : "exec off"); }}};

    const PlanStep& pending() const { return panel.state.pending; }
    /// Where a point of the panel lies in the main window.
    Point inMain(Point p) const { return p + panel.window.bounds().topLeft(); }
};

inline constexpr int pointCount = 3;

/// `target` by its number: -1 none, 3 the selector's hold.
inline PlanStep flying(int altitude, int heading, int target = -1, bool hold = false) {
    return {.altitude = altitude,
            .heading = heading,
            .directTarget = directTargetOf(target, pointCount),
            .hold = hold};
}

inline PlanStep atSpeed(Speed speed, PlanStep step) {
    step.speed = speed;
    return step;
}

} // namespace ventrel
