// Reading a recording: headerless, one unsigned byte a sample.

#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "base/result.h"

namespace ventrel {

/// The samples of a file. The failure names the file, or how much memory was missing (text 3).
Result<std::vector<std::uint8_t>> readRecording(const std::filesystem::path& file);

} // namespace ventrel
