#include "tools/art/space.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ventrel::art {

namespace {

constexpr double nearest = 1; // metres in front of the camera

struct Heading {
    double east;
    double north;
};

Heading headingOf(double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {std::sin(angle), std::cos(angle)};
}

/// What of a shape lies in front of the camera.
std::vector<Vec> cutAtCamera(const Camera& camera, std::span<const Vec> corners) {
    std::vector<Vec> kept;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const Vec& from = corners[i];
        const Vec& to = corners[(i + 1) % corners.size()];
        const double fromDepth = camera.depth(from) - nearest;
        const double toDepth = camera.depth(to) - nearest;
        if (fromDepth >= 0) {
            kept.push_back(from);
        }
        if ((fromDepth < 0) != (toDepth < 0)) {
            kept.push_back(from + (to - from) * (fromDepth / (fromDepth - toDepth)));
        }
    }
    return kept;
}

} // namespace

Vec cross(const Vec& a, const Vec& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double length(const Vec& vec) {
    return std::sqrt(dot(vec, vec));
}

Vec unit(const Vec& vec) {
    const double size = length(vec);
    return size > 0 ? vec * (1 / size) : vec;
}

double Camera::depth(const Vec& point) const {
    const Heading ahead = headingOf(bearing);
    return (point.x - at.x) * ahead.east + (point.y - at.y) * ahead.north;
}

std::optional<Spot> Camera::seen(const Vec& point) const {
    const double distance = depth(point);
    if (distance < nearest * 0.99) {
        return std::nullopt;
    }
    const Heading ahead = headingOf(bearing);
    const double right = (point.x - at.x) * ahead.north - (point.y - at.y) * ahead.east;
    return Spot{middle.x + focal * right / distance, middle.y - focal * (point.z - at.z) / distance};
}

double Camera::scaleAt(const Vec& point) const {
    return focal / std::max(depth(point), nearest);
}

std::string seenPath(const Camera& camera, std::span<const Vec> corners) {
    std::string data;
    for (const Vec& corner : cutAtCamera(camera, corners)) {
        const auto spot = camera.seen(corner);
        if (spot) {
            data += (data.empty() ? 'M' : 'L') + number(spot->x) + ',' + number(spot->y) + ' ';
        }
    }
    return data.empty() ? data : data + 'z';
}

} // namespace ventrel::art
