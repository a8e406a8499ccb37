// The table of high scores over its picture.

#pragma once

#include <optional>

#include "shell/shell.h"

namespace ventrel {

/// Shows the table with its own music until the player has seen it; `row` stands out. Afterwards the idle
/// music plays where no game runs. A table that cannot be read is told of, and shown empty; without the
/// picture nothing is shown.
void ShowHighScores(Shell& shell, std::optional<int> row = {});

} // namespace ventrel
