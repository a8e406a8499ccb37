// What the player asks of the program: menus, keys, buttons and the order menu all arrive here as numbers.

#pragma once

#include "resources/command_ids.h"
#include "shell/shell.h"

namespace ventrel {

/// Does what the command's number stands for; nothing for an unknown one.
void onCommand(Shell& shell, int id);

} // namespace ventrel
