// Dialogs that only tell: the shift's schedule, and what this program is.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Every flight still in play, the counts by kind, and the score, as of the moment when it opens.
void runScheduleDialog(Shell& shell);

/// The program's picture and version. Without the picture (text 1, stop icon) a small empty box.
void runAboutDialog(Shell& shell);

} // namespace ventrel
