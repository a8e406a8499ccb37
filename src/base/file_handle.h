// An open file of the system, closed at the end of its scope, and what the system says when something fails.
// Private to this room.

#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>
#include <system_error>
#include <utility>

#include "base/result.h"
#include "base/windows1252.h"

namespace ventrel {

/// Owns a descriptor; none where it is negative.
class FileHandle {
public:
    explicit FileHandle(int descriptor = -1) : descriptor_(descriptor) {}
    FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileHandle() { close(); }

    bool isOpen() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }

    /// False when the system could not keep what was written.
    bool close() {
        const int closing = std::exchange(descriptor_, -1);
        return closing < 0 || ::close(closing) == 0;
    }

private:
    int descriptor_;
};

/// The system's words for one of its error numbers, such as "Permission denied".
inline std::string systemWords(int error) {
    return std::generic_category().message(error);
}

/// The words for a file that took no more, with the system's number of the reason.
inline tl::unexpected<Failure> cannotWrite(const std::filesystem::path& file, int error) {
    return failed("The file " + pathText(file) + " cannot be written: " + systemWords(error) + ".");
}

} // namespace ventrel
