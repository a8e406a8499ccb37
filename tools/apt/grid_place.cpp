#include "tools/apt/grid_place.h"

#include <cmath>
#include <numbers>

#include "sim/grid.h"

namespace ventrel::apt {

namespace {

constexpr double minutesPerDegree = 60; // of latitude; one is a nautical mile

/// How many cells the place lies to the right of the grid's middle, and below it.
chart::Spot fromMiddle(const GridPlace& grid, double latitude, double longitude) {
    const double shrink = std::cos(grid.latitude * std::numbers::pi / 180);
    const double eastward = std::remainder(longitude - grid.longitude, 360.0);
    return {eastward * minutesPerDegree * shrink / grid.nauticalMilesPerCell,
            (grid.latitude - latitude) * minutesPerDegree / grid.nauticalMilesPerCell};
}

} // namespace

Cell cellOf(const GridPlace& grid, double latitude, double longitude) {
    constexpr double middle = gridSize / 2.0;
    const auto [east, south] = fromMiddle(grid, latitude, longitude);
    return {static_cast<int>(std::floor(middle + east)), static_cast<int>(std::floor(middle + south))};
}

chart::Spot spotOf(const GridPlace& grid, double latitude, double longitude) {
    const auto [east, south] = fromMiddle(grid, latitude, longitude);
    return {gridMiddle + east, gridMiddle + south};
}

} // namespace ventrel::apt
