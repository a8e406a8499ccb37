// The random cloud cover of a shift: one cloud for every four minutes, all drifting the same way.

#pragma once

#include <span>

#include "sim/game.h"

namespace ventrel {

/// Replaces the clouds for the shift that has just been scheduled; none when `wanted` is false or the shift
/// is too short. Clouds are made whether or not the player will see them. `sizes` are those of the pictures,
/// by number.
void makeClouds(Game& game, bool wanted, std::span<const Size> sizes);

/// What a frame does to the clouds: those that have appeared since the last one are shown, the others move
/// on. Nothing in a shift without cloud cover.
void showClouds(Game& game);

/// Moves a cloud by one frame; false once it has left the radar, a square of so many pixels.
bool CloudDrift(Cloud& cloud, int scopeSize);

} // namespace ventrel
