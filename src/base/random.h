// The one source of chance: a linear congruential generator.
//
// Whoever draws is handed the generator, so that a shift can be repeated exactly from its seed.
// Every draw of the whole program is one step of it.

#pragma once

#include <cstdint>

namespace ventrel {

struct RandomGenerator {
    std::uint32_t state = 1;

    /// Steps the generator; the value is 0 to 32767.
    int next();
};

/// With `b` 0: a number from 0 to `a` - 1. Otherwise one from `a` to `b`, both included.
/// The caller passes a positive `a` when `b` is 0, and `b` >= `a` otherwise; a range without a number, such
/// as a damaged file may ask for, draws all the same and gives 0 or `a`.
int Random(RandomGenerator& generator, int a, int b = 0);

/// A number from 0 to 99, to be compared with a chance in percent.
int RandomPercent(RandomGenerator& generator);

} // namespace ventrel
