// The report of the shift that is played, or of the last one.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Whether there is one to show.
bool canReportShift(const Shell& shell);
/// The same for one that is over.
bool canReportFinishedShift(const Shell& shell);

/// Shows it as of the moment when it opens; nothing when there is none.
void runReportDialog(Shell& shell);

} // namespace ventrel
