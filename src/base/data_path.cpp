#include "base/data_path.h"

#include <string>
#include <system_error>

#include "base/letters.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

/// The second one so that no name can smuggle it in and lead out of the folder.
constexpr std::string_view separators = "\\/";

/// The entry of `folder` under that name, whatever its case; the name as given when there is none.
fs::path entryOf(const fs::path& folder, std::string_view name) {
    fs::path exact = folder / name;
    std::error_code error;
    if (fs::exists(exact, error)) {
        return exact;
    }
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        if (sameWithoutCase(entry->path().filename().string(), name)) {
            return entry->path();
        }
    }
    return exact;
}

} // namespace

fs::path DataPath(const fs::path& programFolder, std::string_view relative) {
    fs::path path = programFolder;
    while (!relative.empty()) {
        const std::size_t length = std::min(relative.find_first_of(separators), relative.size());
        const std::string_view name = relative.substr(0, length);
        relative.remove_prefix(std::min(length + 1, relative.size()));
        const bool leadsAway = name.empty() || name == "." || name == "..";
        if (!leadsAway) {
            path = entryOf(path, name);
        }
    }
    return path;
}

} // namespace ventrel
