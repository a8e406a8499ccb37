// Pictures for the tests, and pictures as text: '#' for every pixel that is not black.

#pragma once

#include <limits>
#include <string>

#include "platform/canvas/canvas.h"

namespace ventrel {

inline constexpr Colour white = Colour::rgb(255, 255, 255);
inline constexpr int farAway = std::numeric_limits<int>::max() / 2;

inline std::string drawn(const Bitmap& picture) {
    std::string text;
    for (int i = 0; i < picture.width() * picture.height(); ++i) {
        text += picture.pixels()[static_cast<std::size_t>(i)] == 0 ? '.' : '#';
        text += (i + 1) % picture.width() == 0 ? "\n" : "";
    }
    return text;
}

/// A picture in which every pixel has another colour.
inline Bitmap patterned(Size size) {
    Bitmap picture(size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            picture.at(x, y) = static_cast<Pixel>(0x010000 * (y + 1) + 0x0100 * (x + 1) + 7);
        }
    }
    return picture;
}

} // namespace ventrel
