// Reads replays. Strict: whatever a writer would not have written is refused, by file and line.

#pragma once

#include <filesystem>
#include <string_view>

#include "base/result.h"
#include "replay/replay.h"

namespace ventrel {

/// The whole replay. A last line without its line feed, which a full disk leaves behind, is passed over.
Result<Replay> readReplay(const std::filesystem::path& file);

/// The same from the text of one; `name` stands for the file in a failure.
Result<Replay> readReplay(std::string_view text, const std::filesystem::path& name);

} // namespace ventrel
