// Before a shift: who plays, how hard, where, and for which bonus.

#pragma once

#include <optional>

#include "shell/game_setup.h"
#include "shell/shell.h"

namespace ventrel {

/// Runs the dialog. What the player settles goes into the options, the controller's name also into the game,
/// name and skill at once into the options file. None when the player cancels or there is no airport.
std::optional<GameSetup> runNewGameDialog(Shell& shell);

} // namespace ventrel
