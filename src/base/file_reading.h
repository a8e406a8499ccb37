// The steps of reading a file, for those who must know how far it went. Private to this room.

#pragma once

#include <cstddef>
#include <filesystem>

#include "base/file_handle.h"
#include "base/whole_file.h"

namespace ventrel {

/// A file opened for reading. `error` is the system's number when it could not be.
struct OpenedFile {
    FileHandle handle;
    std::size_t length = 0; ///< in bytes, as the system tells it
    int error = 0;
};

/// Folders, devices and pipes are not opened.
OpenedFile openForReading(const std::filesystem::path& file);

/// What was read, and the system's number when it stopped before the limit and the end of the file.
struct ReadPart {
    Bytes content;
    int error = 0;
};

ReadPart readUpTo(const FileHandle& file, std::size_t limit);

} // namespace ventrel
