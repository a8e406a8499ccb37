// A replay that is watched on the console, whatever the width of the window in which it was made: it plays by
// itself, jumps, and is taken over by the player.

#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "replay/playback.h"

namespace ventrel {

struct Shell;

/// The replay that is being watched, and what goes on as before when it has been.
struct ReplayWatch {
    std::shared_ptr<Playback> playback = nullptr; ///< none while none is watched
    bool isPartingTold = false;                   ///< that the game does not go as the replay tells
    AirspacePtr airspace = nullptr;               ///< in which it was made
    std::vector<std::byte> otherPicture = {};     ///< under its map, where it was made for the other width
    RandomGenerator random = {};                  ///< of the program's next game
    ClockSeconds lastStepTime = {};               ///< likewise
};

/// Whether the game is a replay's, and nothing but it may light a lamp or draw.
bool isReplaying(const Shell& shell);

/// Whether it is one whose shift, as far as it tells, goes on from here.
bool isShiftLeft(const Shell& shell);

/// Finds what it needs. Fails when it cannot be played here; nothing on the console has changed yet.
Result<ReplayWatch> prepareReplay(Shell& shell, Replay replay);

/// Begins it, in place of what was on the console.
void watchReplay(Shell& shell, ReplayWatch watch);

/// Asks for a time of the clock and shows the shift as it stood then.
void askWhereToJump(Shell& shell);

/// Shows it as it stood at that time of the clock, or just before its last line.
void jumpInReplay(Shell& shell, ClockSeconds clock);

/// What there is to tell of a shift that has just ended and did not go as its replay tells; nothing where
/// that has been told, or there is none.
std::optional<std::string> untoldParting(const Shell& shell);

/// After each turn of the replay: at its last line, where the shift itself goes on, it is put away.
void followReplayEnd(Shell& shell);

/// The player takes over: a new replay is kept, which goes on from this one.
void keepTakenOver(Shell& shell);

/// The replay, if there is one, is not watched any more; the next game draws as if it had not been.
void forgetReplay(Shell& shell);

} // namespace ventrel
