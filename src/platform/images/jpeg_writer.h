// Bitmaps into JPEG files: for the pictures of films, and for large ones without sharp lines.
//
// The same picture always makes the same bytes.

#pragma once

#include <cstddef>
#include <filesystem>
#include <vector>

#include "base/result.h"
#include "platform/canvas/bitmap.h"

namespace ventrel {

/// The bytes of a JPEG file with colours at full width; `quality` is 1 to 100. None for an empty picture,
/// which the format cannot hold, or when memory runs out.
std::vector<std::byte> encodeJpeg(const Bitmap& bitmap, int quality);

/// Writes or replaces the file. Where that fails an older file stands as it was.
Result<> writeJpeg(const std::filesystem::path& file, const Bitmap& bitmap, int quality);

} // namespace ventrel
