// What every reader of pictures owes to any bytes: a whole picture, or none at all.

#pragma once

#include <cstdlib>
#include <span>

#include "platform/images/image.h"

namespace ventrel {

inline int fuzzImage(const std::uint8_t* data, std::size_t size, ImageFormat format) {
    Image image;
    Bitmap bitmap;
    const std::span bytes(reinterpret_cast<const std::byte*>(data), size);
    const ImageError error = ImageLoadMemory(image, bytes, format);
    const bool isWhole = image.width > 0 && image.width <= imageSideLimit && image.height > 0 &&
                         image.height <= imageSideLimit &&
                         image.pixels.size() == std::size_t{3} * image.width * image.height;
    const bool isNone = image.pixels.empty() && image.width == 0 && image.height == 0;
    const bool isConverted = ImageToBitmap(image, bitmap) == ImageError::none;
    if (error == ImageError::none ? !isWhole || !isConverted : !isNone || isConverted) {
        std::abort();
    }
    return 0;
}

} // namespace ventrel
