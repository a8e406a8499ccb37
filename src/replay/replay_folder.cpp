#include "replay/replay_folder.h"

#include <algorithm>

#include "base/windows1252.h"
#include "replay/replay_reader.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view automaticPattern = "shift dddd-dd-dd dd-dd-dd"; // and what makes it unlike others
constexpr std::size_t mostListed = 500;

bool isAutomatic(const fs::path& file) {
    const std::string name = file.stem().string();
    return name.size() >= automaticPattern.size() &&
           std::ranges::equal(
               automaticPattern, name.substr(0, automaticPattern.size()),
               [](char pattern, char c) { return pattern == 'd' ? c >= '0' && c <= '9' : c == pattern; });
}

/// By name.
std::vector<fs::path> replayFiles(const fs::path& folder) {
    std::vector<fs::path> files;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        std::error_code ignored;
        if (entry->path().extension() == replayExtension && entry->is_regular_file(ignored)) {
            files.push_back(entry->path());
        }
    }
    std::ranges::sort(files);
    return files;
}

/// The time of day as it can stand in a file's name.
std::string automaticName(UtcMoment begun) {
    std::string text = momentText(begun);
    text.pop_back();
    std::ranges::replace(text, 'T', ' ');
    std::ranges::replace(text, ':', '-');
    return "shift " + text;
}

bool comesFirst(const KeptReplay& a, const KeptReplay& b) {
    if (a.replay && b.replay) {
        return a.replay->header.begun > b.replay->header.begun;
    }
    return a.replay.has_value() && !b.replay;
}

Failure cannot(std::string_view what, const fs::path& file, const std::error_code& error) {
    return {"The replay " + pathText(file) + " cannot be " + std::string{what} + ": " + error.message() +
            "."};
}

} // namespace

fs::path freshReplayFile(const fs::path& folder, UtcMoment begun) {
    const std::string name = automaticName(begun);
    const std::string extension{replayExtension};
    fs::path file = folder / (name + extension);
    std::error_code ignored;
    for (int i = 2; fs::exists(file, ignored); ++i) {
        std::string numbered = name;
        numbered.append(" ").append(std::to_string(i)).append(extension);
        file = folder / numbered;
    }
    return file;
}

void makeRoomForReplay(const fs::path& folder) {
    std::vector<fs::path> files = replayFiles(folder);
    std::erase_if(files, [](const fs::path& file) { return !isAutomatic(file); });
    for (std::size_t i = 0; i + replaysKept <= files.size(); ++i) {
        std::error_code ignored;
        fs::remove(files[i], ignored);
    }
}

std::vector<KeptReplay> listReplays(const fs::path& folder) {
    std::vector<KeptReplay> kept;
    for (const fs::path& file : replayFiles(folder)) {
        if (kept.size() < mostListed) {
            kept.push_back({file, readReplay(file), !isAutomatic(file)});
        }
    }
    std::ranges::stable_sort(kept, comesFirst);
    return kept;
}

Result<fs::path> keepReplayAs(const fs::path& file, std::string_view name) {
    if (name.empty() || name.size() > longestReplayName || name.front() == '.' ||
        name.find('/') != std::string_view::npos || std::ranges::any_of(fromUtf8(name), isControlCharacter)) {
        return failed("A replay cannot have the name '" + fromUtf8(name) + "'.", MessageIcon::information);
    }
    fs::path kept = file.parent_path() / (std::string{name} + std::string{replayExtension});
    if (isAutomatic(kept)) {
        return failed("Names that begin as this one does are those of the latest shifts.",
                      MessageIcon::information);
    }
    std::error_code error;
    if (fs::exists(kept, error)) {
        return failed("There is a replay of the name '" + fromUtf8(name) + "' already.",
                      MessageIcon::information);
    }
    fs::rename(file, kept, error);
    if (error) {
        return tl::unexpected(cannot("renamed", file, error));
    }
    return kept;
}

Result<> deleteReplay(const fs::path& file) {
    std::error_code error;
    if (!fs::remove(file, error) && error) {
        return tl::unexpected(cannot("deleted", file, error));
    }
    return {};
}

} // namespace ventrel
