// The two times of the game, which must never be mixed up: the game clock's seconds and real milliseconds.

#pragma once

#include <cstdint>

namespace ventrel {

/// Seconds of the game clock, from 0 at the start of a shift. One lasts a little over 400 ms of real time.
using ClockSeconds = std::int32_t;

/// Milliseconds; as a point in time, since some moment before the program's first call.
using Millis = std::int64_t;

/// The simulation acts on multiples of this many clock seconds only.
inline constexpr ClockSeconds stepInterval = 15;

} // namespace ventrel
