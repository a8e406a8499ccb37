// The random cloud cover of a shift: one cloud for every four minutes, all drifting the same way.

#pragma once

#include <span>

#include "base/random.h"
#include "sim/game_state.h"

namespace ventrel {

/// Replaces the clouds for the shift that has just been scheduled; none when `wanted` is false or the shift
/// is too short. Clouds are made whether or not the player will see them. `sizes` are those of the pictures,
/// by number.
void makeClouds(GameState& game, bool wanted, std::span<const Size> sizes, RandomGenerator& random);

} // namespace ventrel
