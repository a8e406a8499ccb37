// Where this program lies on the machine, and where it may keep what it writes.

#pragma once

#include <filesystem>
#include <string_view>

namespace ventrel {

/// The running executable's own file. `invokedAs`, the program's first word, stands in where the system does
/// not tell.
std::filesystem::path executableFile(const char* invokedAs);

/// The folder in which the player's own files of this program go (the XDG data folder); not made here.
std::filesystem::path userDataFolder(std::string_view program);

/// `name` beside the program, or in the player's data folder, which is made, where the program's folder
/// cannot be written.
std::filesystem::path writableFile(const std::filesystem::path& programFolder, std::string_view program,
                                   std::string_view name);

} // namespace ventrel
