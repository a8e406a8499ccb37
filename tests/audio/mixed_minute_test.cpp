// A minute of play as it comes out of the mixer: loud enough, never over full scale, silent where it should
// be.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <span>

#include "audio/sound_system.h"
#include "platform/mixer/mixer.h"
#include "sim/phrase.h"

namespace ventrel {
namespace {

constexpr int rate = 44100;

/// A device that plays nothing but what a test asks it to render.
class RenderedDevice final : public SoundDevice {
public:
    SoundFault fault() const override { return SoundFault::none; }
    std::optional<SoundId> add(Recording recording, float gain) override {
        return mixer_.add(std::move(recording), gain);
    }
    void play(SoundId id) override { mixer_.play(id); }
    void stop(SoundId id) override { mixer_.stop(id); }
    bool isPlaying(SoundId id) const override { return mixer_.isPlaying(id); }
    void release(SoundId id) override { mixer_.release(id); }
    void setVolume(float volume) override { mixer_.setSoundVolume(volume); }

    /// The next seconds, one channel.
    std::vector<float> render(double seconds) {
        std::vector<float> stereo(2 * static_cast<std::size_t>(seconds * rate));
        mixer_.render(stereo);
        std::vector<float> left;
        for (std::size_t i = 0; i < stereo.size(); i += 2) {
            left.push_back(stereo[i]);
        }
        return left;
    }

private:
    Mixer mixer_{rate};
};

float peakOf(std::span<const float> samples) {
    return std::accumulate(samples.begin(), samples.end(), 0.0F,
                           [](float peak, float sample) { return std::max(peak, std::abs(sample)); });
}

/// The power of the loudest 400 ms, in decibels of full scale.
double momentOf(std::span<const float> samples) {
    constexpr std::size_t window = rate * 4 / 10;
    double loudest = 0;
    for (std::size_t from = 0; from + window <= samples.size(); from += window / 4) {
        const auto part = samples.subspan(from, window);
        const double sum = std::inner_product(part.begin(), part.end(), part.begin(), 0.0);
        loudest = std::max(loudest, sum / window);
    }
    return 10 * std::log10(std::max(loudest, 1e-12));
}

class MixedMinute : public ::testing::Test {
protected:
    RenderedDevice device;
    NoSequencer sequencer;
    SoundSystem sounds{device, sequencer, PROGRAM_FOLDER};
    RandomGenerator random{1};

    void SetUp() override { ASSERT_EQ(sounds.start().value(), SoundFault::none); }
    void say(int voice) {
        const std::string phrase{VoiceAirlineCode(voice % airlineCount), VoiceDigitCode(4), VoiceDigitCode(7),
                                 snippet::levelAt, VoiceAltitudeCode(5)};
        ASSERT_TRUE(sounds.speak({.phrase = phrase, .voice = voice, .tag = voice}, random).value());
    }
    /// Until all is silent again; at most ten seconds.
    std::vector<float> rest() {
        std::vector<float> heard;
        for (int tenth = 0; tenth < 100 && (sounds.isAnyPlaying() || heard.empty()); ++tenth) {
            const auto more = device.render(0.1);
            heard.insert(heard.end(), more.begin(), more.end());
        }
        return heard;
    }
    void expectSilence() {
        device.render(0.1);
        EXPECT_EQ(peakOf(device.render(0.5)), 0.0F);
    }
};

TEST_F(MixedMinute, IsLoudAndSilentWhereItShouldBe) {
    expectSilence();
    double softestVoice = 0;
    double loudestVoice = -100;
    for (int voice = 0; voice < sounds.voiceSetCount(); ++voice) {
        say(voice);
        const double voiceLevel = momentOf(rest());
        softestVoice = std::min(softestVoice, voiceLevel);
        loudestVoice = std::max(loudestVoice, voiceLevel);
    }
    EXPECT_EQ(sounds.voiceSetCount(), 21);
    EXPECT_LT(loudestVoice - softestVoice, 4);
    for (const std::string_view alarm : {"snd\\yellow.snd", "snd\\red.snd", "snd\\collide.snd"}) {
        ASSERT_TRUE(sounds.playEffect(alarm).value());
        EXPECT_GT(momentOf(rest()), loudestVoice) << alarm;
    }
    sounds.clickControl();
    const double click = momentOf(device.render(0.6));
    EXPECT_LT(click, softestVoice);
    EXPECT_GT(click, softestVoice - 30);
    expectSilence();
}

TEST_F(MixedMinute, ACrowdIsHeldBelowFullScaleAndCutOffWithoutAClick) {
    for (int voice = 0; voice < 9; ++voice) {
        say(voice);
    }
    for (const std::string_view alarm : {"snd\\red.snd", "snd\\yellow.snd", "snd\\collide.snd"}) {
        ASSERT_TRUE(sounds.playEffect(alarm).value());
    }
    const auto crowd = device.render(2);
    EXPECT_LE(peakOf(crowd), 0.98F);
    EXPECT_GT(peakOf(crowd), 0.7F);
    sounds.stopEffects();
    const auto end = device.render(0.05);
    const auto last = std::ranges::find_if(end.rbegin(), end.rend(), [](float s) { return s != 0; });
    ASSERT_LT(end.rend() - last, static_cast<std::ptrdiff_t>(end.size())) << "it is silent before the end";
    const std::span fading(end.data(), static_cast<std::size_t>(end.rend() - last));
    EXPECT_LT(peakOf(fading.last(8)), 0.02F) << "and fades there";
    EXPECT_FALSE(sounds.isAnyPlaying());
    expectSilence();
}

} // namespace
} // namespace ventrel
