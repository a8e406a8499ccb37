// What a player would run into: every problem of an airspace that can be played but should not be shipped.
// docs/formats.md has the list.

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

#include "base/geometry.h"
#include "sim/airport_file.h"
#include "tools/apt/faults.h"

namespace ventrel::apt {

/// What speaks against a picture under that layout's radar, decoded as the game does it; empty when nothing
/// does. No bytes are no picture.
std::string pictureProblem(std::span<const std::byte> jpeg, int layoutWidth);

/// All problems of points, names and colours, each naming its point and telling how far off it is. `picture`
/// is the embedded one.
Problems airspaceProblems(const AirportFile& airport, std::span<const std::byte> picture);

} // namespace ventrel::apt
