#include "audio/voice.h"

#include <new>

#include "audio/recording_file.h"
#include "base/data_path.h"
#include "base/string_table.h"
#include "sim/phrase.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view noiseName = "snd\\pnoise.snd";

std::string folderName(int voiceSet) {
    return FormatText("snd\\pcm%d", {long{voiceSet}});
}

using Samples = std::vector<std::uint8_t>;

void append(Samples& samples, const Samples& more) {
    samples.insert(samples.end(), more.begin(), more.end());
}

Result<Samples> joined(const fs::path& programFolder, const SpokenCall& call, RandomGenerator& random) {
    Samples samples;
    if (call.noise) {
        const auto noise = readRecording(DataPath(programFolder, noiseName));
        if (!noise) {
            return tl::unexpected(noise.error());
        }
        for (int left = drawNoises(random); left > 0; --left) {
            append(samples, *noise);
        }
    }
    const std::string folder = folderName(call.voice) + '\\';
    for (const char word : call.phrase) {
        const int number = snippetNumber(word);
        if (number < 0) {
            continue; // stands for nothing that could be said
        }
        const auto snippet =
            readRecording(DataPath(programFolder, folder + std::string(snippetFile(number))));
        if (!snippet) {
            return tl::unexpected(snippet.error());
        }
        append(samples, *snippet);
    }
    return samples;
}

} // namespace

int countVoiceSets(const fs::path& programFolder) {
    int count = 0;
    std::error_code fault;
    while (count < mostVoiceSets && fs::exists(DataPath(programFolder, folderName(count)), fault)) {
        ++count;
    }
    return count;
}

Result<Samples> assembleCall(const fs::path& programFolder, const SpokenCall& call, RandomGenerator& random) {
    try {
        return joined(programFolder, call, random);
    } catch (const std::bad_alloc&) {
        return failed(
            FormatStringId(TextId::notEnoughMemory, {0L})); // how much a call takes is not known before
    }
}

} // namespace ventrel
