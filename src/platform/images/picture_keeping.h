// What the writers of pictures do with the bytes of a file that they have made.

#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

#include "base/result.h"

namespace ventrel {

/// Writes or replaces the file. Fails, as do the writers, where there are no bytes: the format cannot hold
/// the picture, or memory has run out.
Result<> keepPicture(const std::filesystem::path& file, std::span<const std::byte> content);

} // namespace ventrel
