// Packed device-independent bitmaps: a header, a colour table and the bits, as resources and .bmp files hold
// them.
//
// Understood are the 12-byte header and those of 40 bytes and more, with 1, 4, 8, 24 or 32 bits a pixel and
// no compression, from the bottom up or from the top down. Nothing outside the given bytes is ever read.

#pragma once

#include <cstdint>
#include <optional>

#include "base/bytes.h"
#include "platform/canvas/bitmap.h"

namespace ventrel {

/// Makes a bitmap of the DIB at the start of `dib`; what follows it does not matter. None when it is cut
/// short, damaged, of another kind, or larger on a side than pictures may be (picture_limits.h).
std::optional<Bitmap> CreateBitmapFromDib(ByteView dib);

/// The same with the pixels elsewhere than behind the colour table, as a .bmp file may have them.
std::optional<Bitmap> CreateBitmapFromDib(ByteView dib, ByteView bits);

/// How many entries the colour table has; 0 when it has none or the header is cut short.
std::size_t DibColourCount(ByteView dib);

/// The size of the colour table in bytes.
std::size_t DibColourTableSize(ByteView dib);

/// The bytes from the first pixel row on; none when header and table are cut short.
ByteView DibBits(ByteView dib);

/// The size of the picture as its header states it, believable or not; none when the header is cut short or
/// not a header.
struct DibSize {
    std::int64_t width = 0;
    std::int64_t height = 0;
};
std::optional<DibSize> DibPictureSize(ByteView dib);

} // namespace ventrel
