// What comes out of the mixer: recordings on time and in full, clean, without clicks, never over full scale.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include <gtest/gtest.h>

#include "platform/mixer/dropout_meter.h"
#include "platform/mixer/mixer.h"

namespace ventrel {
namespace {

constexpr int rate = 44100;
constexpr std::size_t blockFrames = 512;

Recording tone(double frequency, double seconds, double loudness = 0.5) {
    std::vector<std::uint8_t> samples(static_cast<std::size_t>(seconds * recordingRate));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double fade =
            std::min({1.0, static_cast<double>(i) / 80, static_cast<double>(samples.size() - i) / 80});
        const double wave =
            std::sin(2 * std::numbers::pi * frequency * static_cast<double>(i) / recordingRate);
        samples[i] = static_cast<std::uint8_t>(std::lround(128 + 127 * loudness * fade * wave));
    }
    return std::make_shared<const std::vector<std::uint8_t>>(std::move(samples));
}

/// What the device would have played, one channel.
std::vector<float> rendered(Mixer& mixer, double seconds) {
    std::vector<float> left;
    std::vector<float> stereo(2 * blockFrames);
    while (left.size() < static_cast<std::size_t>(seconds * rate)) {
        mixer.render(stereo);
        for (std::size_t i = 0; i < stereo.size(); i += 2) {
            left.push_back(stereo[i]);
        }
    }
    return left;
}

double decibels(double amplitude) {
    return 20 * std::log10(std::max(amplitude, 1e-9));
}

/// The amplitude of one frequency in the samples (a single bin of a Fourier transform, Hann window).
double amplitudeAt(std::span<const float> samples, double frequency) {
    double real = 0;
    double imaginary = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double angle = 2 * std::numbers::pi * static_cast<double>(i);
        const double window = 1 - std::cos(angle / static_cast<double>(samples.size()));
        real += window * static_cast<double>(samples[i]) * std::cos(angle * frequency / rate);
        imaginary += window * static_cast<double>(samples[i]) * std::sin(angle * frequency / rate);
    }
    return 2 * std::hypot(real, imaginary) / static_cast<double>(samples.size());
}

float loudest(std::span<const float> samples) {
    return std::transform_reduce(
        samples.begin(), samples.end(), 0.0F, [](float a, float b) { return std::max(a, b); },
        [](float sample) { return std::abs(sample); });
}

float largestStep(std::span<const float> samples) {
    float step = 0;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        step = std::max(step, std::abs(samples[i] - samples[i - 1]));
    }
    return step;
}

TEST(Mixer, ARecordingOfNSamplesPlaysForNOver8001SecondsAndNoneOfItIsLost) {
    Mixer mixer(rate);
    const auto constant = std::make_shared<const std::vector<std::uint8_t>>(recordingRate, std::uint8_t{192});
    const auto id = mixer.add(constant, 1).value();
    mixer.play(id);
    double seconds = 0;
    double sum = 0;
    while (mixer.isPlaying(id)) {
        const auto samples = rendered(mixer, static_cast<double>(blockFrames) / rate);
        sum += std::accumulate(samples.begin(), samples.end(), 0.0);
        seconds += static_cast<double>(samples.size()) / rate;
        ASSERT_LT(seconds, 2);
    }
    const auto tail = rendered(mixer, 0.1);
    sum += std::accumulate(tail.begin(), tail.end(), 0.0);
    EXPECT_NEAR(seconds, 1, 0.015);
    EXPECT_NEAR(sum / rate, 0.5 * std::numbers::sqrt2 / 2, 0.001); // the area under it, to the last sample
    EXPECT_FLOAT_EQ(loudest(rendered(mixer, 0.1)), 0);
}

TEST(Mixer, ToneKeepsItsLevelAndHasNoImages) {
    Mixer mixer(rate);
    mixer.play(mixer.add(tone(1000, 2, 1), 0.5F).value());
    rendered(mixer, 0.2);
    const auto samples = rendered(mixer, 1);
    EXPECT_NEAR(decibels(amplitudeAt(samples, 1000)), decibels(0.5 * std::numbers::sqrt2 / 2), 0.1);
    for (const double image : {7001.0, 9001.0, 15002.0, 17002.0}) {
        EXPECT_LT(decibels(amplitudeAt(samples, image)), -80) << image << " Hz";
    }
}

