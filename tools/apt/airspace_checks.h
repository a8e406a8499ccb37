// What a player would run into: every problem of an airport file that can be played but should not be
// shipped.

#pragma once

#include <string>
#include <vector>

#include "sim/airport_file.h"

namespace ventrel::apt {

/// One line for each problem, each naming its point; empty when all is well. `picture` is the embedded one.
std::vector<std::string> airspaceProblems(const AirportFile& airport, std::span<const std::byte> picture);

} // namespace ventrel::apt
