#include "tools/chart/noise.h"

#include <array>
#include <cmath>

#include "tools/chart/outline.h"
#include "tools/chart/plane.h"

namespace ventrel::chart {

namespace {

/// A well-mixed number for every corner of the lattice.
std::uint32_t scrambled(std::int32_t x, std::int32_t y, std::uint32_t seed) {
    std::uint32_t h = static_cast<std::uint32_t>(x) * 0x9E3779B1U +
                      static_cast<std::uint32_t>(y) * 0x85EBCA77U + seed * 0xC2B2AE3DU;
    h = (h ^ (h >> 15U)) * 0x2C1B3C6DU;
    h = (h ^ (h >> 12U)) * 0x297A2D39U;
    return h ^ (h >> 15U);
}

struct Slope {
    double x;
    double y;
};
/// The same length in every direction, so that no grain shows.
constexpr double gentle = 0.38268343;
constexpr double middling = 0.70710678;
constexpr double steep = 0.92387953;
constexpr std::array<Slope, 16> slopes{{{1, 0},
                                        {steep, gentle},
                                        {middling, middling},
                                        {gentle, steep},
                                        {0, 1},
                                        {-gentle, steep},
                                        {-middling, middling},
                                        {-steep, gentle},
                                        {-1, 0},
                                        {-steep, -gentle},
                                        {-middling, -middling},
                                        {-gentle, -steep},
                                        {0, -1},
                                        {gentle, -steep},
                                        {middling, -middling},
                                        {steep, -gentle}}};

/// What the corner's slope adds at that offset from it.
double rise(std::int32_t cornerX, std::int32_t cornerY, double x, double y, std::uint32_t seed) {
    const Slope slope = slopes[scrambled(cornerX, cornerY, seed) % slopes.size()];
    return slope.x * x + slope.y * y;
}

std::int32_t wholeBelow(double value) {
    const auto whole = static_cast<std::int32_t>(value);
    return value < whole ? whole - 1 : whole;
}

double eased(double t) {
    return t * t * t * (t * (t * 6 - 15) + 10);
}

/// The next layer's place: turned and shrunk, so that the lattices of the layers don't fall together.
Spot nextLayer(Spot place) {
    constexpr double across = 1.62; // together a turn by 37 degrees, and twice the scale
    constexpr double down = 1.22;
    return {place.x * across - place.y * down, place.x * down + place.y * across};
}

} // namespace

double noise(double x, double y, std::uint32_t seed) {
    constexpr double toUnit = 1.5; // what brings the sum near 1
    const std::int32_t column = wholeBelow(x);
    const std::int32_t line = wholeBelow(y);
    const double dx = x - column;
    const double dy = y - line;
    const double across = eased(dx);
    const double upper =
        mixed(rise(column, line, dx, dy, seed), rise(column + 1, line, dx - 1, dy, seed), across);
    const double lower = mixed(rise(column, line + 1, dx, dy - 1, seed),
                               rise(column + 1, line + 1, dx - 1, dy - 1, seed), across);
    return toUnit * mixed(upper, lower, eased(dy));
}

double fractalNoise(double x, double y, int layers, std::uint32_t seed) {
    Spot place{x, y};
    double sum = 0;
    double strength = 0.5;
    for (int layer = 0; layer < layers; ++layer) {
        sum += strength * noise(place.x, place.y, seed + static_cast<std::uint32_t>(layer));
        place = nextLayer(place);
        strength /= 2;
    }
    return sum;
}

double crestedNoise(double x, double y, int layers, std::uint32_t seed) {
    Spot place{x, y};
    double sum = 0;
    double strength = 0.5;
    for (int layer = 0; layer < layers; ++layer) {
        const double crest = 1 - std::abs(noise(place.x, place.y, seed + static_cast<std::uint32_t>(layer)));
        sum += strength * crest * crest;
        place = nextLayer(place);
        strength /= 2;
    }
    return sum;
}

} // namespace ventrel::chart
