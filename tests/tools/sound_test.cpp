// The sounds of the program folder, measured, and the tool that makes them.

#include <gtest/gtest.h>

#include <cctype>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <numbers>
#include <sstream>

#include "sim/phrase.h"
#include "tools/sound/effect.h"
#include "tools/sound/loudness.h"
#include "tools/sound/midi.h"
#include "tools/sound/radio.h"
#include "tools/sound/sound_file.h"
#include "tools/sound/speaker.h"

namespace {

using namespace ventrel;
using namespace ventrel::sound;
namespace fs = std::filesystem;

constexpr int voiceCount = 21;
constexpr double tolerance = 0.5; // LKFS

const fs::path programFolder = PROGRAM_FOLDER;

struct Limits {
    double loudness, shortest, longest;
};

/// The table of levels that the build works from.
std::map<std::string, Limits> levels() {
    std::map<std::string, Limits> result;
    std::ifstream file(LEVELS_FILE);
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string name;
        Limits limits{};
        if (words >> name >> limits.loudness >> limits.shortest >> limits.longest) {
            result[name] = limits;
        }
    }
    return result;
}

double secondsOf(const Signal& signal) {
    return static_cast<double>(signal.size()) / fileRate;
}

/// Length, ends and peak; `Loudness` is the measure that this kind of sound is made by.
template <typename Loudness>
void expectWithin(const Limits& limits, const fs::path& file, Loudness loudness, double highestPeak) {
    SCOPED_TRACE(file.string());
    const auto signal = readSound(file);
    ASSERT_TRUE(signal) << signal.error().text;
    EXPECT_GE(secondsOf(*signal), limits.shortest);
    EXPECT_LE(secondsOf(*signal), limits.longest);
    EXPECT_NEAR(loudness(*signal, fileRate), limits.loudness, tolerance);
    EXPECT_LE(peakOf(*signal), highestPeak);
    EXPECT_LE(std::abs(signal->front()), fileStep);
    EXPECT_LE(std::abs(signal->back()), fileStep);
}

constexpr char silence = '\x80'; // in a file

