// What frames a shift, with its pictures, sounds and music.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Fails for a missing file without which there is no opening.
Result<> checkOpening(const std::filesystem::path& programFolder);

/// Shows how the program opens, until it is over or the player has closed it; nothing where its sound does
/// not start. False when the program is quitting.
bool showOpening(Shell& shell);

/// Opens the page about the collision that the game ended with; the idle music plays once it is closed.
void reportCollision(Shell& shell);

/// Opens the film about a score that has entered the table; the table with that row is shown once it is over.
void celebrate(Shell& shell, int row);

} // namespace ventrel
