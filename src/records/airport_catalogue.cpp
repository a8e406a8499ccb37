#include "records/airport_catalogue.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <system_error>

#include "base/data_path.h"
#include "base/file_buffer.h"
#include "base/format.h"
#include "base/letters.h"
#include "base/windows1252.h"
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

/// The text of what the list has no room for.
std::string leftOutText(const std::vector<CatalogueEntry>& leftOut) {
    return FormatText("The list of airports is full. %d are left out, from the file %s on.",
                      {static_cast<long>(leftOut.size()), pathText(leftOut.front().file)});
}

/// Two changes within this time may look like one.
constexpr std::chrono::seconds stampGrain{2};

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
    std::vector<CatalogueEntry> leftOut;
    for (const auto& [name, file] : files) {
        FileBuffer start;
        if (const auto read = start.load(file, false, airport_layout::headerSize); !read) {
            catalogue.troubles.push_back(read.error().text);
            catalogue.refused.push_back(file);
            continue;
        }
        const auto header = readAirportHeader(start.data);
        if (!header || !header->isAirportFile()) {
            catalogue.refused.push_back(file);
        } else if (header->layoutWidth == windowWidth) {
            auto& list = catalogue.entries.size() < mostEntries ? catalogue.entries : leftOut;
            list.push_back({header->name.substr(0, longestName), file});
        }
    }
    if (!leftOut.empty()) {
        catalogue.troubles.insert(catalogue.troubles.begin(), leftOutText(leftOut));
    }
    std::ranges::stable_sort(catalogue.entries, nameComesFirst);
    return catalogue;
}

AirportShelf::AirportShelf(fs::path programsOwn, fs::path playersOwn, int windowWidth)
    : folders_{std::move(programsOwn), std::move(playersOwn)}, windowWidth_(windowWidth) {}

AirportShelf::Stamp AirportShelf::stampOf(const fs::path& file) {
    std::error_code error;
    const auto time = fs::last_write_time(file, error);
    return error ? std::nullopt : std::optional(time);
}

std::vector<AirportShelf::Stamp> AirportShelf::stamps() const {
    std::vector<Stamp> stamps;
    std::ranges::transform(folders_, std::back_inserter(stamps), stampOf);
    std::ranges::transform(catalogue_.refused, std::back_inserter(stamps), stampOf);
    return stamps;
}

const AirportCatalogue& AirportShelf::catalogue(fs::file_time_type now) {
    const auto isSettled = [now](const Stamp& stamp) { return !stamp || *stamp + stampGrain < now; };
    if (stamps_.empty() || stamps_ != stamps()) {
        catalogue_ = BuildAirportCatalogue(folders_[0], folders_[1], windowWidth_);
        stamps_ = stamps();
        if (!std::ranges::all_of(stamps_, isSettled)) {
            stamps_.clear(); // what is written next may bear the same time
        }
    }
    return catalogue_;
}

} // namespace ventrel
