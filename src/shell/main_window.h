// The main window: the console with its buttons, and everything on it.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Makes the main window with its children, hidden. The clicks on it become commands (commands.h).
void createMainWindow(Shell& shell);

} // namespace ventrel
