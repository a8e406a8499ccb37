// A shift that was played in a window of one width, drawn in a window of the other.
//
// What is simulated lives on the grid and stays as it is; only what is drawn by pixels moves.

#pragma once

#include <span>

#include "sim/game.h"

namespace ventrel {

/// Moves the map points of a game that has just been set up to where a window of that layout has their cells,
/// and its clouds along. `cloudSizes` are the pixels of that window's pictures, by number; `picture` is what
/// lies under its map, encoded, or empty.
void moveToLayout(Game& game, const ScopeLayout& layout, std::span<const Size> cloudSizes,
                  std::span<const std::byte> picture);

/// Whether the picture of the other airspace, made for another width, fits under the map of this one: both
/// have the same map points in the same order.
bool hasSamePoints(const Airspace& airspace, const Airspace& other);

} // namespace ventrel
