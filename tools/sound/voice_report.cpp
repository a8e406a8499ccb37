#include "tools/sound/voice_report.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "tools/sound/loudness.h"
#include "tools/sound/sound_file.h"

namespace ventrel::sound {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view beginMark = "<!-- measured: begin -->\n";
constexpr std::string_view endMark = "<!-- measured: end -->\n";
constexpr double percent = 100;

struct Levels {
    double softest = 0;
    double loudest = silence;
    double mean = 0;
    double seconds = 0; ///< of all snippets together
};

Result<Levels> levelsOf(const fs::path& voice) {
    Levels levels;
    int count = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(voice)) {
        const auto sound = readSound(entry.path());
        if (!sound) {
            return tl::unexpected(sound.error());
        }
        const double loudness = speechLoudness(*sound, fileRate);
        levels.softest = std::min(levels.softest, loudness);
        levels.loudest = std::max(levels.loudest, loudness);
        levels.mean += (loudness - levels.mean) / ++count;
        levels.seconds += static_cast<double>(sound->size()) / fileRate;
    }
    return levels;
}

/// The recipe's first line is a comment that says who speaks.
std::string whoSpeaks(const fs::path& recipe) {
    std::ifstream file(recipe);
    std::string line;
    std::getline(file, line);
    const std::size_t begin = line.find_first_not_of("# ");
    const std::size_t end = line.find_last_not_of(" .");
    return begin == std::string::npos ? "" : line.substr(begin, end - begin + 1);
}

std::string_view engineName(Engine engine) {
    switch (engine) {
    case Engine::flite: return "flite";
    case Engine::festival: return "festival";
    case Engine::espeak: return "espeak-ng";
    }
    return "";
}

std::string settingsOf(const Speaker& speaker) {
    std::ostringstream text;
    if (speaker.pitch > 0) {
        text << "pitch " << speaker.pitch << ", ";
    }
    text << "pace " << speaker.pace;
    if (speaker.tract != 1) {
        text << ", tract " << speaker.tract;
    }
    return text.str();
}

} // namespace

std::string reportHeader() {
    return "| Voice | Who | Engine and speaker | Settings | Loudness, softest to loudest snippet (LKFS) | "
           "All snippets (s) | Words understood | Calls understood whole |\n"
           "|---|---|---|---|---|---|---|---|\n";
}

Result<std::string> reportLine(const fs::path& recipe, const fs::path& voice, const Understood& understood) {
    const auto speaker = readSpeaker(recipe);
    if (!speaker) {
        return tl::unexpected(speaker.error());
    }
    const auto levels = levelsOf(voice);
    if (!levels) {
        return tl::unexpected(levels.error());
    }
    std::array<char, 120> figures{};
    std::snprintf(figures.data(), figures.size(), "%.2f (%.2f to %.2f) | %.1f | %.1f %% | %d of %d",
                  levels->mean, levels->softest, levels->loudest, levels->seconds,
                  percent - percent * understood.wrongWords / understood.words, understood.wholeCalls,
                  understood.calls);
    return "| " + voice.filename().string() + " | " + whoSpeaks(recipe) + " | " +
           std::string(engineName(speaker->engine)) + ' ' + speaker->name + " | " + settingsOf(*speaker) +
           " | " + figures.data() + " |\n";
}

Result<> replaceTable(const fs::path& document, const std::string& table) {
    std::ostringstream content;
    content << std::ifstream(document).rdbuf();
    std::string text = content.str();
    const std::size_t begin = text.find(beginMark);
    const std::size_t end = text.find(endMark);
    if (begin == std::string::npos || end == std::string::npos || end < begin) {
        return failed(document.string() + " has no place for the table");
    }
    text.replace(begin + beginMark.size(), end - begin - beginMark.size(), table);
    std::ofstream target(document);
    target << text;
    return target.flush() ? Result<>() : Result<>(failed(document.string() + " cannot be written"));
}

} // namespace ventrel::sound
