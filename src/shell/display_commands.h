// Options that the player changes from the menus.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Values of the option `resolution`.
inline constexpr int smallResolution = 2; ///< 800 x 600
inline constexpr int largeResolution = 3; ///< 1024 x 768

/// Turns an option over, or asks for another size of the window or for the full screen, which come with the
/// next start. Nothing for any other command.
void changeDisplay(Shell& shell, int id);

} // namespace ventrel
