// A careless player: sends orders that make sense each for itself, without a look at the traffic. For whoever
// wants near misses.

#pragma once

#include "tools/sim/shift_run.h"

namespace ventrel {

/// Draws from a generator of its own, which starts there: the game's is left alone.
Steering carelessSteering(RandomGenerator chance);

} // namespace ventrel
