#include "base/unfinished_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <random>
#include <string_view>

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view pattern = ".xxxxxxxxxxxxxxxx.new"; // a hexadecimal digit for each x
constexpr mode_t everybody = 0666;                            // less what the player's mask takes away
constexpr int mostNames = 100;

/// A name that nobody can foresee, so that nobody can lay something there.
fs::path newNameIn(const fs::path& folder) {
    std::random_device chance;
    char name[pattern.size() + 1];
    std::snprintf(name, sizeof name, ".%08x%08x.new", chance(), chance());
    return folder / name;
}

bool isUnfinishedName(std::string_view name) {
    constexpr auto fits = [](char wanted, char c) {
        return wanted == 'x' ? (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') : c == wanted;
    };
    return std::ranges::equal(pattern, name, fits);
}

bool isHeldByAnother(const FileHandle& file) {
    return ::flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

/// Whether it is still there under a name: between its making and its locking it looks left over.
bool hasName(const FileHandle& file) {
    struct stat status = {};
    return ::fstat(file.get(), &status) == 0 && status.st_nlink > 0;
}

void clearIfLeftOver(const fs::path& path) {
    const FileHandle file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    const bool isOurs = file.isOpen() && ::fstat(file.get(), &status) == 0 && S_ISREG(status.st_mode) &&
                        status.st_uid == ::geteuid();
    if (isOurs && ::flock(file.get(), LOCK_EX | LOCK_NB) == 0) {
        ::unlink(path.c_str());
    }
}

} // namespace

UnfinishedFile makeUnfinishedFile(const fs::path& folder) {
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    UnfinishedFile file{.error = EEXIST};
    for (int i = 0; i < mostNames && file.error == EEXIST; ++i) {
        file.path = newNameIn(folder);
        file.handle = FileHandle(::open(file.path.c_str(), flags, everybody));
        if (!file.handle.isOpen()) {
            file.error = errno;
        } else if (!isHeldByAnother(file.handle) && hasName(file.handle)) {
            file.error = 0;
        }
    }
    if (file.error != 0) {
        file.handle.close();
    }
    return file;
}

void clearUnfinishedFiles(const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        if (isUnfinishedName(entry->path().filename().native())) {
            clearIfLeftOver(entry->path());
        }
    }
}

} // namespace ventrel
