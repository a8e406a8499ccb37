#include "platform/sdl/sdl_sound.h"

#include <SDL.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>
#include <thread>
#include <utility>

#include "platform/mixer/dropout_meter.h"
#include "platform/mixer/mixer.h"
#include "platform/sdl/fluid_sequencer.h"

namespace ventrel {

namespace {

constexpr int rate = 44100; // frames a second; SDL converts where the machine has another
constexpr int channels = 2;
constexpr Uint16 leastBlock = 512; // frames: 12 ms
constexpr Uint16 mostBlock = 2048; // for a machine that is too busy for less
constexpr double dropout = 0.003;  // seconds of silence that are heard as a click
constexpr int mostDropouts = 3;    // after which blocks become longer
constexpr int forPlaying = 0;      // as SDL counts its devices
constexpr Millis unheardStep = 10;
constexpr std::size_t unheardFrames = rate / 100; // of one step

constexpr Millis attentionInterval = 500;
constexpr Millis unheardInterval = 50;
constexpr Millis searchInterval = 2000;
constexpr Millis longestCatchUp = 1000; // of unheard sound at once

double steadySeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

Millis ticks() {
    return static_cast<Millis>(SDL_GetTicks64());
}

class MixedSound final : public SdlSound {
public:
    explicit MixedSound(std::vector<std::filesystem::path> soundfonts)
        : mixer_(rate), sequencer_(mixer_, rate, std::move(soundfonts), [this] { wake(); }) {
        // Where nothing can play, trying all the same would only make the sound library complain.
        if (SDL_InitSubSystem(SDL_INIT_AUDIO) != 0 || SDL_GetNumAudioDevices(forPlaying) == 0) {
            fault_ = SoundFault::missing;
        } else if (!open()) {
            const bool isBusy = std::string_view(SDL_GetError()).find("busy") != std::string_view::npos;
            fault_ = isBusy ? SoundFault::inUse : SoundFault::missing;
        }
    }
    ~MixedSound() override {
        close();
        finishClosing();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }

    SoundFault fault() const override { return fault_; }
    std::optional<SoundId> add(Recording recording, float gain) override {
        return isPresent() ? mixer_.add(std::move(recording), gain) : std::nullopt;
    }
    void play(SoundId id) override {
        mixer_.play(id);
        wake();
    }
    void stop(SoundId id) override { mixer_.stop(id); }
    bool isPlaying(SoundId id) const override { return mixer_.isPlaying(id); }
    void release(SoundId id) override { mixer_.release(id); }
    void setVolume(float volume) override { mixer_.setSoundVolume(volume); }
    Sequencer& sequencer() override { return isPresent() ? static_cast<Sequencer&>(sequencer_) : noMusic_; }

    void attend(Millis now) override {
        if (!nextAttention_ || now < *nextAttention_) {
            return;
        }
        if (state_ == State::open && SDL_GetAudioDeviceStatus(device_) == SDL_AUDIO_STOPPED) {
            lose(now);
        }
        if (state_ == State::open && isStuttering()) {
            lengthenBlocks();
        }
        if (state_ == State::lost) {
            playUnheard(now);
        }
        if (mixer_.isSilent()) {
            close();
            return;
        }
        nextAttention_ = now + (state_ == State::open ? attentionInterval : unheardInterval);
        if (state_ == State::lost && now >= nextSearch_) {
            nextSearch_ = now + searchInterval;
            static_cast<void>(SDL_GetNumAudioDevices(forPlaying) != 0 && open());
        }
    }
    std::optional<Millis> nextAttention() const override { return nextAttention_; }

private:
    enum class State { closed, open, lost };

    static void fill(void* sound, Uint8* stream, int bytes) {
        auto& self = *static_cast<MixedSound*>(sound);
        const auto samples = static_cast<std::size_t>(bytes) / sizeof(float);
        self.meter_.noteCall(steadySeconds(), samples / channels);
        // SDL hands out bytes for what it was asked to be given: floats.
        self.mixer_.render({reinterpret_cast<float*>(stream), samples});
    }

    /// A device that waits to be begun; 0 when there is none.
    SDL_AudioDeviceID opened() {
        SDL_AudioSpec wanted{};
        wanted.freq = rate;
        wanted.format = AUDIO_F32SYS;
        wanted.channels = channels;
        wanted.samples = block_;
        wanted.callback = fill;
        wanted.userdata = this;
        return SDL_OpenAudioDevice(nullptr, forPlaying, &wanted, nullptr, 0);
    }

    bool open() {
        finishClosing();
        device_ = opened();
        if (device_ == 0) {
            return false;
        }
        begin();
        return true;
    }

    void begin() {
        meter_.reset();
        state_ = State::open;
        nextAttention_ = ticks() + attentionInterval;
        SDL_PauseAudioDevice(device_, 0);
    }

    /// Changes over to another device with hardly a gap; where there is but one, its next opening changes it.
    void lengthenBlocks() {
        block_ = static_cast<Uint16>(2 * block_);
        if (const SDL_AudioDeviceID next = opened(); next != 0) {
            SDL_PauseAudioDevice(device_, 1); // two never ask at once
            close();
            device_ = next;
            begin();
        }
    }

    /// SDL waits for what the device still holds; the loop does not.
    void close() {
        finishClosing(); // of the one before, long ago
        if (device_ != 0) {
            closing_ = std::thread(SDL_CloseAudioDevice, std::exchange(device_, 0));
        }
        state_ = State::closed;
        nextAttention_.reset();
    }

    void finishClosing() {
        if (closing_.joinable()) {
            closing_.join();
        }
    }

    /// Whether the device has run dry so often that it needs longer blocks, and can have them.
    bool isStuttering() {
        if (meter_.takeLost() < dropout || block_ == mostBlock || ++dropouts_ < mostDropouts) {
            return false;
        }
        dropouts_ = 0;
        return true;
    }

    void lose(Millis now) {
        close();
        finishClosing(); // from now on the mixer plays for the clock alone
        state_ = State::lost;
        unheardUntil_ = now;
        nextSearch_ = now + searchInterval;
        nextAttention_ = now + unheardInterval;
    }

    void wake() {
        if (isPresent() && state_ == State::closed && !open()) {
            lose(ticks());
        }
    }

    /// Time passes for sounds that nobody hears, so that they end when they should.
    void playUnheard(Millis now) {
        std::array<float, channels * unheardFrames> unheard;
        unheardUntil_ = std::max(unheardUntil_, now - longestCatchUp);
        for (; unheardUntil_ < now; unheardUntil_ += unheardStep) {
            mixer_.render(unheard);
        }
    }

    Mixer mixer_;
    FluidSequencer sequencer_; // ends before the mixer that it plays into
    NoSequencer noMusic_;
    DropoutMeter meter_{rate};
    int dropouts_ = 0; ///< at this length of a block
    Uint16 block_ = leastBlock;
    State state_ = State::closed;
    SDL_AudioDeviceID device_ = 0;
    std::thread closing_; ///< of the device before
    SoundFault fault_ = SoundFault::none;
    Millis unheardUntil_ = 0; // while lost: up to when sounds have gone on
    Millis nextSearch_ = 0;   // while lost: when another device is looked for
    std::optional<Millis> nextAttention_;
};

} // namespace

std::unique_ptr<SdlSound> openSdlSound(std::vector<std::filesystem::path> soundfonts) {
    return std::make_unique<MixedSound>(std::move(soundfonts));
}

} // namespace ventrel
