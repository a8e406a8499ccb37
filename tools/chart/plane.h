// A number for every pixel of a square picture: how much of it is land, how high it lies, how far the shore
// is.

#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace ventrel::chart {

class Plane {
public:
    /// `side` is above 0.
    explicit Plane(int side, float value = 0)
        : side_(side), values_(static_cast<std::size_t>(side) * static_cast<std::size_t>(side), value) {}

    int side() const { return side_; }
    /// Both must lie inside.
    float& at(int x, int y) { return values_[index(x, y)]; }
    float at(int x, int y) const { return values_[index(x, y)]; }
    /// The same for places outside, which have the value of the nearest one inside.
    float nearest(int x, int y) const;
    /// Between the pixels' middles, which lie on whole numbers.
    float between(double x, double y) const;

    std::span<float> row(int y) {
        return std::span(values_).subspan(index(0, y), static_cast<std::size_t>(side_));
    }
    std::span<const float> row(int y) const {
        return std::span(values_).subspan(index(0, y), static_cast<std::size_t>(side_));
    }

private:
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(side_) + static_cast<std::size_t>(x);
    }

    int side_;
    std::vector<float> values_;
};

/// 0 at and below `from`, 1 at and above `to`, and smooth between them.
constexpr double smoothStep(double from, double to, double value) {
    const double part = value <= from ? 0 : value >= to ? 1 : (value - from) / (to - from);
    return part * part * (3 - 2 * part);
}

/// `a` at part 0, `b` at part 1.
constexpr double mixed(double a, double b, double part) {
    return a + (b - a) * part;
}

} // namespace ventrel::chart
