// The command line of ventrel-sim.

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/geometry.h"
#include "base/result.h"
#include "sim/shift_setup.h"

namespace ventrel {

/// The seeds from the first to the last.
struct SeedRange {
    std::uint32_t first = 0;
    std::uint32_t last = 0;
};

struct Arguments {
    std::filesystem::path airport;
    std::optional<int> width; ///< 800 or 1024; without it the file's own layout counts
    Skill skill = Skill::normal;
    unsigned planes = 25; ///< of a Custom shift, like the minutes
    unsigned minutes = 35;
    bool clouds = true;
    bool directEntry = true;
    int voices = 0;
    Size cloudSize{64, 48};    ///< pixels
    std::string name = "Test"; ///< Windows-1252
    std::uint32_t seed = 1;
    std::optional<SeedRange> seeds; ///< a shift for each of them, and a summary of each instead of the trace
    std::optional<std::filesystem::path> orders;
    ClockSeconds until{36000};
    bool controller = false;
    int lookAhead = 40;       ///< of the automatic controller, in steps
    bool careless = false;    ///< orders are sent at random
    bool interactive = false; ///< another program plays
    bool speaking = false;    ///< the pilots are heard
    bool log = false;         ///< a log for people instead of the trace
    bool prediction = false;  ///< an account of the prediction of conflicts instead of the trace
    std::optional<std::filesystem::path> record; ///< the replay that is made of the shift
    std::optional<std::filesystem::path> replay; ///< the shift to play in place of one that is set up here
    bool score = false;                          ///< the outcome alone
    bool help = false;
};

/// The command line without the program's name, or what is wrong with it.
Result<Arguments> parseArguments(std::span<const char* const> words);

std::string_view helpText();

/// The shift that these arguments ask for, as the New Game dialog would leave it.
ShiftSetup setupFor(const Arguments& arguments);

} // namespace ventrel
