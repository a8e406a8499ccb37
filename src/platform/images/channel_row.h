// A row of pixels as picture files have them.

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/canvas/bitmap.h"

namespace ventrel {

/// Red, green and blue of every pixel, a byte each, in place of what the row held.
inline void spreadChannels(std::span<const Pixel> pixels, std::vector<std::uint8_t>& row) {
    row.clear();
    for (const Pixel pixel : pixels) {
        const Colour colour = toColour(pixel);
        row.insert(row.end(), {colour.red(), colour.green(), colour.blue()});
    }
}

} // namespace ventrel
