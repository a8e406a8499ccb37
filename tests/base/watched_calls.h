// The system's calls for files, watched by the tests of this folder, which can also make them fail.
//
// The test program has its own open, read, write, fsync and rename: they write down what happens to files
// below the watched folder, and pass everything on.

#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace ventrel {

class WatchedCalls {
public:
    /// Watches until the end of the scope; one at a time.
    explicit WatchedCalls(std::filesystem::path folder);
    ~WatchedCalls();
    WatchedCalls(const WatchedCalls&) = delete;
    WatchedCalls& operator=(const WatchedCalls&) = delete;

    std::vector<std::string> calls; ///< "fsync file", "rename", "fsync folder"

    int readError = 0;              ///< the system's number that every read fails with; 0: none
    int writeError = 0;             ///< the same of writes, after the first has taken a single byte
    std::filesystem::path layInWay; ///< what a link leads to that stands under every new name first

    const std::filesystem::path folder;
};

} // namespace ventrel
