// Chance in drawings, repeatable from its seed.

#pragma once

#include "base/random.h"

namespace ventrel::art {

/// A number between two others, in a thousand steps.
inline double drawn(RandomGenerator& random, double from, double to) {
    constexpr int steps = 1000;
    return from + (to - from) * Random(random, steps) / (steps - 1);
}

} // namespace ventrel::art
