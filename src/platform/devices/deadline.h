// Moments at which something wants to be done, where none is never, and the steps of what moves evenly.

#pragma once

#include <algorithm>
#include <optional>

#include "platform/devices/backend.h"

namespace ventrel {

/// The earlier of two moments.
inline std::optional<Millis> earlier(std::optional<Millis> a, std::optional<Millis> b) {
    return a && b ? std::min(*a, *b) : a ? a : b;
}

/// Takes the next step of something that moves one every `stepTime`, if it is due; `last` is when the latest
/// one was. The screen shows each picture for `frameTime`: so far back, and no further, steps that were
/// missed are still due.
inline bool takeStep(Millis& last, Millis stepTime, Millis now, Millis frameTime) {
    if (now < last + stepTime) {
        return false;
    }
    last = std::max(last + stepTime, now - frameTime);
    return true;
}

} // namespace ventrel
