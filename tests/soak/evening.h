// One evening of the monkey: the whole program on a machine in memory, started again whenever it has ended,
// until enough shifts have been begun. The same seed gives the same evening.

#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tests/soak/journal.h"
#include "tests/soak/shift_check.h"

namespace ventrel {

/// What the evenings have added up to.
struct SoakCounts {
    int evenings = 0;
    int programs = 0; ///< starts of it
    long gestures = 0;
    long repaints = 0;          ///< that were compared
    long comparisons = 0;       ///< of a shift in its middle with the simulation alone
    int left = 0;               ///< ways back to the console from wherever the monkey was
    std::size_t mostGrowth = 0; ///< of memory in one program, in bytes
    ShiftCounts shifts;
    std::map<std::string, long> seen; ///< after how many gestures it was on the screen
    std::vector<std::string> findings;
};

struct EveningSetup {
    std::uint32_t seed = 1;
    int shifts = 5;
    std::filesystem::path pictures; ///< for those that are wrong; empty: not kept
};

/// What is found is added to the counts, together with the latest inputs; a finding ends the evening.
void playEvening(const EveningSetup& setup, Journal& journal, SoakCounts& counts);

} // namespace ventrel
