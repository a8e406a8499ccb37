// The menus that pop up on the console, and the order menu of an aircraft on the radar.

#pragma once

#include "shell/shell.h"

namespace ventrel {

// Each shows its menu, sends the chosen command to the main window, and returns when the menu has closed.
void showFileMenu(Shell& shell);
void showOptionsMenu(Shell& shell);
void showHelpMenu(Shell& shell);
void showSystemMenu(Shell& shell);

/// The orders for the selected flight, with what it flies now ticked. `screen` is where the player pressed.
void showOrderMenu(Shell& shell, Point screen);

} // namespace ventrel
