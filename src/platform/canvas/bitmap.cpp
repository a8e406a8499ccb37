#include "platform/canvas/bitmap.h"

#include <cassert>

namespace ventrel {

Bitmap::Bitmap(Size size) : size_(size) {
    assert(size.width >= 0 && size.height >= 0);
    pixels_.resize(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height));
}

std::span<Pixel> Bitmap::row(int y) {
    assert(y >= 0 && y < size_.height);
    const auto width = static_cast<std::size_t>(size_.width);
    return std::span(pixels_).subspan(static_cast<std::size_t>(y) * width, width);
}

std::span<const Pixel> Bitmap::row(int y) const {
    assert(y >= 0 && y < size_.height);
    const auto width = static_cast<std::size_t>(size_.width);
    return std::span(pixels_).subspan(static_cast<std::size_t>(y) * width, width);
}

} // namespace ventrel
