// From the program's own relative names to files on this machine. The only place that knows separators.

#pragma once

#include <filesystem>
#include <string_view>

namespace ventrel {

/// The file that `relative`, a name with backslashes such as "grf\bkgnd8.grf", has below the program folder:
/// as the name is given if such a file is there, else one whose name differs in case alone. Never outside the
/// program folder: "." and ".." within the name are left out.
std::filesystem::path DataPath(const std::filesystem::path& programFolder, std::string_view relative);

} // namespace ventrel
