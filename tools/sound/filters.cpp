#include "tools/sound/filters.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ventrel::sound {

namespace {

constexpr double pi = std::numbers::pi;
constexpr double highestShare = 0.49; // of the rate

struct Angle {
    double cosine;
    double alpha;
};

Angle angleOf(double rate, double frequency, double quality) {
    const double w = 2 * pi * std::min(frequency / rate, highestShare);
    return {std::cos(w), std::sin(w) / (2 * quality)};
}

double sinc(double x) {
    return x == 0 ? 1 : std::sin(pi * x) / (pi * x);
}

/// A window that falls to 0 at -1 and 1 (Blackman's).
double window(double x) {
    return std::abs(x) >= 1 ? 0 : 0.42 + 0.5 * std::cos(pi * x) + 0.08 * std::cos(2 * pi * x);
}

} // namespace

Biquad::Biquad(double b0, double b1, double b2, double a0, double a1, double a2)
    : b0_(b0 / a0), b1_(b1 / a0), b2_(b2 / a0), a1_(a1 / a0), a2_(a2 / a0) {}

Biquad Biquad::lowPass(double rate, double frequency, double quality) {
    const auto [c, alpha] = angleOf(rate, frequency, quality);
    return {(1 - c) / 2, 1 - c, (1 - c) / 2, 1 + alpha, -2 * c, 1 - alpha};
}

Biquad Biquad::highPass(double rate, double frequency, double quality) {
    const auto [c, alpha] = angleOf(rate, frequency, quality);
    return {(1 + c) / 2, -1 - c, (1 + c) / 2, 1 + alpha, -2 * c, 1 - alpha};
}

Biquad Biquad::bandPass(double rate, double frequency, double quality) {
    const auto [c, alpha] = angleOf(rate, frequency, quality);
    return {alpha, 0, -alpha, 1 + alpha, -2 * c, 1 - alpha};
}

Biquad Biquad::highShelf(double rate, double frequency, double quality, double decibels) {
    const auto [c, alpha] = angleOf(rate, frequency, quality);
    const double a = fromDecibels(decibels / 2);
    const double slope = 2 * std::sqrt(a) * alpha;
    return {a * (a + 1 + (a - 1) * c + slope), -2 * a * (a - 1 + (a + 1) * c),
            a * (a + 1 + (a - 1) * c - slope), a + 1 - (a - 1) * c + slope,
            2 * (a - 1 - (a + 1) * c),         a + 1 - (a - 1) * c - slope};
}

void Biquad::run(Signal& signal) {
    for (double& sample : signal) {
        sample = next(sample);
    }
}

void Biquad::retune(const Biquad& other) {
    b0_ = other.b0_;
    b1_ = other.b1_;
    b2_ = other.b2_;
    a1_ = other.a1_;
    a2_ = other.a2_;
}

Signal bandPass(SignalView signal, double rate, double low, double high, std::size_t taps) {
    const auto middle = static_cast<long>(taps / 2);
    Signal kernel(taps);
    for (long i = -middle; i <= middle; ++i) {
        const auto x = static_cast<double>(i);
        const double ideal =
            2 * high / rate * sinc(2 * high / rate * x) - 2 * low / rate * sinc(2 * low / rate * x);
        kernel[static_cast<std::size_t>(i + middle)] = ideal * window(x / static_cast<double>(middle + 1));
    }
    Signal result(signal.size());
    const auto length = static_cast<long>(signal.size());
    for (long i = 0; i < length; ++i) {
        double sum = 0;
        for (long k = std::max(-middle, -i); k <= std::min(middle, length - 1 - i); ++k) {
            sum += signal[static_cast<std::size_t>(i + k)] * kernel[static_cast<std::size_t>(k + middle)];
        }
        result[static_cast<std::size_t>(i)] = sum;
    }
    return result;
}

Signal resampled(SignalView signal, double from, double to) {
    constexpr double crossings = 24; // of the kernel, to either side
    constexpr double passband = 0.97;
    constexpr int finenessPerCrossing = 1024;
    static_assert(finenessPerCrossing > 0);
    // In samples of the source: the cut lies below half the lower of the two rates.
    const double cut = passband * std::min(1.0, to / from);
    const double reach = crossings / cut;

    Signal kernel(static_cast<std::size_t>(crossings * finenessPerCrossing) + 2);
    for (std::size_t i = 0; i < kernel.size(); ++i) {
        const double x = static_cast<double>(i) / finenessPerCrossing;
        kernel[i] = cut * sinc(x) * window(x / crossings);
    }
    const auto weight = [&](double distance) {
        const double place = std::abs(distance) * cut * finenessPerCrossing;
        const auto index = static_cast<std::size_t>(place);
        const double rest = place - static_cast<double>(index);
        return index + 1 < kernel.size() ? kernel[index] + rest * (kernel[index + 1] - kernel[index]) : 0.0;
    };

    const auto last = static_cast<long>(signal.size()) - 1;
    Signal result(samplesIn(static_cast<double>(signal.size()) / from, to));
    for (std::size_t i = 0; i < result.size(); ++i) {
        const double place = static_cast<double>(i) * from / to;
        double sum = 0;
        const long end = std::min(last, static_cast<long>(std::floor(place + reach)));
        for (long k = std::max(0L, static_cast<long>(std::ceil(place - reach))); k <= end; ++k) {
            sum += signal[static_cast<std::size_t>(k)] * weight(place - static_cast<double>(k));
        }
        result[i] = sum;
    }
    return result;
}

} // namespace ventrel::sound
