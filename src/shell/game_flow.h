// The life of a game: its start, pauses, and the ways in which it ends.

#pragma once

#include <functional>
#include <vector>

#include "shell/game_setup.h"
#include "shell/shell.h"

namespace ventrel {

inline constexpr std::string_view idleMusic = "mci\\idle.mci";
inline constexpr std::string_view gameMusic = "mci\\game.mci";
inline constexpr std::string_view tableMusic = "mci\\splash.mci";

/// What this window is to a shift: the size of its scope, and of its cloud pictures, by number.
const ScopeLayout& scopeLayout(const Shell& shell);
std::vector<Size> cloudSizes(const Shell& shell);

/// Loads the airport, sets the shift up and lets the clock run. A refused airport starts no game; the game
/// music starts all the same.
void startGame(Shell& shell, const GameSetup& setup);

/// The same for a game that has been set up already, which is no shift of the player's own.
void showShift(Shell& shell);

/// The same with a shift that `make` sets up, of its own generator: a practice shift.
void startPreparedGame(Shell& shell, const std::function<Game(const ShiftSetup&)>& make);

/// Pauses or resumes the running game; nothing while none runs, or when it is so already.
void SetPause(Shell& shell, bool on);

/// Ends the running game and resets every display. Leaves music, score and pause as they are.
void EndGame(Shell& shell);

/// Puts away what a game that is over still shows, before another takes its place: its score is entered and
/// told of if that has not been done.
void putLastGameAway(Shell& shell);

/// Ends it as the player asked: with the idle music.
void abandonGame(Shell& shell);

/// The end that the simulation has told: every flight handled, or a collision.
void endShift(Shell& shell, ShiftResult result);

/// Whether the shift is over but its last line still on the ticker.
bool isShiftEnding(const Shell& shell);

/// The game-over line has scrolled away: the score is entered, celebrated when it has a place in the table,
/// and the table shown; of a practice shift neither. Nothing when no shift is ending.
void onGameOver(Shell& shell);

/// Nobody waits for the game-over line any more: its game is ended and its score entered. The row at which
/// that stands now; none without a place in the table, of which no trouble goes untold, and none for a
/// practice shift.
std::optional<int> enterFinishedScore(Shell& shell);

/// The score so far, for the ticker.
void reportScore(Shell& shell);

} // namespace ventrel
