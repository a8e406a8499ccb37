// The machine's sound on a device that is a file: heard, closed after silence, lost and found again, refused.

#include "platform/sdl/sdl_sound.h"

#include <SDL.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <optional>
#include <thread>

#include "../../base/shortage.h"
#include "../../base/temp_folder.h"

namespace ventrel {
namespace {

constexpr std::size_t frame = 2 * sizeof(float); // bytes

class SdlSoundTest : public ::testing::Test {
protected:
    TempFolder folder;
    std::filesystem::path device = folder.path() / "device";
    std::unique_ptr<SdlSound> sound;
    Millis later = 0;      ///< by which the clock runs ahead
    Millis interval = 500; ///< at which the device was last to be attended to

    void SetUp() override { ::setenv("SDL_AUDIODRIVER", "disk", 1); }
    void TearDown() override {
        sound.reset();
        ::unsetenv("SDL_AUDIODRIVER");
        ::unsetenv("SDL_DISKAUDIOFILE");
    }
    void open() {
        ::setenv("SDL_DISKAUDIOFILE", device.c_str(), 1);
        sound = openSdlSound({});
    }
    Millis now() const { return static_cast<Millis>(SDL_GetTicks64()) + later; }
    SoundId play(double seconds) {
        const auto length = static_cast<std::size_t>(seconds * recordingRate);
        const auto id =
            sound->add(std::make_shared<const std::vector<std::uint8_t>>(length, std::uint8_t{192}), 1);
        sound->play(id.value());
        return *id;
    }
    void attend() {
        const auto due = sound->nextAttention();
        const Millis when = now();
        sound->attend(when);
        if (const auto next = sound->nextAttention(); next && next != due) {
            interval = *next - when;
        }
    }
    /// Attends to the device, the clock running ahead by a step each time, until it is so, or patience ends;
    /// whether it is so.
    template <typename Condition>
    bool attendUntil(Condition isSo, Millis step = 0) {
        for (int patience = 0; patience < 2000; ++patience) {
            later += step;
            attend();
            if (isSo()) {
                return true;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return false;
    }
    /// Frames that the device has got.
    std::size_t got() const {
        std::error_code fault;
        const auto size = std::filesystem::file_size(device, fault);
        return fault ? 0 : static_cast<std::size_t>(size) / frame;
    }
    bool isClosed() const { return !sound->nextAttention(); }
    /// A device that is not there is attended to more often.
    bool isLost() const { return interval < 100; }
};

TEST_F(SdlSoundTest, IsOpenWhileSomethingSoundsAndClosedAfterAMoment) {
    open();
    ASSERT_TRUE(sound->isPresent());
    EXPECT_TRUE(attendUntil([&] { return isClosed(); })) << "it was opened to be found";
    const SoundId id = play(0.2);
    EXPECT_FALSE(isClosed());
    EXPECT_TRUE(attendUntil([&] { return !sound->isPlaying(id); }));
    EXPECT_FALSE(isClosed());
    EXPECT_TRUE(attendUntil([&] { return isClosed(); }));
    sound.reset();
    EXPECT_GT(got(), 44100U / 5);
    const std::string heard = readText(device);
    EXPECT_TRUE(std::ranges::any_of(heard, [](char byte) { return byte != 0; }));
}

TEST_F(SdlSoundTest, ADeviceThatVanishesIsPlayedOnUnheardAndFoundAgain) {
    open();
    const SoundId first = play(1.5);
    const SoundId second = play(60);
    EXPECT_TRUE(attendUntil([&] { return got() > 0; }));
    {
        const FullDisk pulledOut;
        EXPECT_TRUE(attendUntil([&] { return isLost(); }, 500));
        for (int i = 0; i < 2; ++i) { // by the clock the first ends now, although nobody hears it
            later += 900;
            attend();
        }
        EXPECT_FALSE(sound->isPlaying(first));
        EXPECT_TRUE(sound->isPlaying(second));
        later += 500; // another try, which fails as well
        attend();
        EXPECT_TRUE(attendUntil([&] { return isLost(); }, 500));
    }
    const std::size_t before = got();
    later += 3000;
    attend();
    EXPECT_TRUE(attendUntil([&] { return got() > before && !isLost(); }));
    EXPECT_TRUE(sound->isPlaying(second));
}

TEST_F(SdlSoundTest, TellsADeviceThatIsInUseFromOneThatIsMissing) {
    device = folder.path() / "nowhere" / "device";
    open();
    EXPECT_EQ(sound->fault(), SoundFault::missing);
    EXPECT_FALSE(sound->add(std::make_shared<const std::vector<std::uint8_t>>(9, std::uint8_t{0}), 1));
    sound.reset();
    // The system's words for a device that another program has to itself end SDL's own.
    device = folder.path() / "nowhere" / "Device or resource busy";
    open();
    EXPECT_EQ(sound->fault(), SoundFault::inUse);
    sound.reset();
    ::setenv("SDL_AUDIODRIVER", "none such", 1);
    open();
    EXPECT_EQ(sound->fault(), SoundFault::missing);
}

} // namespace
} // namespace ventrel
