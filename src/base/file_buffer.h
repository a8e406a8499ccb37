// A whole file, or its first bytes, in memory, with the failure messages that go with reading and writing.

#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

#include "base/result.h"

namespace ventrel {

struct FileBuffer {
    /// Far above any file of the game; what is longer is refused.
    static constexpr std::size_t mostBytes = std::size_t{256} << 20;

    std::vector<std::byte> data;
    std::filesystem::path path; ///< the file that was loaded, or tried last
    bool loaded = false;        ///< `data` holds a file
    bool writable = false;      ///< `save` may write the buffer back

    /// Reads `size` bytes, or the whole file without a size, releasing what was held before.
    /// A failure (texts 1, 3 or 4, stop icon; or that the file is too large) leaves the buffer empty.
    Result<> load(const std::filesystem::path& file, bool mayWrite, std::optional<std::size_t> size);

    /// Writes the buffer over its file, whose length never changes; the file must exist, and the buffer must
    /// hold at least as many bytes. The new content is written beside the file and renamed over it.
    /// Fails with texts 28 or 29 and the stop icon, and without a text, as there is nothing to tell, when it
    /// is not writable.
    Result<> save();

    /// Lets go of the content; `path` stays.
    void free();
};

/// Whether the file can be opened for reading. A folder cannot.
bool FileExists(const std::filesystem::path& file);

} // namespace ventrel
