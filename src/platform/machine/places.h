// Where this program lies on the machine, and where it may keep what it writes.

#pragma once

#include <filesystem>
#include <string_view>

namespace ventrel {

/// The running executable's own file. `invokedAs`, the program's first word, stands in where the system does
/// not tell.
std::filesystem::path executableFile(const char* invokedAs);

/// The folder of that program's name below the player's XDG data folder, made for the player alone when it is
/// missing. Empty when there is no such folder and none can be made; never one below the current folder.
std::filesystem::path userDataFolder(std::string_view program);

/// Where the player's own files go (options, airspaces): the program's folder where the player may write
/// there, so that a copied folder takes them along, else the user data folder. Empty as that is.
std::filesystem::path playerDataFolder(const std::filesystem::path& programFolder, std::string_view program);

} // namespace ventrel
