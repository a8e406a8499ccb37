// What sound costs: reading a pilot's longest call when it is spoken, and mixing what a busy moment plays.

#include <benchmark/benchmark.h>

#include <chrono>
#include <thread>

#include "audio/recording_file.h"
#include "audio/voice.h"
#include "base/data_path.h"
#include "base/whole_file.h"
#include "platform/sdl/fluid_sequencer.h"
#include "platform/sdl/soundfont.h"
#include "sim/phrase.h"

namespace {

using namespace ventrel;

constexpr int rate = 44100;
constexpr std::size_t blockFrames = 512;
constexpr std::size_t largestPiece = std::size_t{1} << 20;

/// Callsign of four digits and a heavy jet, a turn, and a climb.
void ReadingTheLongestCall(benchmark::State& state) {
    const std::string phrase{VoiceAirlineCode(9),   VoiceDigitCode(7),   VoiceDigitCode(3),
                             VoiceDigitCode(7),     VoiceDigitCode(3),   snippet::heavy,
                             VoiceHeadingCode(270), snippet::descending, VoiceAltitudeCode(10)};
    RandomGenerator random{1};
    for (auto _ : state) {
        auto call = assembleCall(PROGRAM_FOLDER, {.phrase = phrase, .voice = 19}, random);
        if (!call) {
            state.SkipWithError(call.error().text.c_str());
            return;
        }
        benchmark::DoNotOptimize(call->data());
    }
}
BENCHMARK(ReadingTheLongestCall)->Unit(benchmark::kMicrosecond);

/// A second of twelve calls at once, and music where it is asked for; the synthesiser's thread counts, too.
void SecondOfSound(benchmark::State& state) {
    Mixer mixer(rate);
    FluidSequencer sequencer(mixer, rate, soundfontCandidates({}), [] {});
    const bool hasMusic = state.range(0) != 0;
    const auto piece = readFileStart(DataPath(PROGRAM_FOLDER, "mci\\game.mci"), largestPiece);
    auto samples = readRecording(DataPath(PROGRAM_FOLDER, "snd\\scroll.snd"));
    if (!piece || !samples || (hasMusic && !sequencer.play(*piece, true))) {
        state.SkipWithError("The sounds are missing.");
        return;
    }
    const auto recording = std::make_shared<const std::vector<std::uint8_t>>(std::move(*samples));
    std::vector<SoundId> sounds;
    for (int i = 0; i < 12; ++i) {
        sounds.push_back(mixer.add(recording, 1).value());
    }
    std::array<float, 2 * blockFrames> block{};
    const auto waitForMusic = [&] {
        while (hasMusic && mixer.music().room() > rate / 5) {
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    };
    waitForMusic(); // the instruments are loaded
    for (auto _ : state) {
        for (const SoundId sound : sounds) {
            mixer.play(sound);
        }
        for (std::size_t done = 0; done < rate; done += blockFrames) {
            waitForMusic();
            mixer.render(block);
        }
        benchmark::DoNotOptimize(block.data());
    }
}
BENCHMARK(SecondOfSound)
    ->ArgName("music")
    ->Arg(0)
    ->Arg(1)
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

} // namespace
