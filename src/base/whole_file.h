// Reading and replacing whole files. A failure names the file and the system's reason.

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>

#include "base/bytes.h"
#include "base/result.h"

namespace ventrel {

/// At most `limit` bytes from the start of the file, fewer when it ends before. Folders, devices and pipes
/// are no files.
Result<Bytes> readFileStart(const std::filesystem::path& file, std::size_t limit);

/// The whole file, which is refused by name when it holds more than `limit` bytes.
Result<Bytes> readWholeFile(const std::filesystem::path& file, std::size_t limit);

/// The same, where it may well be that there is no such file: nothing then.
Result<std::optional<Bytes>> readWholeFileIfThere(const std::filesystem::path& file, std::size_t limit);

/// The words for a file that is too large to be read.
Failure tooLarge(const std::filesystem::path& file, std::size_t limit);

/// Whether the file is there and can be opened for reading and writing; it is not touched.
bool canBeRewritten(const std::filesystem::path& file);

/// Writes the content beside the file and renames it over it (see FreshFile), making the file when it is
/// missing. After a failure the file is as it was.
Result<> replaceFile(const std::filesystem::path& file, std::span<const std::byte> content);

} // namespace ventrel
