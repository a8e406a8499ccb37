// The main window: the console with its buttons, and everything on it.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Makes the main window with its children, and shows it.
void createMainWindow(Shell& shell);

} // namespace ventrel
