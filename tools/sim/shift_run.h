// Runs one shift from its set-up to its end, with nobody at the controls but a list of orders or the
// autopilot.

#pragma once

#include <span>

#include "tools/sim/order_file.h"
#include "tools/sim/recorder.h"

namespace ventrel {

struct RunPlan {
    std::span<const ScriptedOrder> orders; ///< sorted by time
    ClockSeconds until;                    ///< no step later than this
    bool autopilot = false;
};

/// The shift has just been set up; it is told to the recorder, run in steps of 15 clock seconds, and told to
/// have ended.
void runShift(Game& game, Recorder& recorder, const RunPlan& plan);

} // namespace ventrel
