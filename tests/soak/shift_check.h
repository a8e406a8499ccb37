// Whether every shift of the window is the one that the simulation alone plays: what was kept of it is played
// again, as ventrel-sim does, and both must come out alike.

#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "replay/replay.h"
#include "shell/shell.h"

namespace ventrel {

struct ShiftCounts {
    int begun = 0;
    int handled = 0;
    int collisions = 0;
    int givenUp = 0;
    int unended = 0; ///< the program ended before them
    long clockSeconds = 0;
    long steps = 0;
    long orders = 0;
};

class ShiftCheck {
public:
    /// What is wrong, in words; none when all is well.
    using Trouble = std::optional<std::string>;

    /// The shell's shift, if there is another one than before or the last one has ended. To be asked after
    /// every step.
    Trouble follow(const Shell& shell);
    /// The shift that is played, as it stands in the middle of it.
    Trouble compareNow(const Shell& shell);
    /// The program has ended, whatever was played then.
    Trouble programEnded();

    /// Whether the latest shift is still to be proven.
    bool isFollowing() const { return !file_.empty(); }

    const ShiftCounts& counts() const { return counts_; }

private:
    Trouble close();
    Trouble prove(const std::filesystem::path& file);
    Result<AirspacePtr> airspaceOf(const Replay& replay);

    ShiftCounts counts_;
    std::filesystem::path file_;    // of the shift that is being played, empty when it has been proven
    std::filesystem::path known_;   // of the latest one
    std::filesystem::path program_; // the folder
    std::filesystem::path players_; // of airspaces
    std::map<std::uint64_t, AirspacePtr> airspaces_;
};

} // namespace ventrel
