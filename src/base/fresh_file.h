// A file in the making, beside the one that it will replace.
//
// It gets a name of its own that nobody else has, and only when all of it is on the disk it takes the old
// file's place: neither a full disk nor a crash leaves half of one. What a killed program has left of its own
// is cleared away when the next one is begun in that folder.

#pragma once

#include <cstddef>
#include <filesystem>
#include <span>

#include "base/file_handle.h"
#include "base/result.h"

namespace ventrel {

class FreshFile {
public:
    /// Begins the replacement of `file`, which need not be there. A link is followed: what it names is
    /// replaced, the link stays. A file that the player may not write, or may not hand back to its owner, is
    /// refused, and so is anything but a file.
    static Result<FreshFile> beside(const std::filesystem::path& file);

    FreshFile(FreshFile&&) noexcept = default;
    FreshFile& operator=(FreshFile&&) = delete;
    /// Takes away what was not put in place.
    ~FreshFile();

    /// Adds to the content. Returns how much of it the disk took.
    std::size_t write(std::span<const std::byte> content);

    /// Makes it the file, with the old one's permissions and owner. Fails, and leaves the old one, when
    /// anything since the beginning has.
    Result<> putInPlace();

private:
    FreshFile() = default;

    std::filesystem::path target_; // what is replaced, links followed
    std::filesystem::path path_;   // where it stands until then
    FileHandle handle_;
    int error_ = 0; // the system's number of the first failure
};

} // namespace ventrel
