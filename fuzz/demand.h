// What a target holds a reader to.

#pragma once

#include <cstdlib>

namespace ventrel {

/// Ends the program when that does not hold, which is how a target tells of a finding.
inline void demand(bool holds) {
    if (!holds) {
        std::abort();
    }
}

} // namespace ventrel
