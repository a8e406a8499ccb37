#include "platform/sdl/soundfont.h"

#include <array>
#include <cstdlib>
#include <string_view>

namespace ventrel {

namespace fs = std::filesystem;

namespace {

/// The pieces are balanced for the first; any General MIDI font plays them.
constexpr std::array<std::string_view, 6> fileNames{"TimGM6mb.sf2",   "default-GM.sf3", "default-GM.sf2",
                                                    "FluidR3_GM.sf3", "FluidR3_GM.sf2", "default.sf2"};
constexpr std::array<std::string_view, 3> folderNames{"sounds/sf2", "sounds/sf3", "soundfonts"};
constexpr std::string_view usualDataFolders = "/usr/local/share:/usr/share";

std::string_view environment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string_view() : std::string_view(value);
}

void addFolders(std::vector<fs::path>& folders, std::string_view list) {
    while (!list.empty()) {
        const auto colon = list.find(':');
        const fs::path folder = list.substr(0, colon);
        if (folder.is_absolute()) { // the standard asks to pass over others
            folders.push_back(folder);
        }
        list = colon == std::string_view::npos ? std::string_view() : list.substr(colon + 1);
    }
}

std::vector<fs::path> dataFolders() {
    std::vector<fs::path> folders;
    const fs::path home = environment("HOME");
    const std::string_view own = environment("XDG_DATA_HOME");
    if (!own.empty()) {
        addFolders(folders, own);
    } else if (home.is_absolute()) {
        folders.push_back(home / ".local" / "share");
    }
    const std::string_view shared = environment("XDG_DATA_DIRS");
    addFolders(folders, shared.empty() ? usualDataFolders : shared);
    return folders;
}

} // namespace

std::vector<fs::path> soundfontCandidates(const fs::path& programFolder) {
    const std::vector<fs::path> folders = dataFolders();
    std::vector<fs::path> candidates;
    for (const std::string_view name : fileNames) {
        candidates.push_back(programFolder / "mci" / name);
        for (const fs::path& folder : folders) {
            for (const std::string_view below : folderNames) {
                candidates.push_back(folder / below / name);
            }
        }
    }
    return candidates;
}

} // namespace ventrel
