// Moments at which something wants to be done, where none is never.

#pragma once

#include <algorithm>
#include <optional>

#include "platform/devices/backend.h"

namespace ventrel {

/// The earlier of two moments.
inline std::optional<Millis> earlier(std::optional<Millis> a, std::optional<Millis> b) {
    return a && b ? std::min(*a, *b) : a ? a : b;
}

} // namespace ventrel
