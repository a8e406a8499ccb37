#include "watched_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <string>
#include <utility>

namespace ventrel {
namespace {

WatchedCalls* watching = nullptr;

/// The system's own call of that name.
template <typename Call>
Call* system(const char* name) {
    return reinterpret_cast<Call*>(::dlsym(RTLD_NEXT, name));
}

bool isWatched(int file) {
    if (watching == nullptr) {
        return false;
    }
    std::error_code error;
    const auto path = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(file), error);
    return path.string().starts_with(watching->folder.string());
}

void note(const char* call) {
    if (watching != nullptr) {
        watching->calls.emplace_back(call);
    }
}

} // namespace

WatchedCalls::WatchedCalls(std::filesystem::path watched) : folder(std::move(watched)) {
    watching = this;
}

WatchedCalls::~WatchedCalls() {
    watching = nullptr;
}

} // namespace ventrel

using namespace ventrel;

extern "C" int open(const char* path, int flags, ...) {
    std::va_list list;
    va_start(list, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(list, mode_t) : 0;
    va_end(list);
    if (watching != nullptr && (flags & O_CREAT) != 0 && !watching->layInWay.empty()) {
        const auto victim = std::exchange(watching->layInWay, {});
        std::filesystem::create_symlink(victim, path);
    }
    return system<int(const char*, int, ...)>("open")(path, flags, mode);
}

extern "C" ssize_t read(int file, void* to, size_t size) {
    if (watching != nullptr && watching->readError != 0 && isWatched(file)) {
        errno = watching->readError;
        return -1;
    }
    return system<ssize_t(int, void*, size_t)>("read")(file, to, size);
}

extern "C" ssize_t write(int file, const void* from, size_t size) {
    const bool fails = watching != nullptr && watching->writeError != 0 && isWatched(file);
    if (fails && size == 1) {
        errno = watching->writeError;
        return -1;
    }
    return system<ssize_t(int, const void*, size_t)>("write")(file, from, fails ? size - 1 : size);
}

extern "C" int fsync(int file) {
    if (isWatched(file)) {
        struct stat status = {};
        const bool isFolder = ::fstat(file, &status) == 0 && S_ISDIR(status.st_mode);
        note(isFolder ? "fsync folder" : "fsync file");
    }
    return system<int(int)>("fsync")(file);
}

extern "C" int rename(const char* from, const char* to) {
    note("rename");
    return system<int(const char*, const char*)>("rename")(from, to);
}
