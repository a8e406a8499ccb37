// Options > Aids: what the player wants shown beyond the game itself.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Lets the player choose; OK keeps the choice and shows it at once.
void runAidsDialog(Shell& shell);

} // namespace ventrel
