#include "platform/sdl/sdl_beeper.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ventrel {

namespace {

constexpr double toneLength = 0.18; // seconds
constexpr float loudness = 0.25F;   // as a gain
constexpr double fading = 18;       // a second: how fast a tone dies away
constexpr double edge = 0.004;      // seconds in which it ends, whatever is left of it
constexpr double fullScale = 127;   // of an 8-bit sample

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

Recording toneOf(MessageIcon kind) {
    std::vector<std::uint8_t> samples(static_cast<std::size_t>(toneLength * recordingRate));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double time = static_cast<double>(i) / recordingRate;
        const double level = std::exp(-fading * time) * std::min(1.0, (toneLength - time) / edge);
        const double wave = level * std::sin(2 * std::numbers::pi * pitchOf(kind) * time);
        samples[i] = static_cast<std::uint8_t>(std::lround(silentSample + fullScale * wave));
    }
    return std::make_shared<const std::vector<std::uint8_t>>(std::move(samples));
}

} // namespace

Beeper::~Beeper() {
    if (tone_) {
        device_.release(*tone_);
    }
}

void Beeper::beep(MessageIcon kind) {
    if (tone_) {
        device_.release(*tone_);
    }
    tone_ = device_.add(toneOf(kind), loudness);
    if (tone_) {
        device_.play(*tone_);
    }
}

} // namespace ventrel
