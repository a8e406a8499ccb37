// Options that the player changes from the menus.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// What the options say of sound and music.
SoundChoices soundChoices(const Options& options);

/// Turns an option over, gives it a value, or asks for another size of the window or for the full screen,
/// which come with the next start. Nothing for any other command.
void changeOption(Shell& shell, int id);

/// Takes the options with aids as chosen, keeps them, and shows them at once.
void chooseAids(Shell& shell, const Options& chosen);

/// Writes the options as they stand. To be called after every change; what hinders it is told once.
void saveOptions(Shell& shell);

} // namespace ventrel
