// How things in a film move from one place to another.

#pragma once

#include <algorithm>
#include <cmath>

namespace ventrel::art {

/// How far a moment lies between two others: 0 before them, 1 after them.
inline double progress(double moment, double from, double to) {
    return std::clamp((moment - from) / (to - from), 0.0, 1.0);
}

/// Starts and ends softly.
inline double eased(double part) {
    return part * part * (3 - 2 * part);
}

/// The same between two moments.
inline double eased(double moment, double from, double to) {
    return eased(progress(moment, from, to));
}

inline double between(double from, double to, double part) {
    return from + (to - from) * part;
}

} // namespace ventrel::art
