// Shift+Space: on to the next event, by as many skips of the clock as that takes.
//
// Each skip is that of the Space key, whose step and picture come in their turn, so that what happens is
// judged, seen and recorded as ever. The player's next command ends it, and so does a pause.

#pragma once

#include "sim/event_watch.h"

namespace ventrel {

struct Shell;

struct EventSkip {
    EventWatch watch = {};
    int skipsLeft = 0; ///< 0: none is under way
};

/// The key itself; nothing while no game runs or it is paused.
void skipToEvent(Shell& shell);

/// In every tick, before the clock's turn: skips on, or has arrived. Whether the next skip is due at once.
bool followEventSkip(Shell& shell);

/// Stays where it is.
void endEventSkip(Shell& shell);

} // namespace ventrel
