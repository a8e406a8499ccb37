// The loop: one pass after another, with sleep in between. Private to this room.

#pragma once

#include "platform/desktop/desktop_state.h"
#include "platform/devices/deadline.h"

namespace ventrel {

/// How a loop differs from the main one.
struct LoopMode {
    bool accelerators = true;
    bool idle = true;
    std::function<bool()> isFinished; ///< asked after every message; none: never
};

/// Handles what waits, runs due timers, paints, moves on, sends the picture. Returns the moment until which
/// the loop may sleep: the past when more is to be done, none when only input can bring something.
std::optional<Millis> runPass(DesktopState& state, const LoopMode& mode);

/// Passes and sleeps until the mode is finished or the program quits.
void runLoop(DesktopState& state, const LoopMode& mode);

/// Sleeps until that moment, or for ever without one, or until input arrives, which then waits to be handled.
void sleepUntil(DesktopState& state, std::optional<Millis> moment);

} // namespace ventrel
