// The airports that can be played at the present window size, sorted by name.

#pragma once

#include <array>
#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "base/failure.h"

namespace ventrel {

struct CatalogueEntry {
    std::string name; ///< as the file's header has it, at most 31 characters
    std::filesystem::path file;
};

struct AirportCatalogue {
    std::vector<CatalogueEntry> entries; ///< at most 512, sorted by name
    /// That there are more, and the files that cannot be read or are too short (texts 1 and 4).
    std::vector<std::string> troubles;
    std::vector<std::filesystem::path> refused; ///< unreadable, too short or no airport; they may be mended
};

/// The program's folder of airport files.
std::filesystem::path airportFolder(const std::filesystem::path& programFolder);

/// The airports of both folders. A file of the player's own takes the place of the program's file of that
/// name. A file that is no airport, or made for another window width, is passed over in silence.
AirportCatalogue BuildAirportCatalogue(const std::filesystem::path& programsOwn,
                                       const std::filesystem::path& playersOwn, int windowWidth);

/// The catalogue of two folders at one window size. Folders of thousands of files take a while: they are
/// looked into anew only when files have come, gone or been renamed, or a refused one has been written.
class AirportShelf {
public:
    AirportShelf(std::filesystem::path programsOwn, std::filesystem::path playersOwn, int windowWidth);

    /// As the folders are now, at the time `now` of the files' clock.
    const AirportCatalogue&
    catalogue(std::filesystem::file_time_type now = std::filesystem::file_time_type::clock::now());

private:
    /// When a file or folder was changed last; none where it is missing.
    using Stamp = std::optional<std::filesystem::file_time_type>;

    static Stamp stampOf(const std::filesystem::path& file);
    std::vector<Stamp> stamps() const;

    const std::array<std::filesystem::path, 2> folders_;
    const int windowWidth_;
    AirportCatalogue catalogue_;
    std::vector<Stamp> stamps_; ///< of the folders and the refused files when they were read; empty: never
};

} // namespace ventrel
