// The size of a Custom shift.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Lets the player set planes and minutes, which go into the options with their bonus. False when cancelled.
bool runCustomSkillDialog(Shell& shell, const Window& owner);

} // namespace ventrel
