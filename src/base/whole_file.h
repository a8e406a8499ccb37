// Reading and replacing whole files, without a word to the player: the callers know what to say.

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace ventrel {

/// At most `limit` bytes from the start of the file; nothing when it cannot be opened or is no file.
std::optional<std::vector<std::byte>> readFileStart(const std::filesystem::path& file, std::size_t limit);

/// Writes the content beside the file and renames it over it, so that a full disk or a crash leaves the old
/// file as it was. Keeps the old file's permissions; makes the file when it is missing. Returns how many
/// bytes could be written: all of them, or fewer and the file is unchanged.
std::size_t replaceFile(const std::filesystem::path& file, std::span<const std::byte> content);

} // namespace ventrel
