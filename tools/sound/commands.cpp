#include "tools/sound/commands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <sstream>

#include "tools/sound/loudness.h"
#include "tools/sound/midi.h"
#include "tools/sound/radio.h"
#include "tools/sound/sound_file.h"
#include "tools/sound/speaker.h"
#include "tools/sound/synthesiser.h"

namespace ventrel::sound {

namespace fs = std::filesystem;

namespace {

/// No effect is louder than this, so that nothing of it is cut off.
constexpr double highestPeak = 0.985;
constexpr double tolerance = 0.3;

Result<> makeFolder(const fs::path& folder) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (error) {
        return failed(folder.string() + " cannot be made: " + error.message());
    }
    return {};
}

Result<> makeSnippet(const fs::path& recording, RadioSettings settings, const fs::path& target) {
    const auto spoken = readWave(recording);
    if (!spoken) {
        return tl::unexpected(spoken.error());
    }
    settings.rate = spoken->rate;
    const auto call = overRadio(spoken->channels.front(), settings);
    if (!call) {
        return failed(recording.string() + ": " + call.error().text);
    }
    const double reached = speechLoudness(*call, fileRate);
    if (std::abs(reached - settings.loudness) > tolerance) {
        return failed(recording.string() + ": reaches " + std::to_string(reached) + " LKFS");
    }
    return writeSound(target, *call);
}

} // namespace

Result<> makeVoice(const fs::path& speakerFile, const fs::path& scriptFile, double loudness,
                   const fs::path& work, const fs::path& folder) {
    const auto speaker = readSpeaker(speakerFile);
    if (!speaker) {
        return tl::unexpected(speaker.error());
    }
    const auto script = readScript(scriptFile);
    if (!script) {
        return tl::unexpected(script.error());
    }
    std::error_code ignored;
    fs::remove_all(work, ignored);
    for (const fs::path& each : {work, folder}) {
        if (auto made = makeFolder(each); !made) {
            return made;
        }
    }
    if (auto spoken = speak(*speaker, *script, work); !spoken) {
        return spoken;
    }
    for (const auto& [name, words] : *script) {
        RadioSettings settings;
        settings.tract = speaker->tract;
        settings.loudness = loudness;
        if (auto made = makeSnippet(work / (name + ".wav"), settings, folder / (name + ".snd")); !made) {
            return made;
        }
    }
    fs::remove_all(work, ignored);
    return {};
}

Result<> makeEffect(const fs::path& recipe, double loudness, const fs::path& sounds, const fs::path& target) {
    const auto effect = readEffect(recipe);
    if (!effect) {
        return tl::unexpected(effect.error());
    }
    auto signal = play(*effect, sounds);
    if (!signal) {
        return tl::unexpected(signal.error());
    }
    amplify(*signal, fromDecibels(loudness - momentaryLoudness(*signal, fileRate)));
    const double excess = toDecibels(peakOf(*signal) / highestPeak);
    if (excess > 0) {
        return failed(recipe.string() + ": is cut off at this loudness; at most " +
                      std::to_string(loudness - excess) + " LKFS");
    }
    return writeSound(target, *signal, effect->dither ? effect->name : "");
}

Result<> endOnBeat(const fs::path& piece) {
    std::ostringstream content;
    content << std::ifstream(piece, std::ios::binary).rdbuf();
    const auto ended = endOnBeat(content.str());
    if (!ended) {
        return failed(piece.string() + ": " + ended.error().text);
    }
    std::ofstream target(piece, std::ios::binary);
    target << *ended;
    if (!target.flush()) {
        return failed(piece.string() + " cannot be written");
    }
    return {};
}

Result<std::string> measure(const fs::path& file) {
    Recording recording{fileRate, {}};
    if (file.extension() == ".wav") {
        auto read = readWave(file);
        if (!read) {
            return tl::unexpected(read.error());
        }
        recording = *std::move(read);
    } else {
        auto read = readSound(file);
        if (!read) {
            return tl::unexpected(read.error());
        }
        recording.channels.push_back(*std::move(read));
    }
    double peak = 0;
    for (const Signal& channel : recording.channels) {
        peak = std::max(peak, peakOf(channel));
    }
    const Signal& first = recording.channels.front();
    std::array<char, 200> line{};
    std::snprintf(line.data(), line.size(),
                  "%-40s %8.3f s  peak %6.2f dB  speech %6.2f  moment %6.2f  whole %6.2f", file.c_str(),
                  static_cast<double>(first.size()) / recording.rate, toDecibels(peak),
                  speechLoudness(first, recording.rate), momentaryLoudness(first, recording.rate),
                  programmeLoudness(recording.channels, recording.rate));
    return std::string(line.data());
}

} // namespace ventrel::sound
