// The Shift of the Day: what it is, and how it went.

#pragma once

#include "replay/shift_of_the_day.h"
#include "shell/shell.h"

namespace ventrel {

/// Shows what it is, and the best score of today; its set-up, when the player wants to play it.
std::optional<GameSetup> runDayDialog(Shell& shell);

/// The set-up of today's; none, after the player was told, without its airspace.
std::optional<GameSetup> setUpOfToday(Shell& shell);

/// Whether that set-up is still today's.
bool isOfToday(const Shell& shell, const GameSetup& setup);

/// Begins the shift of that set-up.
void startDay(Shell& shell, const GameSetup& setup);

/// Keeps the score of the Shift of the Day that is over, when it is its date's best. Nothing of any other
/// shift.
void keepScoreOfTheDay(Shell& shell);

/// Does so but after a collision, and shows the line to share.
void tellOfTheDay(Shell& shell);

} // namespace ventrel