TEST(Mixer, StoppedAndPlayedOnItGoesOnFromThereWithoutAClick) {
    Mixer mixer(rate);
    const auto id = mixer.add(tone(300, 1), 1).value();
    mixer.play(id);
    auto heard = rendered(mixer, 0.4);
    mixer.stop(id);
    EXPECT_FALSE(mixer.isPlaying(id));
    const auto pause = rendered(mixer, 0.2);
    EXPECT_FLOAT_EQ(loudest(std::span(pause).subspan(pause.size() / 2)), 0);
    heard.insert(heard.end(), pause.begin(), pause.end());
    mixer.play(id);
    double rest = 0;
    while (mixer.isPlaying(id)) {
        const auto samples = rendered(mixer, 0.01);
        heard.insert(heard.end(), samples.begin(), samples.end());
        rest += static_cast<double>(samples.size()) / rate;
        ASSERT_LT(rest, 2);
    }
    EXPECT_NEAR(rest, 0.6, 0.04);
    const float steepest = static_cast<float>(0.36 * 2 * std::numbers::pi * 300 / rate);
    EXPECT_LT(largestStep(heard), 1.5F * steepest);
    mixer.play(id); // and now from its start again
    const auto again = rendered(mixer, 0.5);
    EXPECT_TRUE(mixer.isPlaying(id));
    EXPECT_GT(loudest(again), 0.3F);
    mixer.release(id);
    EXPECT_LT(largestStep(rendered(mixer, 0.1)), 1.5F * steepest);
}

TEST(Mixer, ReleasingWhatSoundsFadesItAndMakesRoomAgain) {
    Mixer mixer(rate);
    std::vector<SoundId> taken;
    const Recording recording = tone(440, 1);
    while (const auto id = mixer.add(recording, 0.02F)) {
        mixer.play(*id);
        taken.push_back(*id);
        ASSERT_LT(taken.size(), 100U);
    }
    EXPECT_GE(taken.size(), 16U); // a dozen of sounds, two clicks, a tone, and some that die away
    rendered(mixer, 0.1);
    mixer.release(taken.front());
    EXPECT_FALSE(mixer.add(recording, 1)) << "it still dies away";
    rendered(mixer, 0.05);
    EXPECT_TRUE(mixer.add(recording, 1));
    for (const SoundId id : std::span(taken).subspan(1)) {
        mixer.release(id);
    }
    rendered(mixer, 0.1);
    EXPECT_EQ(recording.use_count(), 1 + static_cast<long>(taken.size()));
}

TEST(Mixer, ManyLoudSoundsAreTurnedDownSmoothlyAndComeUpAgain) {
    Mixer mixer(rate);
    const auto quiet = mixer.add(tone(500, 3, 0.2), 1).value();
    mixer.play(quiet);
    const auto before = rendered(mixer, 0.5);
    for (int i = 0; i < 12; ++i) {
        mixer.play(mixer.add(tone(700 + 10 * i, 0.5, 1), 1).value());
    }
    const auto crowd = rendered(mixer, 0.6);
    EXPECT_LE(loudest(crowd), 0.971F);
    EXPECT_GT(loudest(crowd), 0.8F);
    const auto justAfter = std::span(crowd).subspan(rate * 52 / 100, rate / 50);
    EXPECT_LT(loudest(justAfter), 0.8F * loudest(before)) << "not at once";
    rendered(mixer, 0.5);
    const auto after = rendered(mixer, 0.5);
    EXPECT_NEAR(loudest(after), loudest(std::span(before).subspan(before.size() / 2)), 0.01);
}

TEST(Mixer, SilenceIsNoticedAfterAMomentAndEndsWithTheNextSound) {
    Mixer mixer(rate);
    rendered(mixer, 0.3);
    EXPECT_FALSE(mixer.isSilent());
    rendered(mixer, 0.4);
    EXPECT_TRUE(mixer.isSilent());
    const auto id = mixer.add(tone(500, 1), 1).value();
    mixer.play(id);
    EXPECT_FALSE(mixer.isSilent());
    rendered(mixer, 0.8);
    EXPECT_FALSE(mixer.isSilent());
    rendered(mixer, 1);
    EXPECT_TRUE(mixer.isSilent());
    const auto pause =
        std::make_shared<const std::vector<std::uint8_t>>(3 * recordingRate, std::uint8_t{128});
    mixer.play(mixer.add(pause, 1).value());
    rendered(mixer, 2);
    EXPECT_FALSE(mixer.isSilent()) << "a recording may pause longer than a moment";
}

