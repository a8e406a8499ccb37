// The airports that can be played at the present window size, sorted by name.

#pragma once

#include <filesystem>
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
    std::vector<std::string> troubles;   ///< of files that cannot be read or are too short (texts 1 and 4)
};

/// The program's folder of airport files.
std::filesystem::path airportFolder(const std::filesystem::path& programFolder);

/// The airports of both folders. A file of the player's own takes the place of the program's file of that
/// name. A file that is no airport, or made for another window width, is passed over in silence.
AirportCatalogue BuildAirportCatalogue(const std::filesystem::path& programsOwn,
                                       const std::filesystem::path& playersOwn, int windowWidth);

} // namespace ventrel
