// Whole-number arithmetic of the game: 32 bits, truncating toward zero, a zero divisor tolerated.

#pragma once

#include <cstdint>

namespace ventrel {

/// `a` / `b` truncated toward zero; 0 when `b` is 0. The one quotient that does not fit wraps round.
std::int32_t SafeDiv(std::int32_t a, std::int32_t b);

/// `a` % `b` with the sign of `a`; 0 when `b` is 0.
std::int32_t SafeMod(std::int32_t a, std::int32_t b);

} // namespace ventrel
