// Help > Lessons, and the question of the very first start.

#pragma once

#include <optional>

#include "shell/shell.h"

namespace ventrel {

/// The lesson that the player has chosen, by its place from 0.
std::optional<std::size_t> runLessonsDialog(Shell& shell);

/// Offers a newcomer the first lesson, a new game, or to look around, and sees to it that the next start is
/// no first one.
void welcomeNewcomer(Shell& shell);

} // namespace ventrel
