// The game's sounds on a machine in memory: the pool of twelve, tags, clicks, options, voices, music.

#include "audio/sound_system.h"

#include <gtest/gtest.h>

#include "base/shortage.h"
#include "base/string_table.h"
#include "base/temp_folder.h"
#include "platform/headless/headless_sound.h"
#include "sim/phrase.h"

namespace ventrel {
namespace {

constexpr std::size_t second = recordingRate;
constexpr std::size_t megabyte = std::size_t{1} << 20;

class SoundSystemTest : public ::testing::Test {
protected:
    TempFolder folder;
    Millis now = 1000;
    HeadlessSound device{[this] { return now; }};
    HeadlessSequencer sequencer{[this] { return now; }};
    SoundSystem sounds{device, sequencer, folder.path()};
    RandomGenerator random{1};

    void SetUp() override {
        file("snd/control.snd", 'c', second);
        file("snd/set.snd", 's', second);
        file("snd/red.snd", 'r', second);
        file("snd/pnoise.snd", '~', 10);
        for (int voice = 0; voice < 2; ++voice) {
            for (int number = 0; number < snippetCount; ++number) {
                file("snd/pcm" + std::to_string(voice) + "/" + std::string(snippetFile(number)),
                     static_cast<char>((voice == 0 ? '0' : 'A') + number % 10), 5);
            }
        }
        file("mci/game.mci", 'M', 50);
        ASSERT_EQ(sounds.start().value(), SoundFault::none);
    }
    void file(const std::string& name, char content, std::size_t size) {
        const auto path = folder.path() / name;
        std::filesystem::create_directories(path.parent_path());
        writeText(path, std::string(size, content));
    }
    std::string heard(std::size_t start) {
        const auto& recording = *device.starts.at(start).recording;
        return {recording.begin(), recording.end()};
    }
    std::vector<char> firstOfEach() {
        std::vector<char> first;
        for (const auto& start : device.starts) {
            first.push_back(static_cast<char>(start.recording->front()));
        }
        return first;
    }
    bool speak(std::string_view phrase, int tag, int voice = 0, bool noise = false) {
        return sounds.speak({.phrase = phrase, .voice = voice, .tag = tag, .noise = noise}, random).value();
    }
};

TEST_F(SoundSystemTest, TwelveSoundAtOnceTheThirteenthIsDroppedUntilOneHasEnded) {
    for (int i = 0; i < 12; ++i) {
        EXPECT_TRUE(sounds.playEffect("snd\\red.snd").value());
        now += 10;
    }
    EXPECT_FALSE(sounds.playEffect("snd\\red.snd").value());
    EXPECT_EQ(device.starts.size(), 12U);
    now += 885; // the first has ended
    EXPECT_TRUE(sounds.playEffect("snd\\red.snd").value());
    EXPECT_FALSE(sounds.playEffect("snd\\red.snd").value());
    now += 2000;
    EXPECT_FALSE(sounds.isAnyPlaying());
    EXPECT_TRUE(sounds.playEffect("snd\\red.snd").value());
    EXPECT_TRUE(sounds.isAnyPlaying());
    EXPECT_EQ(device.held(), 3U) << "the one that sounds, and two clicks";
}

TEST_F(SoundSystemTest, AFlightNeverTalksOverItselfButOthersDo) {
    const std::string call(3, snippet::roger);
    EXPECT_TRUE(speak(call, 7));
    EXPECT_TRUE(speak(call, 7)) << "passed over, which is no failure";
    EXPECT_TRUE(speak(call, 8));
    EXPECT_EQ(device.starts.size(), 2U);
    now += 10;
    EXPECT_TRUE(speak(call, 7));
    EXPECT_EQ(device.starts.size(), 3U);
    while (sounds.playEffect("snd\\red.snd").value()) {
    }
    EXPECT_FALSE(speak(call, 7)) << "nobody looks who speaks where there is no place";
}

TEST_F(SoundSystemTest, ACallIsNoiseAndTheSnippetsOfItsVoiceInOrder) {
    const std::string phrase{VoiceAirlineCode(0), VoiceDigitCode(2), snippet::heavy};
    RandomGenerator expected = random;
    const int noises = Random(expected, 1, 8);
    ASSERT_TRUE(speak(phrase, 1, 1, true));
    EXPECT_EQ(random.state, expected.state) << "one draw";
    const auto part = [](char code) {
        return std::string(5, static_cast<char>('A' + snippetNumber(code) % 10));
    };
    EXPECT_EQ(heard(0), std::string(static_cast<std::size_t>(10 * noises), '~') + part(phrase[0]) +
                            part(phrase[1]) + part(phrase[2]));
    sounds.choose({.singleVoice = 0});
    ASSERT_TRUE(speak({&snippet::roger, 1}, 2, 1));
    EXPECT_EQ(heard(1).front(), static_cast<char>('0' + snippetNumber(snippet::roger) % 10));
    EXPECT_EQ(random.state, expected.state) << "no noise, no draw";
    file("snd/pcm0/roger.snd", 'x', 3);
    ASSERT_TRUE(speak({&snippet::roger, 1}, 3));
    EXPECT_EQ(heard(2), "xxx") << "the file is read again";
}

TEST_F(SoundSystemTest, ACallWithAMissingSnippetIsNotSpokenAtAllAndNamesIt) {
    std::filesystem::remove(folder.path() / "snd/pcm0/roger.snd");
    const auto spoken = sounds.speak({.phrase = "<4", .voice = 0, .tag = 1, .noise = false}, random);
    ASSERT_FALSE(spoken);
    EXPECT_TRUE(spoken.error().text.find("roger.snd") != std::string::npos) << spoken.error().text;
    std::filesystem::remove(folder.path() / "snd/pnoise.snd");
    const std::uint32_t before = random.state;
    EXPECT_FALSE(sounds.speak({.phrase = "<", .voice = 0, .tag = 1, .noise = true}, random));
    EXPECT_EQ(random.state, before);
    EXPECT_TRUE(device.starts.empty());
    EXPECT_FALSE(sounds.playEffect("snd\\nothing.snd"));
}

TEST_F(SoundSystemTest, WhatDoesNotFitIntoMemoryIsNotHeardAndSaysHowMuchWasWanted) {
#ifdef VENTREL_SANITIZED
    GTEST_SKIP() << "the sanitizer takes memory of its own";
#endif
    std::filesystem::resize_file(folder.path() / "snd/pcm0/roger.snd", 8 * megabyte);
    const LittleMemory little(100 * megabyte);
    const auto textFor = [](std::size_t size) {
        return FormatStringId(TextId::notEnoughMemory, {static_cast<long>(size)});
    };
    const std::string longCall(60, snippet::roger);
    const auto spoken = sounds.speak({.phrase = longCall, .tag = 1, .noise = false}, random);
    ASSERT_FALSE(spoken);
    EXPECT_EQ(spoken.error().text, textFor(0)) << "how long a call becomes is not known before";
    for (const std::size_t size : {60 * megabyte, 200 * megabyte}) { // the one can be read, but not copied
        std::filesystem::resize_file(folder.path() / "snd/red.snd", size);
        const auto played = sounds.playEffect("snd\\red.snd");
        ASSERT_FALSE(played);
        EXPECT_EQ(played.error().text, textFor(size));
    }
}

TEST_F(SoundSystemTest, AClickThatSoundsGoesOnAndOneThatWasStoppedPlaysOn) {
    sounds.clickControl();
    sounds.clickSet();
    now += 400;
    sounds.clickControl();
    EXPECT_EQ(firstOfEach(), (std::vector{'c', 's'}));
    EXPECT_FALSE(sounds.isAnyPlaying()) << "clicks do not count";
    sounds.stopEffects();
    now += 5000;
    sounds.clickControl();
    EXPECT_NEAR(static_cast<double>(device.starts.back().from), 0.4 * second, 10);
    now += 5000;
    sounds.clickControl();
    EXPECT_EQ(device.starts.back().from, 0U);
}

TEST_F(SoundSystemTest, OptionsSilenceTheirOwnKindAlone) {
    sounds.choose({.effects = false});
    EXPECT_FALSE(sounds.playEffect("snd\\red.snd").value());
    sounds.clickControl();
    sounds.clickSet();
    EXPECT_FALSE(sounds.clickSelect().value());
    EXPECT_TRUE(speak("4", 1));
    sounds.choose({.voices = false});
    const std::uint32_t before = random.state;
    EXPECT_FALSE(speak("4", 2, 0, true));
    EXPECT_EQ(random.state, before) << "a call that is not spoken draws nothing";
    EXPECT_FALSE(speak("", 2));
    EXPECT_TRUE(sounds.playEffect("snd\\red.snd").value());
    EXPECT_TRUE(sounds.playMusic("mci\\game.mci", true));
    sounds.choose({.music = false});
    EXPECT_FALSE(sounds.playMusic("mci\\game.mci", true));
    EXPECT_EQ(sequencer.starts.size(), 1U);
    EXPECT_TRUE(sounds.isMusicPlaying()) << "what is not wanted ends nothing";
    EXPECT_EQ(device.starts.size(), 2U);
}

TEST_F(SoundSystemTest, StopAllStopsEverythingButTheMusic) {
    sounds.playEffect("snd\\red.snd").value();
    speak("4444444444", 3);
    sounds.playMusic("mci\\game.mci", true);
    sounds.stopEffects();
    EXPECT_FALSE(sounds.isAnyPlaying());
    EXPECT_TRUE(sounds.isMusicPlaying());
    sounds.stopMusic();
    EXPECT_FALSE(sounds.isMusicPlaying());
}

TEST_F(SoundSystemTest, MusicReplacesMusicAndWhatCannotBePlayedIsSilence) {
    EXPECT_TRUE(sounds.playMusic("mci\\game.mci", true));
    EXPECT_TRUE(sequencer.starts.back().repeat);
    EXPECT_FALSE(sounds.playMusic("mci\\missing.mci", false));
    EXPECT_FALSE(sounds.isMusicPlaying()) << "the old piece has stopped all the same";
    EXPECT_TRUE(sounds.playMusic("mci\\game.mci", false));
    EXPECT_EQ(sequencer.starts.back().midi.size(), 50U);
    now += sequencer.pieceLength;
    EXPECT_FALSE(sounds.isMusicPlaying());
}

TEST_F(SoundSystemTest, VoicesAreCountedUpToTheFirstMissingFolder) {
    EXPECT_EQ(sounds.voiceSetCount(), 2);
    for (int voice = 3; voice < 30; ++voice) {
        std::filesystem::create_directory(folder.path() / ("snd/pcm" + std::to_string(voice)));
    }
    ASSERT_EQ(sounds.start().value(), SoundFault::none);
    EXPECT_EQ(sounds.voiceSetCount(), 2);
    std::filesystem::create_directory(folder.path() / "snd/pcm2");
    ASSERT_EQ(sounds.start().value(), SoundFault::none);
    EXPECT_EQ(sounds.voiceSetCount(), 21);
}

TEST_F(SoundSystemTest, VolumesActAtOnceAndEndInSilence) {
    sounds.choose({.soundVolume = 0, .musicVolume = 1});
    EXPECT_EQ(device.volume(), 0);
    EXPECT_GT(sequencer.volume(), 0);
    EXPECT_LT(sequencer.volume(), 0.1);
    sounds.choose({.soundVolume = 99, .musicVolume = -3});
    EXPECT_EQ(device.volume(), 1);
    EXPECT_EQ(sequencer.volume(), 0);
}

TEST_F(SoundSystemTest, WithoutADeviceNothingIsHeardCountedOrDrawn) {
    HeadlessSound none{[this] { return now; }};
    none.broken = SoundFault::inUse;
    SoundSystem silent{none, sequencer, folder.path() / "nowhere"};
    EXPECT_EQ(silent.start().value(), SoundFault::inUse) << "no click is missed where none can be heard";
    EXPECT_EQ(silent.voiceSetCount(), 0);
    EXPECT_FALSE(silent.playEffect("snd\\red.snd").value());
    const std::uint32_t before = random.state;
    EXPECT_FALSE(silent.speak({.phrase = "4", .noise = true}, random).value());
    EXPECT_EQ(random.state, before);
    silent.clickSet();
    SoundSystem broken{device, sequencer, folder.path() / "nowhere"};
    const auto started = broken.start();
    ASSERT_FALSE(started);
    EXPECT_TRUE(started.error().text.find("control.snd") != std::string::npos) << started.error().text;
}

} // namespace
} // namespace ventrel
