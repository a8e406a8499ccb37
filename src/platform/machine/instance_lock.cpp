#include "platform/machine/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace ventrel {

namespace {

constexpr int ownerOnlyFile = 0600;

/// Whether it is the player's, and, from now on, nobody else's to open.
bool isOurs(int file) {
    struct stat status = {};
    return ::fstat(file, &status) == 0 && status.st_uid == ::geteuid() && ::fchmod(file, ownerOnlyFile) == 0;
}

} // namespace

InstanceLock::InstanceLock(const std::filesystem::path& file)
    : file_(::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownerOnlyFile)) {
    isTaken_ = file_ >= 0 && isOurs(file_) && ::flock(file_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

InstanceLock::~InstanceLock() {
    if (file_ >= 0) {
        ::close(file_);
    }
}

} // namespace ventrel
