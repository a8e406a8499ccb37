// Orders as text: flight altitude heading speed directTarget hold, six whole numbers; in a file each line
// begins with the clock time at which its order is sent. A "#" starts a comment.

#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"
#include "sim/game.h"

namespace ventrel {

struct ScriptedOrder {
    ClockSeconds clock;
    FlightIndex flight;
    PanelOrder order;
};

/// An order to be sent now, nothing where the line is empty, or what is wrong with it.
Result<std::optional<ScriptedOrder>> readOrderLine(std::string_view line, const Game& game);

/// The orders sorted by time, in file order among equal times; or what is wrong, naming file and line, in
/// Windows-1252 and with whatever bytes the file has. At most 16 MiB are read.
/// The lines need not be sorted.
/// Flights and map points must exist in `game`, whose shift is set up.
Result<std::vector<ScriptedOrder>> readOrderFile(const std::filesystem::path& file, const Game& game);

} // namespace ventrel
