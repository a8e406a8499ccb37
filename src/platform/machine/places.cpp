#include "platform/machine/places.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <system_error>

#include "base/whole_file.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr mode_t ownerOnlyFolder = 0700;
constexpr std::size_t largestBrought = std::size_t{1} << 20; // bytes; what the options may have

/// The path in an environment variable; empty when it is not set, and for one below the current folder.
fs::path fromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    const fs::path path = value == nullptr ? fs::path() : fs::path(value);
    return path.is_absolute() ? path : fs::path();
}

/// The player's home as the environment has it, else as the system's list of users has it.
fs::path homeFolder() {
    fs::path home = fromEnvironment("HOME");
    if (!home.empty()) {
        return home;
    }
    const passwd* user = ::getpwuid(::geteuid());
    const fs::path listed = user == nullptr || user->pw_dir == nullptr ? fs::path() : fs::path(user->pw_dir);
    return listed.is_absolute() ? listed : fs::path();
}

/// A base directory of the player's: as its variable says, or else below the home.
fs::path baseDirectory(const char* variable, std::string_view belowHome) {
    const fs::path wanted = fromEnvironment(variable);
    const fs::path home = wanted.empty() ? homeFolder() : fs::path();
    return home.empty() ? wanted : home / belowHome;
}

/// The folder of that name there, made when it is missing; empty when that cannot be.
fs::path ownFolder(const fs::path& base, std::string_view program) {
    if (base.empty()) {
        return {};
    }
    const fs::path folder = base / program;
    std::error_code error;
    fs::create_directories(base, error);
    ::mkdir(folder.c_str(), ownerOnlyFolder);
    return fs::is_directory(folder, error) ? folder : fs::path();
}

/// Whether the program's data lie there.
bool holdsData(const fs::path& folder) {
    constexpr std::string_view pictures = "grf";
    std::error_code error;
    return fs::is_directory(folder / pictures, error);
}

} // namespace

fs::path executableFile(const char* invokedAs) {
    std::error_code error;
    const fs::path file = fs::read_symlink("/proc/self/exe", error);
    return error ? fs::absolute(invokedAs, error) : file;
}

fs::path programDataFolder(const fs::path& executable, std::string_view program) {
    constexpr std::array shared{std::string_view("share"), std::string_view("share/games")};
    fs::path own = executable.parent_path();
    if (!holdsData(own)) {
        for (const std::string_view folder : shared) {
            fs::path installed = own.parent_path() / folder / program;
            if (holdsData(installed)) {
                return installed;
            }
        }
    }
    return own;
}

fs::path userDataFolder(std::string_view program) {
    return ownFolder(baseDirectory("XDG_DATA_HOME", ".local/share"), program);
}

fs::path userConfigFolder(std::string_view program) {
    return ownFolder(baseDirectory("XDG_CONFIG_HOME", ".config"), program);
}

PlayerPlaces playerPlaces(const fs::path& executable, const fs::path& programData, std::string_view program) {
    const bool isTogether = executable.parent_path() == programData;
    if (isTogether && ::access(programData.c_str(), W_OK) == 0) {
        return {programData, programData};
    }
    return {userConfigFolder(program), userDataFolder(program)};
}

void bringFile(const fs::path& from, const fs::path& to) {
    std::error_code error;
    if (from == to || !fs::is_regular_file(from, error) || fs::exists(fs::symlink_status(to, error))) {
        return;
    }
    fs::rename(from, to, error);
    if (error) { // another disk, and half a copy would be taken for the whole from then on
        const auto content = readWholeFile(from, largestBrought);
        if (content && replaceFile(to, *content)) {
            fs::remove(from, error);
        }
    }
}

} // namespace ventrel