std::string contentOf(const fs::path& file) {
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

/// Small letters alone: "V O R" and "VOR" are one.
std::string lettersOf(std::string_view words) {
    std::string letters;
    for (const char c : words) {
        if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
            letters += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    return letters;
}

Signal sine(double rate, double frequency, double seconds) {
    Signal signal(samplesIn(seconds, rate));
    for (std::size_t i = 0; i < signal.size(); ++i) {
        signal[i] = std::sin(2 * std::numbers::pi * frequency * static_cast<double>(i) / rate);
    }
    return signal;
}

TEST(Voices, SayWhatTheLogWrites) {
    const auto script = readScript(SCRIPT_FILE);
    ASSERT_TRUE(script) << script.error().text;
    for (int number = 0; number < snippetCount; ++number) {
        const std::string name = fs::path(snippetFile(number)).stem().string();
        EXPECT_EQ(lettersOf(snippetWords(number)), lettersOf(script->at(name))) << name;
    }
}

TEST(Sounds, EveryEffectKeepsToTheTableOfLevels) {
    for (const auto& [name, limits] : levels()) {
        if (name != "voices" && name != "music") {
            const fs::path folder = programFolder / (name == "main" ? "grf" : "snd");
            expectWithin(limits, folder / (name + ".snd"), momentaryLoudness, 0.99);
        }
    }
}

TEST(Sounds, EveryVoiceHasAllSnippetsAtOneLoudness) {
    const Limits limits = levels().at("voices");
    for (int voice = 0; voice < voiceCount; ++voice) {
        const fs::path folder = programFolder / "snd" / ("pcm" + std::to_string(voice));
        const auto files = std::distance(fs::directory_iterator(folder), fs::directory_iterator());
        EXPECT_EQ(files, snippetCount) << folder;
        for (int number = 0; number < snippetCount; ++number) {
            const fs::path file = folder / snippetFile(number);
            expectWithin(limits, file, speechLoudness, 0.65);
            EXPECT_LT(contentOf(file).find_first_not_of(silence), samplesIn(0.06, fileRate))
                << file << " begins with a gap in the sentence";
        }
    }
    EXPECT_FALSE(fs::exists(programFolder / "snd" / ("pcm" + std::to_string(voiceCount))));
}

TEST(Sounds, NoTwoVoicesSpeakAlike) {
    std::map<std::string, int> spoken;
    for (int voice = 0; voice < voiceCount; ++voice) {
        const fs::path folder = programFolder / "snd" / ("pcm" + std::to_string(voice));
        const auto [other, isNew] = spoken.emplace(contentOf(folder / "united.snd"), voice);
        EXPECT_TRUE(isNew) << "voices " << other->second << " and " << voice;
    }
}

TEST(Sounds, RadioNoiseInARowIsOneBurst) {
    const auto noise = readSound(programFolder / "snd" / "pnoise.snd");
    ASSERT_TRUE(noise);
    Signal row = *noise;
    row.insert(row.end(), noise->begin(), noise->end());
    const std::size_t window = samplesIn(0.015, fileRate);
    const double whole = toDecibels(rootMeanSquare(row));
    for (std::size_t at = 0; at + window <= row.size(); at += window / 3) {
        EXPECT_NEAR(toDecibels(rootMeanSquare(SignalView(row).subspan(at, window))), whole, 3) << at;
    }
}

TEST(Music, EveryTrackEndsOnTheSameBar) {
    struct Piece {
        const char* name;
        double shortest, longest; // seconds
        std::size_t fewestTracks;
    };
    constexpr unsigned beatsOfBar = 4;
    for (const Piece& wanted :
         {Piece{"idle", 90, 180, 4}, Piece{"game", 180, 300, 4}, Piece{"faa", 15, 40, 4},
          Piece{"splash", 20, 60, 4}, Piece{"fade", 15, 25, 4}}) {
        SCOPED_TRACE(wanted.name);
        const auto piece = readMidi(contentOf(programFolder / "mci" / (std::string(wanted.name) + ".mci")));
        ASSERT_TRUE(piece) << piece.error().text;
        ASSERT_GE(piece->tracks.size(), wanted.fewestTracks);
        const unsigned end = piece->tracks.front().end;
        EXPECT_EQ(end % (piece->ticksPerBeat * beatsOfBar), 0U);
        const double seconds = end / static_cast<double>(piece->ticksPerBeat) * piece->secondsPerBeat;
        EXPECT_GE(seconds, wanted.shortest);
        EXPECT_LE(seconds, wanted.longest);
        for (const MidiTrack& track : piece->tracks) {
            EXPECT_EQ(track.end, end);
            // The first track holds the tempo.
            EXPECT_TRUE(track.notes > 0 || &track == &piece->tracks.front());
        }
    }
}

TEST(Music, ADamagedPieceIsRefused) {
    const std::string whole = contentOf(programFolder / "mci" / "faa.mci");
    for (std::size_t length = 0; length < whole.size() - 1; length += whole.size() / 50) {
        EXPECT_FALSE(readMidi(whole.substr(0, length))) << length;
    }
}

TEST(Loudness, ReadsAToneAsTheStandardSays) {
    for (const double rate : {48000.0, fileRate}) {
        const Signal tone = sine(rate, 997, 3);
        EXPECT_NEAR(programmeLoudness(std::vector<Signal>{tone}, rate), -3.01, 0.1) << rate;
        EXPECT_NEAR(programmeLoudness(std::vector<Signal>{tone, tone}, rate), 0, 0.1) << rate;
        EXPECT_NEAR(momentaryLoudness(tone, rate), -3.01, 0.1) << rate;
    }
    // A pause does not make speech softer.
    Signal word = sine(fileRate, 997, 0.5);
    word.resize(samplesIn(2, fileRate));
    EXPECT_NEAR(speechLoudness(word, fileRate), -3.01, 0.1);
}

TEST(Radio, LetsSpeechThroughAndNothingElse) {
    RadioSettings settings;
    settings.rate = 22050;
    Signal word = sine(settings.rate, 1000, 0.5);
    word.insert(word.begin(), samplesIn(1, settings.rate), 0);
    word.resize(samplesIn(3, settings.rate));
    const auto call = overRadio(word, settings);
    ASSERT_TRUE(call);
    EXPECT_NEAR(secondsOf(*call), 0.025 + 0.5 + 0.060, 0.06);
    EXPECT_NEAR(speechLoudness(*call, fileRate), settings.loudness, 0.1);
    EXPECT_FALSE(overRadio(Signal(1000), settings));
}

TEST(Recipe, AFaultIsNamedWithItsLine) {
    const fs::path file = fs::path(testing::TempDir()) / "faulty_effect.toml";
    const auto reasonOf = [&](const std::string& text) {
        std::ofstream(file) << text;
        const auto effect = readEffect(file);
        return effect ? "" : effect.error().text.substr(file.string().size());
    };
    const std::string layer = "length = 1\n[[layer]]\nwave = 'sine'\nlength = 1\npitch = 440\n";
    EXPECT_EQ(reasonOf(layer), "");
    EXPECT_EQ(reasonOf(layer + "loudness = 3\n"), ":6: 'loudness' means nothing here");
    EXPECT_EQ(reasonOf(layer + "gain = 'much'\n"), ":6: 'gain' must be a number from -100 to 60");
    EXPECT_EQ(reasonOf("length = 1\n[[layer]]\nwave = 'bell'\nlength = 1\n"),
              ":3: 'wave' is none that is known");
    EXPECT_EQ(reasonOf(layer + "low = [[1, 300], [0, 400]]\n"),
              ":6: 'low' must be a list of [seconds, number from 1 to 16000], in the order of time");
}

} // namespace
