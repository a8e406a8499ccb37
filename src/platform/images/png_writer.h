// Bitmaps into PNG files: for pictures that the program and its tools keep.
//
// The same picture always makes the same bytes: no date and no name goes into them.

#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

#include "base/result.h"
#include "platform/canvas/bitmap.h"

namespace ventrel {

/// How a picture is kept: as small as can be, or as it is, which is read many times faster.
enum class PngPacking { small, none };

/// The bytes of a 24-bit PNG file; none for an empty picture, which the format cannot hold, or when memory
/// runs out.
std::vector<std::byte> encodePng(const Bitmap& bitmap, PngPacking packing = PngPacking::small);

/// Writes or replaces the file. Where that fails an older file stands as it was.
Result<> writePng(const std::filesystem::path& file, const Bitmap& bitmap,
                  PngPacking packing = PngPacking::small);

} // namespace ventrel
