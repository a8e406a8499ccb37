// An airspace as it is drawn: its map points, its colours and its picture, decoded once and shared by every
// game that is played in it.

#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include "base/result.h"
#include "sim/vor.h"

namespace ventrel {

/// Never changes once it is loaded. What a game settles for itself, cells and runways in use, is the game's.
struct Airspace {
    std::string name;
    int layoutWidth = 0; ///< of the window that positions and picture fit: 800 or 1024 in a file for players
    Colour routeColour;
    Colour selectedFlightColour;
    Colour flightColour;
    std::vector<Vor> points;
    std::vector<std::byte> picture; ///< of the radar's background, still encoded; empty without one
};

using AirspacePtr = std::shared_ptr<const Airspace>;

/// Reads an airport file; the failure names it and why it cannot be played.
Result<AirspacePtr> loadAirport(const std::filesystem::path& file);

/// The same from the bytes of one; `name` stands for the file in a failure.
Result<AirspacePtr> loadAirport(std::span<const std::byte> bytes, const std::filesystem::path& name);

} // namespace ventrel
