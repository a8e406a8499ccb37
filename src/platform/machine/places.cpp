#include "platform/machine/places.h"

#include <unistd.h>

#include <cstdlib>
#include <system_error>

namespace ventrel {

namespace fs = std::filesystem;

namespace {

/// The value of an environment variable; empty when it is not set.
fs::path fromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? fs::path() : fs::path(value);
}

} // namespace

fs::path executableFile(const char* invokedAs) {
    std::error_code error;
    const fs::path file = fs::read_symlink("/proc/self/exe", error);
    return error ? fs::absolute(invokedAs, error) : file;
}

fs::path userDataFolder(std::string_view program) {
    const fs::path data = fromEnvironment("XDG_DATA_HOME");
    return (data.is_absolute() ? data : fromEnvironment("HOME") / ".local/share") / program;
}

fs::path writableFile(const fs::path& programFolder, std::string_view program, std::string_view name) {
    if (access(programFolder.c_str(), W_OK) == 0) {
        return programFolder / name;
    }
    const fs::path folder = userDataFolder(program);
    std::error_code error; // a folder that cannot be made shows when the file is written
    fs::create_directories(folder, error);
    return folder / name;
}

} // namespace ventrel
