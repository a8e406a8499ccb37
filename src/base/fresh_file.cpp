#include "base/fresh_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <optional>

#include "base/unfinished_file.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr mode_t permissionBits = 0777;
constexpr mode_t groupBits = 0070;
constexpr int mostLinks = 40;

/// What the name stands for in the end, whether it is there or not; none for links in a circle.
std::optional<fs::path> withoutLinks(fs::path file) {
    std::error_code error;
    for (int i = 0; i < mostLinks; ++i) {
        if (!fs::is_symlink(fs::symlink_status(file, error))) {
            return file;
        }
        file = file.parent_path() / fs::read_symlink(file, error);
    }
    return std::nullopt;
}

/// Why the file must not be replaced, as the system's number; 0 when it may be, or is not there.
int whyNotReplaced(const fs::path& file) {
    struct stat status = {};
    if (::lstat(file.c_str(), &status) != 0) {
        return errno == ENOENT ? 0 : errno;
    }
    if (!S_ISREG(status.st_mode)) {
        return S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    }
    // Renaming asks the folder alone, so the file itself has to be asked first.
    return ::access(file.c_str(), W_OK) == 0 ? 0 : errno;
}

/// Gives the new file the owner and the permissions of the old one. The system's number when it cannot.
int takeAfter(const FileHandle& fresh, const struct stat& old) {
    mode_t mode = old.st_mode & permissionBits;
    struct stat made = {};
    if (::fstat(fresh.get(), &made) != 0) {
        return errno;
    }
    const bool isOurs = made.st_uid == old.st_uid;
    if (!isOurs || made.st_gid != old.st_gid) {
        if (::fchown(fresh.get(), old.st_uid, old.st_gid) != 0) {
            if (!isOurs) {
                return errno;
            }
            mode &= ~groupBits; // it has another group now, for which they were not meant
        }
    }
    return ::fchmod(fresh.get(), mode) == 0 ? 0 : errno;
}

/// Without it a crash could bring the old name back. A folder that cannot be asked does no harm: either the
/// old file or the new one is whole.
void keepNames(const fs::path& folder) {
    const FileHandle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.isOpen()) {
        ::fsync(handle.get());
    }
}

fs::path folderOf(const fs::path& file) {
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

} // namespace

Result<FreshFile> FreshFile::beside(const fs::path& file) {
    const auto target = withoutLinks(file);
    if (!target) {
        return cannotWrite(file, ELOOP);
    }
    if (const int hindrance = file.has_filename() ? whyNotReplaced(*target) : ENOENT; hindrance != 0) {
        return cannotWrite(file, hindrance);
    }
    clearUnfinishedFiles(folderOf(*target));
    UnfinishedFile unfinished = makeUnfinishedFile(folderOf(*target));
    if (unfinished.error != 0) {
        return cannotWrite(file, unfinished.error);
    }
    FreshFile fresh;
    fresh.target_ = *target;
    fresh.path_ = std::move(unfinished.path);
    fresh.handle_ = std::move(unfinished.handle);
    return fresh;
}

FreshFile::~FreshFile() {
    if (handle_.isOpen()) {
        ::unlink(path_.c_str());
    }
}

std::size_t FreshFile::write(std::span<const std::byte> content) {
    std::size_t written = 0;
    while (error_ == 0 && written < content.size()) {
        const ssize_t count = ::write(handle_.get(), content.data() + written, content.size() - written);
        written += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        if (count < 0 && errno != EINTR) {
            error_ = errno;
        }
    }
    return written;
}

Result<> FreshFile::putInPlace() {
    struct stat old = {};
    const bool isThere = ::lstat(target_.c_str(), &old) == 0;
    if (error_ == 0 && isThere) {
        error_ = takeAfter(handle_, old);
    }
    if (error_ == 0 && ::fsync(handle_.get()) != 0) {
        error_ = errno;
    }
    if (error_ == 0 && ::rename(path_.c_str(), target_.c_str()) != 0) {
        error_ = errno;
    }
    if (error_ != 0) {
        return cannotWrite(target_, error_);
    }
    handle_.close(); // all of it is on the disk by now
    keepNames(folderOf(target_));
    return {};
}

} // namespace ventrel
