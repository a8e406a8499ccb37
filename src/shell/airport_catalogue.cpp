#include "shell/airport_catalogue.h"

#include <algorithm>
#include <map>
#include <system_error>

#include "base/data_path.h"
#include "base/file_buffer.h"
#include "base/letters.h"
#include "sim/airport_file.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t mostEntries = 512;
constexpr std::size_t longestName = airport_layout::nameSize - 1;
constexpr std::string_view airportExtension = ".apt";

bool isAirportName(const fs::path& file) {
    return sameWithoutCase(file.extension().string(), airportExtension);
}

/// Adds the airport files of the folder by their names, in place of those that are there.
void addAirportFiles(std::map<fs::path, fs::path>& files, const fs::path& folder) {
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        std::error_code ignored;
        if (isAirportName(entry->path()) && !entry->is_directory(ignored)) {
            files[entry->path().filename()] = entry->path();
        }
    }
}

bool nameComesFirst(const CatalogueEntry& a, const CatalogueEntry& b) {
    const auto asByte = [](char c) { return static_cast<unsigned char>(c); };
    return std::ranges::lexicographical_compare(a.name, b.name, {}, asByte, asByte);
}

} // namespace

fs::path airportFolder(const fs::path& programFolder) {
    return DataPath(programFolder, "apt");
}

AirportCatalogue BuildAirportCatalogue(const fs::path& programsOwn, const fs::path& playersOwn,
                                       int windowWidth) {
    // In the order of their names, so that the same folders give the same list.
    std::map<fs::path, fs::path> files;
    addAirportFiles(files, programsOwn);
    addAirportFiles(files, playersOwn);
    AirportCatalogue catalogue;
    for (const auto& [name, file] : files) {
        FileBuffer start;
        if (catalogue.entries.size() == mostEntries) {
            break;
        }
        if (const auto read = start.load(file, false, airport_layout::headerSize); !read) {
            catalogue.troubles.push_back(read.error().text);
            continue;
        }
        const auto header = readAirportHeader(start.data);
        if (header && header->isAirportFile() && header->layoutWidth == windowWidth) {
            catalogue.entries.push_back({header->name.substr(0, longestName), file});
        }
    }
    std::ranges::stable_sort(catalogue.entries, nameComesFirst);
    return catalogue;
}

} // namespace ventrel
