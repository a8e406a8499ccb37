// The rules of a Custom shift: how large it may be, and what it is worth.

#pragma once

#include <optional>

#include "base/string_table.h"
#include "sim/clock_seconds.h"

namespace ventrel {

inline constexpr int mostPlanes = 99;
inline constexpr int mostMinutes = 120;
inline constexpr int mostPlanesPerMinute = 4;

/// Bonus points of a shift of so many planes in so much time: the denser the traffic, the more. 0 for fewer
/// than ten minutes, for more than 100 seconds a plane, and without planes.
int bonusFor(int planes, ClockSeconds seconds);

/// The text that refuses such a shift; nothing when it may be played. Numbers as typed, so 0 for no number.
std::optional<TextId> customShiftFault(unsigned planes, unsigned minutes);

} // namespace ventrel
