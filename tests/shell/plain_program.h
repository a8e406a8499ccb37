// A program folder without art: pictures of one colour, which are small and quickly read.

#pragma once

#include <filesystem>

namespace ventrel {

/// Fills the folder; airspaces and fonts are the real ones, as links.
void makePlainProgram(const std::filesystem::path& folder);

} // namespace ventrel
