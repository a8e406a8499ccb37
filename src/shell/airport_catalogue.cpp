#include "shell/airport_catalogue.h"

#include <algorithm>
#include <system_error>

#include "base/data_path.h"
#include "base/file_buffer.h"
#include "sim/airport_file.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t mostEntries = 512;
constexpr std::size_t longestName = airport_layout::nameSize - 1;
constexpr std::string_view airportExtension = ".apt";

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isAirportName(const fs::path& file) {
    return std::ranges::equal(file.extension().string(), airportExtension, {}, lowered);
}

/// The airport files of the folder, in the order of their names, so that the same folder gives the same list.
std::vector<fs::path> airportFiles(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        std::error_code ignored;
        if (isAirportName(entry->path()) && !entry->is_directory(ignored)) {
            files.push_back(entry->path());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

bool nameComesFirst(const CatalogueEntry& a, const CatalogueEntry& b) {
    const auto asByte = [](char c) { return static_cast<unsigned char>(c); };
    return std::ranges::lexicographical_compare(a.name, b.name, {}, asByte, asByte);
}

} // namespace

fs::path airportFolder(const fs::path& programFolder) {
    return DataPath(programFolder, "apt");
}

std::vector<CatalogueEntry> BuildAirportCatalogue(const fs::path& folder, int windowWidth,
                                                  const FailureReporter& report) {
    std::vector<CatalogueEntry> catalogue;
    for (const fs::path& file : airportFiles(folder)) {
        FileBuffer start;
        if (catalogue.size() == mostEntries) {
            break;
        }
        if (!start.Load(file, false, airport_layout::headerSize, report)) {
            continue;
        }
        const auto header = readAirportHeader(start.data);
        if (header && header->isAirportFile() && header->layoutWidth == windowWidth) {
            catalogue.push_back({header->name.substr(0, longestName), file.filename()});
        }
    }
    std::stable_sort(catalogue.begin(), catalogue.end(), nameComesFirst);
    return catalogue;
}

} // namespace ventrel
