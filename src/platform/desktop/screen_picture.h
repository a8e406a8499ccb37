// The one picture: top-levels laid over each other where something changed, and sent to the machine.
// Private to this room.

#pragma once

#include "platform/desktop/desktop_state.h"

namespace ventrel {

/// Shows the machine's window while any top-level is shown, and hides it else. Whether it has just come up.
bool showMachineWindow(DesktopState& state);

/// The screen has lost what it showed, or shows it elsewhere: with the next sending goes everything.
void sendEverything(DesktopState& state);

/// Lays and sends what changed since the last time; nothing happens when nothing did, or while the screen
/// still shows what was sent before. Returns the moment at which the rest can be sent, none when all is.
std::optional<Millis> presentChanges(DesktopState& state);

} // namespace ventrel
