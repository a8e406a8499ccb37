// Every shift is kept as a replay while it is played.

#pragma once

#include <filesystem>

#include "shell/shell.h"

namespace ventrel {

/// Where the player's replays lie; empty where there is no folder for them.
std::filesystem::path replayFolder(const Shell& shell);

/// The shift has just been set up, with the generator at `seed`: from now on it is kept. What keeps that from
/// working is told once in a run of the program, and disturbs nothing.
void keepReplay(Shell& shell, const GameSetup& game, const ShiftSetup& setup, std::uint32_t seed);

/// The same for a practice shift that goes on from another one's replay, of which the game has been played
/// through `past` with so many calls with radio noise.
void resumeReplay(Shell& shell, Replay past, int calls);

} // namespace ventrel
