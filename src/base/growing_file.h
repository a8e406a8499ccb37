// A text file that grows line by line, each of which the system has before the call returns: what was added
// outlives the program, however that ends.

#pragma once

#include <filesystem>
#include <string_view>

#include "base/file_handle.h"
#include "base/result.h"

namespace ventrel {

class GrowingFile {
public:
    /// Makes the file, and the folder that it stands in. Fails by name, also where there is one already.
    static Result<GrowingFile> make(const std::filesystem::path& file);

    /// Adds to the end. A disk that takes only a part of it has failed.
    Result<> append(std::string_view text);

    const std::filesystem::path& path() const { return path_; }

private:
    GrowingFile(FileHandle handle, std::filesystem::path path)
        : handle_(std::move(handle)), path_(std::move(path)) {}

    FileHandle handle_;
    std::filesystem::path path_;
};

} // namespace ventrel
