// A folder for readers that want a file, gone with the run.

#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <string_view>

#include <unistd.h>

namespace ventrel {

class ScratchFolder {
public:
    ScratchFolder() { std::filesystem::create_directories(path); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder() { std::filesystem::remove_all(path); }

    /// Writes a file of that name, and tells where it is.
    std::filesystem::path put(const std::string& name, std::string_view content) const {
        const std::filesystem::path file = path / name;
        std::ofstream(file, std::ios::binary) << content;
        return file;
    }

    const std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("ventrel-fuzz-" + std::to_string(::getpid()));
};

} // namespace ventrel
