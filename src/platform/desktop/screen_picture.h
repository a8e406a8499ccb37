// The one picture: top-levels laid over each other where something changed, and sent to the machine.
// Private to this room.

#pragma once

#include "platform/desktop/desktop_state.h"

namespace ventrel {

/// Lays and sends what changed since the last time; nothing happens when nothing did, or while the screen
/// still shows what was sent before. Returns the moment at which the rest can be sent, none when all is. The
/// machine's window is shown while any top-level is.
std::optional<Millis> presentChanges(DesktopState& state);

} // namespace ventrel
