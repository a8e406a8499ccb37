// The dialog of the replays: the latest shifts and those kept by name, to watch, keep and delete.

#pragma once

#include "shell/shell.h"

namespace ventrel {

/// Runs it; the replay that the player wants to watch, none otherwise.
std::optional<Replay> runReplayDialog(Shell& shell);

} // namespace ventrel
