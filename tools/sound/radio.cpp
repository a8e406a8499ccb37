#include "tools/sound/radio.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "tools/sound/filters.h"
#include "tools/sound/loudness.h"

namespace ventrel::sound {

namespace {

constexpr double radioRate = 16000;
constexpr double workLevel = -23; // RMS, at which the trimming and the compressor are set

// Cut off is what lies below this level over 10 ms: of the full band, for a hiss has little below 3.4 kHz.
constexpr double trimLevel = 0.003;
constexpr double trimBlock = 0.010;
// And again what of the radio's band lies below half a step of the file: a murmur before "good" or "eight" is
// long.
constexpr double inaudible = 1.0 / 256;
constexpr double trimRise = 0.006;
constexpr double trimFall = 0.012;

// Consonants are raised before the band is cut, as a radio's microphone does.
constexpr double emphasis = 8; // dB
constexpr double emphasisFrequency = 2500;
constexpr double emphasisQuality = 0.5;

constexpr double bandLow = 300;
constexpr double bandHigh = 3400;
constexpr std::size_t bandTaps = 511;
constexpr double cleanLow = 250;
constexpr double cleanHigh = 3600;
constexpr std::size_t cleanTaps = 255;

constexpr double attack = 0.004;
constexpr double release = 0.120;
constexpr double lookAhead = 0.004;

constexpr double ceiling = 0.63;  // at which the transmitter clips
constexpr double leastGain = -60; // dB
constexpr double mostGain = 60;
constexpr int levellingPasses = 24;

constexpr double silenceBefore = 0.025;
constexpr double silenceAfter = 0.060;

struct Knee {
    double in, out; // dB
};

// Soft is made less soft; the loud is held.
constexpr std::array<Knee, 5> knees{{{-70, -70}, {-45, -32}, {-25, -16}, {0, -9}, {20, -7}}};

double compressed(double level) {
    level = std::clamp(level, knees.front().in, knees.back().in);
    std::size_t upper = 1;
    while (knees.at(upper).in < level) {
        ++upper;
    }
    const Knee& a = knees.at(upper - 1);
    const Knee& b = knees.at(upper);
    return a.out + (b.out - a.out) * (level - a.in) / (b.in - a.in);
}

double stepOf(double seconds) {
    return 1 - std::exp(-1 / (seconds * radioRate));
}

void compress(Signal& signal) {
    const double rising = stepOf(attack);
    const double falling = stepOf(release);
    const std::size_t ahead = samplesIn(lookAhead, radioRate);
    double envelope = fromDecibels(workLevel);
    for (std::size_t i = 0; i < signal.size() + ahead; ++i) {
        const double coming = i < signal.size() ? std::abs(signal[i]) : 0;
        envelope += (coming - envelope) * (coming > envelope ? rising : falling);
        if (i >= ahead) {
            const double level = toDecibels(envelope);
            signal[i - ahead] *= fromDecibels(compressed(level) - level);
        }
    }
}

/// What lies between the first and the last block in which somebody speaks, and a block to either side.
Signal trimmed(SignalView signal, double rate, double least) {
    const std::size_t block = samplesIn(trimBlock, rate);
    std::size_t first = signal.size();
    std::size_t last = 0;
    for (std::size_t at = 0; at + block <= signal.size(); at += block) {
        if (rootMeanSquare(signal.subspan(at, block)) > least) {
            first = std::min(first, std::max(at, block) - block);
            last = std::min(at + 2 * block, signal.size());
        }
    }
    const SignalView spoken = first < last ? signal.subspan(first, last - first) : SignalView();
    return {spoken.begin(), spoken.end()};
}

/// Amplified, its highest peaks clipped.
Signal transmitted(const Signal& signal, double gain) {
    Signal result = signal;
    amplify(result, fromDecibels(gain));
    std::ranges::transform(result, result.begin(),
                           [](double sample) { return std::clamp(sample, -ceiling, ceiling); });
    return result;
}

/// At the wanted loudness. The more is clipped the less a decibel of gain gives: the gain is searched.
Signal levelled(const Signal& signal, double loudness) {
    double low = leastGain;
    double high = mostGain;
    for (int pass = 0; pass < levellingPasses; ++pass) {
        const double gain = (low + high) / 2;
        (speechLoudness(transmitted(signal, gain), fileRate) < loudness ? low : high) = gain;
    }
    return transmitted(signal, low);
}

} // namespace

Result<Signal> overRadio(SignalView speech, const RadioSettings& settings) {
    Signal signal = resampled(speech, settings.rate * settings.tract, radioRate);
    const double level = rootMeanSquare(signal);
    if (level == 0) {
        return failed("nobody speaks");
    }
    amplify(signal, fromDecibels(workLevel) / level);
    signal = trimmed(signal, radioRate, trimLevel);
    fadeEnds(signal, samplesIn(trimRise, radioRate), samplesIn(trimFall, radioRate));
    Biquad::highShelf(radioRate, emphasisFrequency, emphasisQuality, emphasis).run(signal);
    signal = bandPass(signal, radioRate, bandLow, bandHigh, bandTaps);
    compress(signal);
    signal = bandPass(signal, radioRate, cleanLow, cleanHigh, cleanTaps);
    signal =
        trimmed(levelled(resampled(signal, radioRate, fileRate), settings.loudness), fileRate, inaudible);
    fadeEnds(signal, samplesIn(trimRise, fileRate), samplesIn(trimFall, fileRate));
    signal.insert(signal.begin(), samplesIn(silenceBefore, fileRate), 0);
    signal.insert(signal.end(), samplesIn(silenceAfter, fileRate), 0);
    return signal;
}

} // namespace ventrel::sound
