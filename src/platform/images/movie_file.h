// A movie file: Motion JPEG in a RIFF container of form "AVI ", walked by its chunks.
//
// Only what a picture needs is read: the frame rate of the main header, the format of the first video stream,
// and that stream's chunks in the "movi" list, one JPEG each. An index, sound and unknown chunks are passed
// over. Whatever the bytes are, reading ends with a list of frames inside the file or with none.
// Formats: https://learn.microsoft.com/windows/win32/directshow/avi-riff-file-reference.

#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "base/geometry.h"
#include "platform/canvas/bitmap.h"

namespace ventrel {

struct MovieFile {
    Size size;                             ///< of every frame, pixels
    std::chrono::microseconds frameTime{}; ///< how long each is shown, above 0
    std::vector<std::byte> bytes;          ///< the whole file
    struct Frame {
        std::size_t offset = 0; ///< in `bytes`
        std::size_t size = 0;   ///< 0: the picture before it stays
    };
    std::vector<Frame> frames; ///< at least one

    std::chrono::microseconds length() const { return frameTime * static_cast<long>(frames.size()); }
};

/// Nothing when it is no such movie, or a damaged one.
std::optional<MovieFile> readMovie(std::vector<std::byte> bytes);

/// Nothing for a frame that cannot be decoded, has another size than the movie, or shows nothing new.
std::optional<Bitmap> decodeFrame(const MovieFile& movie, std::size_t frame);

} // namespace ventrel
