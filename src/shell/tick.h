// The heartbeat: what moves by itself while a game runs.

#pragma once

#include <optional>

#include "shell/shell.h"

namespace ventrel {

/// Gives clock, ticker, simulation, lamps, radar and panel their turns, in this order. Returns when the first
/// of them wants its next; none while all is quiet or the game is paused.
std::optional<Millis> Tick(Shell& shell);

} // namespace ventrel
