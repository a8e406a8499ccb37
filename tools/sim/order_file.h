// The orders of a scripted shift, one a line: clock flight altitude heading speed directTarget hold.
// A "#" starts a comment; the lines need not be sorted.

#pragma once

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

#include "sim/game.h"

namespace ventrel {

struct ScriptedOrder {
    ClockSeconds clock;
    FlightIndex flight;
    PanelOrder order;
};

/// The orders sorted by time, in file order among equal times; or what is wrong, naming file and line, in
/// Windows-1252 and with whatever bytes the file has. At most 16 MiB are read.
/// Flights and map points must exist in `game`, whose shift is set up.
std::variant<std::vector<ScriptedOrder>, std::string> readOrderFile(const std::filesystem::path& file,
                                                                    const Game& game);

} // namespace ventrel
