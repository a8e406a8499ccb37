// What this program is.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Shows the program's picture and version. A missing picture is reported (text 1, stop icon); the dialog
/// then stays plain, in the corner of the console.
void runAboutDialog(Shell& shell);

} // namespace ventrel
