// The picture at the size in which it is shown.

#pragma once

#include <cstdint>
#include <span>

#include "platform/canvas/bitmap.h"

namespace ventrel {

/// Rows of 32-bit pixels that are drawn into, `pitch` pixels apart.
struct PixelRows {
    std::uint32_t* first = nullptr;
    int pitch = 0;
    Size size;
};

/// Draws the part `changed` of the picture where it lies in `area` of `target`, and returns the part of the
/// target that was drawn. At whole multiples pixels are repeated; otherwise neighbours are mixed.
Rect scalePicture(const PixelRows& target, const Rect& area, const Bitmap& picture, const Rect& changed);

} // namespace ventrel
