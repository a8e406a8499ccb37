// The orders of a scripted shift, one a line: clock flight altitude heading speed directTarget hold.
// A "#" starts a comment; the lines need not be sorted.

#pragma once

#include <filesystem>
#include <string>
#include <variant>
#include <vector>

#include "sim/orders.h"

namespace ventrel {

struct ScriptedOrder {
    ClockSeconds clock = 0;
    FlightIndex flight = 0;
    PanelOrder order;
};

/// The orders sorted by time, in file order among equal times; or what is wrong, naming file and line.
/// Flights and map points must exist in `game`, whose shift is set up.
std::variant<std::vector<ScriptedOrder>, std::string> readOrderFile(const std::filesystem::path& file,
                                                                    const GameState& game);

} // namespace ventrel
