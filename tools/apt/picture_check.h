// A look at the head of an embedded JPEG: whether it is one, and how large. Follows ITU-T T.81, annex B.

#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "base/geometry.h"

namespace ventrel::apt {

/// The size that the picture's frame header states; nothing when these are not the bytes of a JPEG.
std::optional<Size> jpegSize(std::span<const std::byte> bytes);

} // namespace ventrel::apt
