// Before a shift that the automatic controller plays: how hard, where, and how fast.

#pragma once

#include <optional>

#include "shell/game_setup.h"
#include "shell/shell.h"

namespace ventrel {

struct WatchWish {
    GameSetup setup;
    ClockPace pace;
};

/// Runs the dialog. The airspace becomes the chosen one, the level is not kept. None when the player cancels
/// or there is no airport.
std::optional<WatchWish> runWatchDialog(Shell& shell);

} // namespace ventrel
