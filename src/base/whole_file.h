// Reading and replacing whole files, without a word to the player: the callers know what to say.

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace ventrel {

/// At most `limit` bytes from the start of the file, fewer when it ends or fails before; nothing when it
/// cannot be opened. Folders, devices and pipes are no files.
std::optional<std::vector<std::byte>> readFileStart(const std::filesystem::path& file, std::size_t limit);

/// Whether the file is there and can be opened for reading and writing; it is not touched.
bool canBeRewritten(const std::filesystem::path& file);

/// Writes the content beside the file and renames it over it, so that a full disk or a crash leaves the old
/// file as it was. Keeps the old file's permissions; makes the file when it is missing, and leaves alone one
/// that is protected. Returns how many bytes could be written: all of them, or fewer and the file is
/// unchanged.
std::size_t replaceFile(const std::filesystem::path& file, std::span<const std::byte> content);

} // namespace ventrel
