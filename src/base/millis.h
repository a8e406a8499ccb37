// Real time, for everything that moves by itself. The game clock has a unit of its own.

#pragma once

#include <cstdint>

namespace ventrel {

/// Milliseconds; as a point in time, since some moment before the program's first call.
using Millis = std::int64_t;

} // namespace ventrel