TEST(DropoutMeter, CountsTheTimeThatIsLostAndNotTheTimeBetweenBursts) {
    DropoutMeter meter(rate);
    double now = 100;
    const auto ask = [&](int bursts) { // four blocks at once
        for (int burst = 0; burst < bursts; ++burst) {
            for (int call = 0; call < 4; ++call) {
                meter.noteCall(now, blockFrames);
            }
            now += 4.0 * blockFrames / rate;
        }
    };
    ask(10);
    EXPECT_EQ(meter.takeLost(), 0) << "nothing to compare with";
    ask(10);
    EXPECT_NEAR(meter.takeLost(), 0, 1e-6);
    ask(3);
    now += 0.040;
    ask(5);
    EXPECT_NEAR(meter.takeLost(), 0, 1e-6) << "a stretch that has begun on time";
    ask(10);
    EXPECT_NEAR(meter.takeLost(), 0.040, 1e-4);
    EXPECT_EQ(meter.takeLost(), 0) << "without a call";
    ask(10);
    EXPECT_NEAR(meter.takeLost(), 0, 1e-6) << "told once";
    meter.reset();
    now += 10;
    ask(10);
    EXPECT_EQ(meter.takeLost(), 0) << "another device";
}

/// A piece at a level of its own, written as far as there is room.
void write(MusicStream& music, std::size_t frames, float level) {
    const std::vector<float> stereo(2 * std::min(frames, music.room()), level);
    music.write(stereo);
}

TEST(Music, APieceIsHeardToItsEndAndRingsOn) {
    Mixer mixer(rate);
    MusicStream& music = mixer.music();
    music.want(1);
    music.begin(1);
    write(music, rate / 10, 0.25F);
    music.markEnd();
    write(music, rate / 10, 0.125F);
    rendered(mixer, 0.05);
    EXPECT_FALSE(music.hasEnded(1));
    rendered(mixer, 0.06);
    EXPECT_TRUE(music.hasEnded(1));
    EXPECT_NEAR(loudest(rendered(mixer, 0.04)), 0.125, 0.001);
    rendered(mixer, 0.2);
    EXPECT_TRUE(music.isQuiet());
}

TEST(Music, AnotherPieceFadesTheFirstOutAndBeginsAtItsOwnStart) {
    Mixer mixer(rate);
    MusicStream& music = mixer.music();
    music.want(1);
    music.begin(1);
    write(music, rate, 0.5F);
    auto heard = rendered(mixer, 0.1);
    music.want(2);
    const auto fading = rendered(mixer, 0.1);
    EXPECT_LT(largestStep(fading), 0.01F);
    EXPECT_FLOAT_EQ(fading.back(), 0);
    EXPECT_FALSE(music.hasEnded(1));
    music.begin(2);
    const float ramp = 0.25F;
    write(music, rate / 50, ramp);
    EXPECT_NEAR(loudest(rendered(mixer, 0.02)), ramp, 0.001);
    music.want(MusicStream::silence);
    rendered(mixer, 0.1);
    EXPECT_FLOAT_EQ(loudest(rendered(mixer, 0.1)), 0);
    EXPECT_EQ(music.room(), static_cast<std::size_t>(rate * 0.4))
        << "nothing of the dropped pieces takes room";
}

TEST(Music, AnEndedPieceTakesNothingOfTheNext) {
    Mixer mixer(rate);
    MusicStream& music = mixer.music();
    music.want(1);
    music.begin(1);
    write(music, rate / 50, 0);
    rendered(mixer, 0.015);
    music.want(2);
    music.begin(2);
    write(music, rate / 10, 0.5F);
    auto heard = rendered(mixer, 0.08);
    std::erase(heard, 0.0F);
    EXPECT_FLOAT_EQ(std::ranges::min(heard), 0.5F) << "it was taken for the fading rest of the first";
}

TEST(Music, IsWaitedForAndHasAVolumeOfItsOwn) {
    Mixer mixer(rate);
    MusicStream& music = mixer.music();
    mixer.play(mixer.add(tone(100, 1, 0.4), 1).value());
    music.want(1);
    rendered(mixer, 2);
    EXPECT_FALSE(mixer.isSilent()) << "its instruments may still be on their way";
    music.begin(1);
    write(music, rate / 2, 0.25F);
    mixer.play(mixer.add(tone(100, 1, 0.4), 1).value());
    rendered(mixer, 0.1);
    mixer.setSoundVolume(0);
    EXPECT_LT(largestStep(rendered(mixer, 0.05)), 0.02F);
    EXPECT_FLOAT_EQ(loudest(rendered(mixer, 0.02)), 0.25F);
    mixer.setMusicVolume(0);
    EXPECT_LT(largestStep(rendered(mixer, 0.05)), 0.02F);
    EXPECT_FLOAT_EQ(loudest(rendered(mixer, 0.02)), 0);
}

} // namespace
} // namespace ventrel
