// The shift at a glance: every flight still in play, the counts by kind, and the score.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Shows them as of the moment when it opens.
void runScheduleDialog(Shell& shell);

} // namespace ventrel
