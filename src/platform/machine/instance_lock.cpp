#include "platform/machine/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace ventrel {

namespace {

constexpr int ownerOnly = 0600;

/// In the player's own run-time folder, or in the common one under a name that carries the player's number.
std::string lockFile(std::string_view name) {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && *runtime != '\0') {
        return (std::filesystem::path(runtime) / name).string();
    }
    return "/tmp/" + std::string(name) + "." + std::to_string(getuid());
}

} // namespace

InstanceLock::InstanceLock(std::string_view name)
    : file_(open(lockFile(name).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownerOnly)) {
    isTaken_ = file_ >= 0 && flock(file_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

InstanceLock::~InstanceLock() {
    if (file_ >= 0) {
        close(file_);
    }
}

} // namespace ventrel
