// Music as it is rendered: on time, without a gap where it is repeated, gone when it is stopped.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <iterator>
#include <thread>

#include "platform/sdl/fluid_sequencer.h"
#include "platform/sdl/soundfont.h"

namespace ventrel {
namespace {

constexpr int rate = 44100;
constexpr std::size_t block = 441; // frames: a hundredth of a second

using MidiBytes = std::vector<std::byte>;

/// Two seconds: a short wood block on the first beat, and nothing after it.
MidiBytes twoSeconds() {
    constexpr auto bytes = std::to_array<unsigned char>({
        'M',  'T',  'h',  'd',  0,    0,    0, 6,
        0,    0,    0,    1,    0x01, 0xE0,        // 480 ticks a quarter, two quarters a second
        'M',  'T',  'r',  'k',  0,    0,    0, 16, // so many bytes follow
        0,    0xC0, 115,                           // wood block
        0,    0x90, 60,   120,                     //
        30,   0x80, 60,   0,                       //
        0x8E, 0x62, 0xFF, 0x2F, 0,                 // the end, 1890 ticks later
    });
    MidiBytes file;
    std::ranges::transform(bytes, std::back_inserter(file), [](unsigned char b) { return std::byte{b}; });
    return file;
}

class Music : public ::testing::Test {
protected:
    Mixer mixer{rate};
    FluidSequencer sequencer{mixer, rate, soundfontCandidates({}), [] {}};

    /// The next hundredth of a second, once the renderer has it ready; how loud it is.
    float next() {
        using namespace std::chrono_literals;
        for (int patience = 0; patience < 2000 && isBehind(); ++patience) {
            std::this_thread::sleep_for(1ms);
        }
        std::array<float, 2 * block> stereo{};
        mixer.render(stereo);
        return *std::ranges::max_element(stereo, {}, [](float s) { return std::abs(s); });
    }
    bool isBehind() {
        constexpr std::size_t store = std::size_t{rate} * 4 / 10;
        return sequencer.isPlaying() && mixer.music().room() > store - 2 * block;
    }
    /// In which hundredths of the coming seconds a note begins.
    std::vector<int> onsets(double seconds) {
        std::vector<int> found;
        float before = 0;
        for (int at = 0; at < static_cast<int>(seconds * 100); ++at) {
            const float now = std::abs(next());
            if (now > 0.01F && before <= 0.01F && (found.empty() || at - found.back() > 50)) {
                found.push_back(at);
            }
            before = now;
        }
        return found;
    }
};

TEST_F(Music, EndsWithItsLastBarAndNotWhenItHasRungOut) {
    ASSERT_TRUE(sequencer.play(twoSeconds(), false));
    int hundredths = 0;
    float loudest = 0;
    while (sequencer.isPlaying() && hundredths < 1000) {
        loudest = std::max(loudest, std::abs(next()));
        ++hundredths;
    }
    EXPECT_NEAR(hundredths, 200, 3);
    EXPECT_GT(loudest, 0.01F);
}

TEST_F(Music, IsRepeatedOnTheBeat) {
    ASSERT_TRUE(sequencer.play(twoSeconds(), true));
    const auto notes = onsets(7);
    ASSERT_GE(notes.size(), 4U);
    for (std::size_t i = 1; i < 4; ++i) {
        EXPECT_NEAR(notes[i] - notes[i - 1], 200, 1);
    }
    sequencer.stop();
    EXPECT_FALSE(sequencer.isPlaying());
    for (int i = 0; i < 10; ++i) {
        next();
    }
    EXPECT_EQ(next(), 0.0F);
}

TEST_F(Music, ThatIsDamagedOrHasNoInstrumentsIsSilence) {
    EXPECT_FALSE(sequencer.play({}, true));
    const MidiBytes none(100, std::byte{'x'});
    EXPECT_FALSE(sequencer.play(none, true));
    MidiBytes cut = twoSeconds();
    cut.resize(16);
    sequencer.play(cut, true);
    for (int i = 0; i < 200 && sequencer.isPlaying(); ++i) {
        next();
    }
    EXPECT_FALSE(sequencer.isPlaying());

    FluidSequencer mute(mixer, rate, {"/nowhere.sf2"}, [] {});
    mute.play(twoSeconds(), true);
    for (int i = 0; i < 200 && mute.isPlaying(); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    EXPECT_FALSE(mute.isPlaying());
}

} // namespace
} // namespace ventrel
