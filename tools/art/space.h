// Space in metres, and the camera through which a drawing shows it: x to the east, y to the north, z up.

#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "tools/art/svg.h"

namespace ventrel::art {

struct Vec {
    double x = 0;
    double y = 0;
    double z = 0;

    constexpr Vec operator+(const Vec& other) const { return {x + other.x, y + other.y, z + other.z}; }
    constexpr Vec operator-(const Vec& other) const { return {x - other.x, y - other.y, z - other.z}; }
    constexpr Vec operator*(double factor) const { return {x * factor, y * factor, z * factor}; }
};

constexpr double dot(const Vec& a, const Vec& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vec cross(const Vec& a, const Vec& b);
double length(const Vec& vec);
/// The same direction, one metre long; a vector without length stays.
Vec unit(const Vec& vec);

/// Always level: what is upright in space is upright in the picture.
struct Camera {
    Vec at;
    double bearing = 0; ///< degrees clockwise from north
    double focal = 0;   ///< pixels to which a metre shrinks at a metre's distance
    Spot middle;        ///< where the bearing meets the horizon

    /// How far in front a point lies; negative behind.
    double depth(const Vec& point) const;
    /// Where it is seen; nothing for what lies behind.
    std::optional<Spot> seen(const Vec& point) const;
    /// How many pixels a length at that point takes.
    double scaleAt(const Vec& point) const;
};

/// The outline of a flat shape as path data, cut where it reaches behind the camera; empty when nothing is
/// left.
std::string seenPath(const Camera& camera, std::span<const Vec> corners);

} // namespace ventrel::art
