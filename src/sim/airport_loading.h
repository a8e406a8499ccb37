// Loading an airport for a shift: its file into memory, its map points onto the grid, its runways as used
// this time.

#pragma once

#include <filesystem>
#include <optional>

#include "base/failure.h"
#include "base/random.h"
#include "sim/game_state.h"

namespace ventrel {

/// An airport file that can be played, with the bytes it was read from.
struct LoadedAirport {
    FileBuffer file;
    AirportFile airport;
};

/// Reads and checks the file; nothing, after a report, when it cannot be played.
std::optional<LoadedAirport> openAirport(const std::filesystem::path& path, const FailureReporter& report);

/// Makes it the game's airport: cells for the layout, and for each airport the draw whether its runway is
/// reversed.
void useAirport(GameState& game, LoadedAirport&& loaded, const ScopeLayout& layout, RandomGenerator& random);

/// Both in one. False, after a report and with the game's airport as it was, when the file cannot be played.
bool loadAirport(GameState& game, const std::filesystem::path& path, const ScopeLayout& layout,
                 RandomGenerator& random, const FailureReporter& report);

} // namespace ventrel
