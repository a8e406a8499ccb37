#include "platform/sdl/sdl_beeper.h"

#include <cmath>
#include <cstdint>
#include <numbers>
#include <vector>

namespace ventrel {

namespace {

constexpr int rate = 22050;   // samples a second
constexpr int forPlaying = 0; ///< as SDL counts its devices
constexpr Uint16 blockSize = 512;
constexpr Millis toneLength = 180;
constexpr Millis deviceTail = 150; ///< what the machine may still hold of it
constexpr double loudness = 6000;
constexpr double fading = 18; ///< a second: how fast a tone dies away

double pitchOf(MessageIcon kind) {
    switch (kind) {
    case MessageIcon::stop: return 330;
    case MessageIcon::exclamation: return 523;
    case MessageIcon::question: return 659;
    case MessageIcon::information: return 784;
    case MessageIcon::none: break;
    }
    return 440;
}

std::vector<std::int16_t> toneOf(MessageIcon kind) {
    constexpr auto length = static_cast<std::size_t>(rate * toneLength / 1000);
    std::vector<std::int16_t> samples(length);
    for (std::size_t i = 0; i < length; ++i) {
        const double time = static_cast<double>(i) / rate;
        const double wave = std::sin(2 * std::numbers::pi * pitchOf(kind) * time);
        samples[i] = static_cast<std::int16_t>(loudness * std::exp(-fading * time) * wave);
    }
    return samples;
}

} // namespace

Beeper::~Beeper() {
    close();
}

bool Beeper::open() {
    if (isMissing_ || SDL_InitSubSystem(SDL_INIT_AUDIO) != 0) {
        isMissing_ = true;
        return false;
    }
    isOpen_ = true;
    // Where nothing can play, trying all the same would only make the sound library complain.
    if (SDL_GetNumAudioDevices(forPlaying) == 0) {
        isMissing_ = true;
        close();
        return false;
    }
    SDL_AudioSpec wanted{};
    wanted.freq = rate;
    wanted.format = AUDIO_S16SYS;
    wanted.channels = 1;
    wanted.samples = blockSize;
    device_ = SDL_OpenAudioDevice(nullptr, forPlaying, &wanted, nullptr, 0);
    isMissing_ = device_ == 0;
    if (isMissing_) {
        close();
    }
    return !isMissing_;
}

void Beeper::close() {
    if (device_ != 0) {
        SDL_CloseAudioDevice(device_);
        device_ = 0;
    }
    if (isOpen_) {
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
        isOpen_ = false;
    }
    end_.reset();
}

void Beeper::beep(MessageIcon kind, Millis now) {
    if (device_ == 0 && !open()) {
        return;
    }
    const std::vector<std::int16_t> tone = toneOf(kind);
    SDL_ClearQueuedAudio(device_);
    SDL_QueueAudio(device_, tone.data(), static_cast<Uint32>(tone.size() * sizeof(tone.front())));
    SDL_PauseAudioDevice(device_, 0);
    end_ = now + toneLength + deviceTail;
}

void Beeper::rest(Millis now) {
    if (end_ && now >= *end_) {
        close();
    }
}

} // namespace ventrel
