// Colours while they are mixed: parts of full red, green and blue, 0 to 1.

#pragma once

#include <algorithm>
#include <cmath>

#include "platform/canvas/bitmap.h"
#include "tools/chart/plane.h"

namespace ventrel::chart {

struct Ink {
    double red = 0;
    double green = 0;
    double blue = 0;
};

constexpr Ink inkOf(Colour colour) {
    constexpr double most = 255;
    return {colour.red() / most, colour.green() / most, colour.blue() / most};
}

constexpr Ink mixed(Ink a, Ink b, double part) {
    return {mixed(a.red, b.red, part), mixed(a.green, b.green, part), mixed(a.blue, b.blue, part)};
}

/// Darker below 1, brighter above.
constexpr Ink times(Ink a, double factor) {
    return {a.red * factor, a.green * factor, a.blue * factor};
}

inline Pixel pixelOf(Ink ink) {
    const auto byte = [](double part) {
        return static_cast<unsigned>(std::lround(std::clamp(part, 0.0, 1.0) * 255));
    };
    return toPixel(Colour::rgb(byte(ink.red), byte(ink.green), byte(ink.blue)));
}

} // namespace ventrel::chart
