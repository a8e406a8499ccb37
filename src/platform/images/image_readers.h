// The readers behind image.h, one file a format.
//
// Each is given all bytes of a file and an empty image to fill. When it fails, what it left in the image is
// thrown away by the caller.

#pragma once

#include "base/bytes.h"
#include "platform/images/image.h"

namespace ventrel {

constexpr bool isPictureSize(std::int64_t width, std::int64_t height) {
    return width > 0 && height > 0 && width <= imageSideLimit && height <= imageSideLimit;
}

ImageError readJpeg(ByteView data, Image& image);
ImageError readPng(ByteView data, Image& image);
/// Run-length coded pictures of 256 colours or of 24 bits.
ImageError readPcx(ByteView data, Image& image);
/// Uncompressed pictures of every depth that a device-independent bitmap may have here (dib.h).
ImageError readBmp(ByteView data, Image& image);

} // namespace ventrel
