// Where this machine keeps the instruments that play the music.

#pragma once

#include <filesystem>
#include <vector>

namespace ventrel {

/// The soundfonts that may be there, the one for which the pieces were written first: in the program's own
/// folder, then below the system's data folders (XDG_DATA_HOME, XDG_DATA_DIRS; the base directories of
/// freedesktop.org).
std::vector<std::filesystem::path> soundfontCandidates(const std::filesystem::path& programFolder);

} // namespace ventrel
