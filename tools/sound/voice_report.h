// The table of all voices in docs/voices.md.

#pragma once

#include <filesystem>
#include <string>

#include "base/result.h"
#include "tools/sound/recogniser.h"

namespace ventrel::sound {

/// The table's first two lines.
std::string reportHeader();

/// A voice's line: who speaks, how loud its snippets are, how well it was understood. The folder of snippets
/// has the recipe's name.
Result<std::string> reportLine(const std::filesystem::path& recipe, const std::filesystem::path& voice,
                               const Understood& understood);

/// Puts the table into the document, between its two marks, and leaves the rest as it is.
Result<> replaceTable(const std::filesystem::path& document, const std::string& table);

} // namespace ventrel::sound
