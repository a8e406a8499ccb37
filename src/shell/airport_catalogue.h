// The airports that can be played at the present window size, sorted by name.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/failure.h"

namespace ventrel {

struct CatalogueEntry {
    std::string name;           ///< as the file's header has it, at most 31 characters
    std::filesystem::path file; ///< within the airport folder
};

/// The folder of the airport files.
std::filesystem::path airportFolder(const std::filesystem::path& programFolder);

/// At most 512 entries. A file that cannot be read or is too short is reported (texts 1 or 4, stop icon) and
/// passed over; one that is no airport, or made for another window width, is passed over in silence.
std::vector<CatalogueEntry> BuildAirportCatalogue(const std::filesystem::path& folder, int windowWidth,
                                                  const FailureReporter& report);

} // namespace ventrel
