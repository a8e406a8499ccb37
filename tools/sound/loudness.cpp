#include "tools/sound/loudness.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>

#include "tools/sound/filters.h"

namespace ventrel::sound {

namespace {

constexpr double offset = -0.691; // of the standard, so that 997 Hz reads as it is
constexpr double speechBlock = 0.020;
constexpr double speechStep = 0.005;
constexpr double momentaryBlock = 0.400;
constexpr double momentaryStep = 0.010;
constexpr double programmeStep = 0.100;
constexpr double absoluteGate = -70;
constexpr double relativeGate = -10;

double toLoudness(double power) {
    return power > 0 ? std::max(silence, offset + 10 * std::log10(power)) : silence;
}

/// The head's rise above 1.7 kHz. The standard gives coefficients for one rate; these are what they come
/// from.
Biquad headFilter(double rate) {
    constexpr double frequency = 1681.974450955533;
    constexpr double quality = 0.7071752369554196;
    constexpr double rise = 3.999843853973347;
    constexpr double middleShare = 0.4996667741545416;
    const double k = std::tan(std::numbers::pi * frequency / rate);
    const double top = fromDecibels(rise);
    const double middle = std::pow(top, middleShare);
    return {top + middle * k / quality + k * k,
            2 * (k * k - top),
            top - middle * k / quality + k * k,
            1 + k / quality + k * k,
            2 * (k * k - 1),
            1 - k / quality + k * k};
}

/// Less below 40 Hz.
Biquad lowFilter(double rate) {
    constexpr double frequency = 38.13547087602444;
    constexpr double quality = 0.5003270373238773;
    const double k = std::tan(std::numbers::pi * frequency / rate);
    const double scale = 1 + k / quality + k * k;
    return {scale, -2 * scale, scale, scale, 2 * (k * k - 1), 1 - k / quality + k * k};
}

Signal weighted(SignalView signal, double rate) {
    Signal result(signal.begin(), signal.end());
    headFilter(rate).run(result);
    lowFilter(rate).run(result);
    return result;
}

/// The mean powers of blocks that begin every `step` seconds; what lies past the end counts as silence.
std::vector<double> blockPowers(const Signal& signal, double rate, double block, double step) {
    const std::size_t length = samplesIn(block, rate);
    std::vector<double> powers;
    for (std::size_t number = 0;; ++number) {
        const std::size_t begin = samplesIn(static_cast<double>(number) * step, rate);
        if (begin >= signal.size()) {
            return powers;
        }
        double sum = 0;
        for (std::size_t i = begin; i < std::min(begin + length, signal.size()); ++i) {
            sum += signal[i] * signal[i];
        }
        powers.push_back(sum / static_cast<double>(length));
    }
}

/// The mean of those that reach the threshold; 0 where none does.
double meanAbove(const std::vector<double>& powers, double threshold) {
    double sum = 0;
    int count = 0;
    for (const double power : powers) {
        if (power >= threshold) {
            sum += power;
            ++count;
        }
    }
    return count == 0 ? 0 : sum / count;
}

double greatest(const std::vector<double>& powers) {
    return powers.empty() ? 0 : *std::ranges::max_element(powers);
}

/// How many of the programme's blocks lie within the piece; one for a piece shorter than that.
std::size_t wholeBlocks(std::size_t samples, double rate, std::size_t blocks) {
    while (blocks > 1 && samplesIn(static_cast<double>(blocks - 1) * programmeStep, rate) +
                                 samplesIn(momentaryBlock, rate) >
                             samples) {
        --blocks;
    }
    return blocks;
}

double powerOf(double loudness) {
    return std::pow(10.0, (loudness - offset) / 10);
}

} // namespace

double speechLoudness(SignalView signal, double rate) {
    const std::vector<double> powers = blockPowers(weighted(signal, rate), rate, speechBlock, speechStep);
    const double sum = std::accumulate(powers.begin(), powers.end(), 0.0);
    const double squares = std::inner_product(powers.begin(), powers.end(), powers.begin(), 0.0);
    return toLoudness(sum > 0 ? squares / sum : 0);
}

double momentaryLoudness(SignalView signal, double rate) {
    return toLoudness(greatest(blockPowers(weighted(signal, rate), rate, momentaryBlock, momentaryStep)));
}

double programmeLoudness(std::span<const Signal> channels, double rate) {
    std::vector<double> powers;
    for (const Signal& channel : channels) {
        std::vector<double> more = blockPowers(weighted(channel, rate), rate, momentaryBlock, programmeStep);
        more.resize(wholeBlocks(channel.size(), rate, more.size()));
        powers.resize(std::max(powers.size(), more.size()));
        std::ranges::transform(more, powers, powers.begin(), std::plus<>());
    }
    const double ungated = toLoudness(meanAbove(powers, powerOf(absoluteGate)));
    return toLoudness(meanAbove(powers, powerOf(std::max(absoluteGate, ungated + relativeGate))));
}

} // namespace ventrel::sound
