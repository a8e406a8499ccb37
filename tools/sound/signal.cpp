#include "tools/sound/signal.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ventrel::sound {

namespace {

constexpr double decibelsPerDecade = 20;
constexpr double nothing = -200;

double halfCosine(std::size_t position, std::size_t length) {
    const double phase = (static_cast<double>(position) + 0.5) / static_cast<double>(length);
    return 0.5 - 0.5 * std::cos(std::numbers::pi * phase);
}

} // namespace

double fromDecibels(double decibels) {
    return std::pow(10.0, decibels / decibelsPerDecade);
}

double toDecibels(double amplitude) {
    return amplitude > 0 ? std::max(nothing, decibelsPerDecade * std::log10(amplitude)) : nothing;
}

std::size_t samplesIn(double seconds, double rate) {
    return static_cast<std::size_t>(std::llround(seconds * rate));
}

double rootMeanSquare(SignalView signal) {
    double sum = 0;
    for (const double sample : signal) {
        sum += sample * sample;
    }
    return signal.empty() ? 0 : std::sqrt(sum / static_cast<double>(signal.size()));
}

double peakOf(SignalView signal) {
    double peak = 0;
    for (const double sample : signal) {
        peak = std::max(peak, std::abs(sample));
    }
    return peak;
}

void amplify(Signal& signal, double factor) {
    for (double& sample : signal) {
        sample *= factor;
    }
}

void fadeEnds(Signal& signal, std::size_t rise, std::size_t fall) {
    rise = std::min(rise, signal.size());
    fall = std::min(fall, signal.size());
    for (std::size_t i = 0; i < rise; ++i) {
        signal[i] *= halfCosine(i, rise);
    }
    for (std::size_t i = 0; i < fall; ++i) {
        signal[signal.size() - 1 - i] *= halfCosine(i, fall);
    }
}

Chance::Chance(std::string_view seed) {
    constexpr unsigned long long prime = 1099511628211ULL;
    for (const char letter : seed) {
        state_ = (state_ ^ static_cast<unsigned char>(letter)) * prime;
    }
}

double Chance::next() {
    // A step of a counter, and a mixing of its bits (splitmix).
    state_ += 0x9e3779b97f4a7c15ULL;
    unsigned long long bits = state_;
    bits = (bits ^ (bits >> 30U)) * 0xbf58476d1ce4e5b9ULL;
    bits = (bits ^ (bits >> 27U)) * 0x94d049bb133111ebULL;
    bits ^= bits >> 31U;
    constexpr double half = 4503599627370496.0; // 2 to the 52nd
    return static_cast<double>(bits >> 11U) / half - 1;
}

} // namespace ventrel::sound
