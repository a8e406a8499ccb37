// Colours as light, and the evening's light that falls on everything out of doors.

#pragma once

#include <string>

#include "tools/art/space.h"

namespace ventrel::art {

/// Parts of full brightness.
struct Tint {
    double red = 0;
    double green = 0;
    double blue = 0;

    constexpr Tint operator*(double factor) const { return {red * factor, green * factor, blue * factor}; }
    constexpr Tint operator*(const Tint& other) const {
        return {red * other.red, green * other.green, blue * other.blue};
    }
    constexpr Tint operator+(const Tint& other) const {
        return {red + other.red, green + other.green, blue + other.blue};
    }
};

constexpr Tint tint(unsigned hex) {
    return {double(hex >> 16 & 0xFF) / 255, double(hex >> 8 & 0xFF) / 255, double(hex & 0xFF) / 255};
}

constexpr Tint mixed(const Tint& from, const Tint& to, double part) {
    return from * (1 - part) + to * part;
}

/// As it is written into a drawing; what is too bright is white.
std::string hex(const Tint& colour);

/// The evening: low sun in the west, a bright sky above it, dark ground.
struct Daylight {
    Vec towardsSun; ///< of length 1
    Tint sun;
    Tint sky;    ///< from above
    Tint ground; ///< thrown back from below
};

inline constexpr double sunBearing = 268; // degrees
inline constexpr Daylight evening{
    .towardsSun = {-0.9416, -0.3013, 0.1507},
    .sun = {1.18, 0.72, 0.42},
    .sky = {0.38, 0.45, 0.60},
    .ground = {0.40, 0.34, 0.33},
};

/// How a surface that faces `normal` (of length 1) looks from `towardsEye`; `shine` is 0 for dull paint, 1
/// for polish.
Tint lit(const Daylight& light, const Tint& paint, const Vec& normal, const Vec& towardsEye, double shine);

} // namespace ventrel::art
