// Pictures from files: decoded into plain 24-bit colour, then turned into bitmaps.
//
// Whatever the bytes are, decoding ends with a whole picture or with none, and takes no more memory than the
// largest picture needs.

#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "platform/canvas/bitmap.h"
#include "platform/canvas/picture_limits.h"

namespace ventrel {

/// What a file is said to hold; its name does not tell. The numbers are part of the interface.
enum class ImageFormat : int { jpeg = 1, png = 2, pcx = 3, bmp = 4 };

/// How a decoding ended. 0 is success.
enum class ImageError : int {
    none = 0,
    noPixels = -2,   ///< the image holds no picture
    cannotOpen = 1,  ///< missing or unreadable file
    wrongFormat = 2, ///< not of the stated format, or not a format at all
    damaged = 3,     ///< cut short, inconsistent within itself, or of a kind of the format that is not read
    tooLarge = 4,    ///< wider or higher than any picture of the program
};

/// A decoded picture: rows from the top, three bytes a pixel (red, green, blue), no padding.
struct Image {
    std::vector<std::uint8_t> pixels;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

void ImageFree(Image& image);

/// Replaces what the image held. On failure it holds nothing. Transparent pixels of a PNG are laid on black.
ImageError ImageLoadFile(Image& image, const std::filesystem::path& file, ImageFormat format);
ImageError ImageLoadMemory(Image& image, std::span<const std::byte> data, ImageFormat format);

/// Makes a bitmap of the image, which keeps its pixels. `bitmap` is untouched when there are none.
ImageError ImageToBitmap(const Image& image, Bitmap& bitmap);

} // namespace ventrel
