#include "tools/sound/recogniser.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <numeric>
#include <sstream>

#include "tools/sound/filters.h"
#include "tools/sound/process.h"
#include "tools/sound/sound_file.h"

namespace ventrel::sound {

namespace fs = std::filesystem;

namespace {

constexpr double hearingRate = 16000; // of the recogniser's model
constexpr double pause = 0.2;         // seconds of silence around a call
constexpr double full = 32767;

using Words = std::vector<std::string>;

Result<> writeCall(const fs::path& voice, const Call& call, const fs::path& file) {
    Signal signal(samplesIn(pause, fileRate));
    for (const std::string& name : call) {
        const auto snippet = readSound(voice / (name + ".snd"));
        if (!snippet) {
            return tl::unexpected(snippet.error());
        }
        signal.insert(signal.end(), snippet->begin(), snippet->end());
    }
    signal.resize(signal.size() + samplesIn(pause, fileRate));
    std::ofstream target(file, std::ios::binary);
    for (const double sample : resampled(signal, fileRate, hearingRate)) {
        const auto value = static_cast<unsigned>(
            static_cast<std::uint16_t>(std::lround(std::clamp(sample, -1.0, 1.0) * full)));
        target.put(static_cast<char>(value & 0xFFU)).put(static_cast<char>(value >> 8U));
    }
    return target.flush() ? Result<>() : Result<>(failed(file.string() + " cannot be written"));
}

/// The fewest words left out, put in or replaced that make one text the other.
int difference(const Words& said, const Words& heard) {
    std::vector<int> row(heard.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (std::size_t i = 1; i <= said.size(); ++i) {
        int diagonal = row[0]++;
        for (std::size_t k = 1; k <= heard.size(); ++k) {
            const int replaced = diagonal + (said[i - 1] == heard[k - 1] ? 0 : 1);
            diagonal = row[k];
            row[k] = std::min({replaced, row[k] + 1, row[k - 1] + 1});
        }
    }
    return row.back();
}

/// A line of the recogniser: the words, then the call's name and a score in brackets.
Words wordsOfLine(const std::string& line) {
    std::istringstream stream(line.substr(0, line.find('(')));
    Words words;
    for (std::string word; stream >> word;) {
        words.push_back(word.substr(0, word.find('(')));
    }
    return words;
}

/// Searches widely: a call given up half-way would say nothing about the voice.
Result<> listen(const fs::path& work) {
    const std::string model = "/usr/share/pocketsphinx/model/en-us/";
    return run({"pocketsphinx_batch",
                "-adcin",
                "yes",
                "-cepdir",
                work,
                "-cepext",
                ".raw",
                "-ctl",
                work / "calls.list",
                "-hyp",
                work / "heard.txt",
                "-hmm",
                model + "en-us",
                "-dict",
                model + "cmudict-en-us.dict",
                "-jsgf",
                work / "calls.gram",
                "-lw",
                "1",
                "-lowerf",
                "300",
                "-upperf",
                "3400",
                "-beam",
                "1e-100",
                "-wbeam",
                "1e-80",
                "-pbeam",
                "1e-100",
                "-logfn",
                work / "pocketsphinx.log"});
}

} // namespace

Result<Understood> hear(const fs::path& voice, const std::vector<Call>& calls, const Script& script,
                        const fs::path& work) {
    std::error_code ignored;
    fs::create_directories(work, ignored);
    {
        std::ofstream list(work / "calls.list");
        for (std::size_t i = 0; i < calls.size(); ++i) {
            const std::string name = std::to_string(i);
            if (auto written = writeCall(voice, calls[i], work / (name + ".raw")); !written) {
                return tl::unexpected(written.error());
            }
            list << name << '\n';
        }
        std::ofstream(work / "calls.gram") << callGrammar(script);
    }
    if (auto listened = listen(work); !listened) {
        return tl::unexpected(listened.error());
    }
    std::ifstream heard(work / "heard.txt");
    std::ofstream faults(work / "faults.txt");
    Understood result;
    for (const Call& call : calls) {
        std::string line;
        std::getline(heard, line);
        const Words said = wordsOf(call, script);
        const int wrong = difference(said, wordsOfLine(line));
        result.words += static_cast<int>(said.size());
        result.wrongWords += wrong;
        result.calls += 1;
        result.wholeCalls += wrong == 0 ? 1 : 0;
        if (wrong > 0) {
            faults << "said:  ";
            std::ranges::for_each(said, [&](const std::string& word) { faults << word << ' '; });
            faults << "\nheard: " << line << '\n';
        }
    }
    return result;
}

} // namespace ventrel::sound
