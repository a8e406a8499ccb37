// Where this program lies on the machine, where its data lie, and where it may keep what it writes.
//
// A folder with program and data together that the player may write is a portable copy: it keeps everything
// with it. Every other program keeps to the base directories of freedesktop.org.

#pragma once

#include <filesystem>
#include <string_view>

namespace ventrel {

/// The running executable's own file. `invokedAs`, the program's first word, stands in where the system does
/// not tell.
std::filesystem::path executableFile(const char* invokedAs);

/// The folder of the program's pictures, sounds, faces and airspaces: the executable's own where they lie
/// beside it, else, after an installation, share/<program> or share/games/<program> of the folder above.
/// Where there are none it is the executable's own, so that what is missing is named there.
std::filesystem::path programDataFolder(const std::filesystem::path& executable, std::string_view program);

/// The folder of that program's name below the player's XDG data folder, made for the player alone when it is
/// missing. Empty when there is no such folder and none can be made; never one below the current folder.
std::filesystem::path userDataFolder(std::string_view program);

/// The same below the player's XDG configuration folder.
std::filesystem::path userConfigFolder(std::string_view program);

/// Folders of what the player keeps; empty for nowhere.
struct PlayerPlaces {
    std::filesystem::path options; ///< of the options file
    std::filesystem::path data;    ///< of everything else: scores, replays
};

/// The program's folder twice for a portable copy, else the player's XDG folders.
PlayerPlaces playerPlaces(const std::filesystem::path& executable, const std::filesystem::path& programData,
                          std::string_view program);

/// Brings a file from where an earlier version kept it, once: nothing when it is not there, or when there is
/// one in the new place already. A file that cannot be brought stays where it is.
void bringFile(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace ventrel
