#include "platform/mixer/resampler.h"

#include <cmath>
#include <numbers>

namespace ventrel {

namespace {

constexpr std::uint64_t one = std::uint64_t{1} << 32;
constexpr double cutoff = 0.475; // of the input rate: the middle of the filter's slope
constexpr double kaiserBeta = 8; // images below -80 dB

/// The modified Bessel function of order 0, of which the Kaiser window is made.
double bessel(double x) {
    double sum = 1;
    double term = 1;
    for (int k = 1; term > sum * 1e-12; ++k) {
        term *= (x / (2 * k)) * (x / (2 * k));
        sum += term;
    }
    return sum;
}

/// The filter's value at so many input samples from its middle.
double kernel(double x) {
    const double half = static_cast<double>(Resampler::taps) / 2;
    if (std::abs(x) >= half) {
        return 0;
    }
    const double argument = 2 * std::numbers::pi * cutoff * x;
    const double sinc = x == 0 ? 1 : std::sin(argument) / argument;
    const double edge = x / half;
    return 2 * cutoff * sinc * bessel(kaiserBeta * std::sqrt(1 - edge * edge)) / bessel(kaiserBeta);
}

} // namespace

Resampler::Resampler(int inputRate, int outputRate)
    : filters_(phases + 1),
      step_(one * static_cast<std::uint64_t>(inputRate) / static_cast<std::uint64_t>(outputRate)) {
    for (std::size_t phase = 0; phase <= phases; ++phase) {
        const double place = static_cast<double>(phase) / phases;
        double sum = 0;
        for (std::size_t tap = 0; tap < taps; ++tap) {
            const double x = static_cast<double>(tap) - static_cast<double>(taps) / 2 + place;
            sum += kernel(x);
            filters_[phase][tap] = static_cast<float>(kernel(x));
        }
        for (float& value : filters_[phase]) {
            value = static_cast<float>(value / sum); // a level stays a level at every place
        }
    }
}

std::size_t Resampler::inputsFor(std::size_t outputs) const {
    return static_cast<std::size_t>((place_ + step_ * outputs) / one);
}

void Resampler::take(float sample) {
    newest_ = (newest_ + taps - 1) % taps;
    history_[newest_] = sample;
    history_[newest_ + taps] = sample;
}

float Resampler::filtered() const {
    const std::uint64_t scaled = place_ * phases;
    const auto phase = static_cast<std::size_t>(scaled / one);
    const auto between = static_cast<float>(static_cast<double>(scaled % one) / static_cast<double>(one));
    const Filter& before = filters_[phase];
    const Filter& after = filters_[phase + 1];
    const float* const samples = &history_[newest_];
    float sum = 0;
    float next = 0;
    for (std::size_t tap = 0; tap < taps; ++tap) {
        sum += before[tap] * samples[tap];
        next += after[tap] * samples[tap];
    }
    return sum + (next - sum) * between;
}

void Resampler::run(std::span<const float> input, std::span<float> output) {
    auto sample = input.begin();
    for (float& out : output) {
        place_ += step_;
        for (; place_ >= one; place_ -= one) {
            take(*sample++);
        }
        out = filtered();
    }
}

} // namespace ventrel
