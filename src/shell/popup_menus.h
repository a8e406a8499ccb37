// The menus that pop up on the console, and the order menu of an aircraft on the radar.

#pragma once

#include "platform/widgets/menu.h"
#include "shell/shell.h"

namespace ventrel {

// The menus as they are shown now: items ticked by the options, and greyed where there is no game. The order
// menu is for the selected flight, with what it flies now ticked.
Menu fileMenu(const Shell& shell);
Menu optionsMenu(const Shell& shell);
Menu orderMenu(const Shell& shell);

// Each shows its menu, sends the chosen command to the main window, and returns when the menu has closed.
void showFileMenu(Shell& shell);
void showOptionsMenu(Shell& shell);
void showHelpMenu(Shell& shell);
void showSystemMenu(Shell& shell);

/// `screen` is where the player pressed.
void showOrderMenu(Shell& shell, Point screen);

} // namespace ventrel
