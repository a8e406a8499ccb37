// Invented unevenness: smooth chance that is the same for the same place, on every machine.

#pragma once

#include <cstdint>

namespace ventrel::chart {

/// About -1 to 1, 0 on the average; neighbouring places have neighbouring values, those a unit apart have
/// nothing in common.
double noise(double x, double y, std::uint32_t seed);

/// Noise upon noise, each layer half as strong and of half the size of the one before; about -1 to 1.
double fractalNoise(double x, double y, int layers, std::uint32_t seed);

/// Sharp crests between wide valleys, 0 to 1.
double crestedNoise(double x, double y, int layers, std::uint32_t seed);

} // namespace ventrel::chart
