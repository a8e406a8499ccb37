#include "platform/machine/places.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <system_error>

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr mode_t ownerOnlyFolder = 0700;

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

fs::path dataHome() {
    const fs::path data = fromEnvironment("XDG_DATA_HOME");
    const fs::path home = data.empty() ? homeFolder() : fs::path();
    return home.empty() ? data : home / ".local/share";
}

} // namespace

fs::path executableFile(const char* invokedAs) {
    std::error_code error;
    const fs::path file = fs::read_symlink("/proc/self/exe", error);
    return error ? fs::absolute(invokedAs, error) : file;
}

fs::path userDataFolder(std::string_view program) {
    const fs::path data = dataHome();
    if (data.empty()) {
        return {};
    }
    const fs::path folder = data / program;
    std::error_code error;
    fs::create_directories(data, error);
    ::mkdir(folder.c_str(), ownerOnlyFolder);
    return fs::is_directory(folder, error) ? folder : fs::path();
}

fs::path playerDataFolder(const fs::path& programFolder, std::string_view program) {
    const bool isPortable = ::access(programFolder.c_str(), W_OK) == 0;
    return isPortable ? programFolder : userDataFolder(program);
}

} // namespace ventrel
