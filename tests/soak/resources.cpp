#include "tests/soak/resources.h"

#include <malloc.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#ifdef VENTREL_SANITIZED
/// Of the sanitizer's library, whose header not every compiler brings along.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace ventrel {

std::size_t bytesInUse() {
#ifdef VENTREL_SANITIZED
    return ::__sanitizer_get_current_allocated_bytes();
#else
    const auto used = ::mallinfo2();
    return used.uordblks + used.hblkhd;
#endif
}

std::size_t residentBytes() {
    std::size_t all = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

int openFiles() {
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return static_cast<int>(std::distance(begin(files), end(files))) - 1; // without the iterator's own
}

} // namespace ventrel
