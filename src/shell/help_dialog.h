// Keys, mouse and rules in short.

#pragma once

#include "shell/shell.h"

namespace ventrel {

void runHelpDialog(Shell& shell);

} // namespace ventrel
