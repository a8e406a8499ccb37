// The tool's way to files and terminal: what it reads has a limit, it never writes over what it reads, and no
// text of a file reaches the terminal unescaped. Failures name the file.

#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/result.h"

namespace ventrel::apt {

/// Bytes of a file that is read; a larger one is refused by name.
inline constexpr std::size_t largestSource = std::size_t{1} << 20;
inline constexpr std::size_t largestPicture = std::size_t{4} << 20;
inline constexpr std::size_t largestAirport = std::size_t{16} << 20;

/// Replaces the file, but none of `inputs`, by whatever name or link `file` reaches them.
Result<> writeFile(const std::filesystem::path& file, std::span<const std::byte> content,
                   std::span<const std::filesystem::path> inputs);

/// The file of that name below the source's folder; a link that leads out of it is refused.
Result<std::filesystem::path> fileBeside(const std::filesystem::path& source, const std::string& name);

/// Writes a text (Windows-1252) to the standard output; a full disk or a closed pipe is a failure.
Result<> print(std::string_view text);

/// Tells on the standard error what went wrong.
void complain(std::string_view text);

} // namespace ventrel::apt
