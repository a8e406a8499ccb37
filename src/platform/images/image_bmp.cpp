#include <algorithm>

#include "platform/canvas/dib.h"
#include "platform/images/image_readers.h"

namespace ventrel {

namespace {

/// The file's own header: "BM", the file's size, and where the pixels start (which counts from the file's
/// start). The device-independent bitmap follows it.
constexpr std::size_t fileHeaderSize = 14;
constexpr std::size_t bitsOffsetPlace = 10;

void fill(Image& image, const Bitmap& bitmap) {
    image.width = static_cast<std::uint32_t>(bitmap.width());
    image.height = static_cast<std::uint32_t>(bitmap.height());
    image.pixels.reserve(bitmap.pixels().size() * 3);
    for (const Pixel pixel : bitmap.pixels()) {
        const Colour colour = toColour(pixel);
        image.pixels.insert(image.pixels.end(), {colour.red(), colour.green(), colour.blue()});
    }
}

} // namespace

ImageError readBmp(ByteView data, Image& image) {
    if (data.size() < fileHeaderSize || !isTag(data, 0, "BM")) {
        return ImageError::wrongFormat;
    }
    const auto dib = data.subspan(fileHeaderSize);
    const auto size = DibPictureSize(dib);
    if (!size || size->width <= 0 || size->height <= 0) {
        return ImageError::damaged;
    }
    if (!isPictureSize(size->width, size->height)) {
        return ImageError::tooLarge;
    }
    const auto bits = data.subspan(std::min<std::size_t>(numberAt(data, bitsOffsetPlace), data.size()));
    const auto bitmap = CreateBitmapFromDib(dib, bits);
    if (!bitmap) {
        return ImageError::damaged;
    }
    fill(image, *bitmap);
    return ImageError::none;
}

} // namespace ventrel
