#include "tools/sound/synthesiser.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "tools/sound/filters.h"
#include "tools/sound/room.h"
#include "tools/sound/sound_file.h"

namespace ventrel::sound {

namespace {

constexpr double synthesisRate = 4 * fileRate;
constexpr double rumble = 45;   // hertz: below it loudspeakers only move
constexpr int retuneEvery = 32; // samples: how often a moving filter is set anew
constexpr double concertKey = 69;
constexpr double concertPitch = 440;
constexpr double semitones = 12;

double frequencyOf(double key) {
    return concertPitch * std::exp2((key - concertKey) / semitones);
}

/// The curve's height at a time; frequencies move evenly by ear, levels in a straight line.
double heightAt(const Curve& curve, double time, bool isFrequency) {
    if (time <= curve.front().time) {
        return curve.front().value;
    }
    for (std::size_t i = 1; i < curve.size(); ++i) {
        const CurvePoint& a = curve[i - 1];
        const CurvePoint& b = curve[i];
        if (time <= b.time) {
            const double share = (time - a.time) / (b.time - a.time);
            return isFrequency ? a.value * std::pow(b.value / a.value, share)
                               : a.value + (b.value - a.value) * share;
        }
    }
    return curve.back().value;
}

/// Rounds off the corner of a saw or a square at phase 0, where it would alias; `step` is the phase of a
/// sample.
double corner(double phase, double step) {
    if (phase < step) {
        const double x = phase / step;
        return x + x - x * x - 1;
    }
    if (phase > 1 - step) {
        const double x = (phase - 1) / step;
        return x * x + x + x + 1;
    }
    return 0;
}

double waveAt(Wave wave, double phase, double step) {
    switch (wave) {
    case Wave::sine: return std::sin(2 * std::numbers::pi * phase);
    case Wave::triangle: return 4 * std::abs(phase - 0.5) - 1;
    case Wave::saw: return 2 * phase - 1 - corner(phase, step);
    case Wave::square:
        return (phase < 0.5 ? 1 : -1) + corner(phase, step) - corner(std::fmod(phase + 0.5, 1.0), step);
    default: return 0;
    }
}

Signal oscillate(const Layer& layer, const Curve& pitch, std::size_t length) {
    Signal signal(length);
    double phase = 0;
    for (std::size_t i = 0; i < length; ++i) {
        const double time = static_cast<double>(i) / synthesisRate;
        const double bend =
            layer.vibrato.depth * std::sin(2 * std::numbers::pi * layer.vibrato.rate * time) / semitones;
        const double step = heightAt(pitch, time, true) * std::exp2(bend) / synthesisRate;
        signal[i] = waveAt(layer.wave, phase, step);
        phase = std::fmod(phase + step, 1.0);
    }
    return signal;
}

using FilterMaker = Biquad (*)(double rate, double frequency, double quality);

/// Runs the signal through a filter whose frequency follows the curve.
void sweep(Signal& signal, const Curve& curve, FilterMaker make, double quality) {
    if (curve.empty()) {
        return;
    }
    Biquad filter = make(synthesisRate, curve.front().value, quality);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        if (curve.size() > 1 && i % retuneEvery == 0) {
            filter.retune(
                make(synthesisRate, heightAt(curve, static_cast<double>(i) / synthesisRate, true), quality));
        }
        signal[i] = filter.next(signal[i]);
    }
}

/// Levels that wander by chance, new ones `rate` times a second, joined by straight lines.
Signal wandering(const Swing& flutter, std::size_t length, Chance& chance) {
    Signal factors(length);
    double from = chance.next();
    double to = chance.next();
    double share = 0;
    for (double& factor : factors) {
        factor = fromDecibels(flutter.depth * (from + (to - from) * share));
        share += flutter.rate / synthesisRate;
        if (share >= 1) {
            share -= 1;
            from = to;
            to = chance.next();
        }
    }
    return factors;
}

void shape(Signal& signal, const Layer& layer, Chance& chance) {
    const Signal flutter = wandering(layer.flutter, signal.size(), chance);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double time = static_cast<double>(i) / synthesisRate;
        double level = layer.gain;
        if (layer.decay > 0) {
            level -= 60 * time / layer.decay;
        }
        if (!layer.level.empty()) {
            level += heightAt(layer.level, time, false);
        }
        const double swing = std::sin(2 * std::numbers::pi * layer.tremolo.rate * time);
        signal[i] *= fromDecibels(level) * flutter[i] * (1 - layer.tremolo.depth * (0.5 - 0.5 * swing));
    }
    fadeEnds(signal, samplesIn(layer.attack, synthesisRate), samplesIn(layer.release, synthesisRate));
}

/// A soft limit at 1, reached sooner by so many decibels.
void limitSoftly(Signal& signal, double drive) {
    if (drive > 0) {
        const double factor = fromDecibels(drive);
        for (double& sample : signal) {
            sample = std::tanh(sample * factor);
        }
    }
}

void mixIn(Signal& sum, const Signal& signal, double start) {
    const std::size_t first = samplesIn(std::max(0.0, start), synthesisRate);
    for (std::size_t i = 0; i < signal.size() && first + i < sum.size(); ++i) {
        sum[first + i] += signal[i];
    }
}

/// What a layer's wave gives before it is shaped.
Signal rawWave(const Layer& layer, const Curve& pitch, double length, const Signal& recording,
               Chance& chance) {
    const std::size_t count = samplesIn(length, synthesisRate);
    if (layer.wave == Wave::recording) {
        Signal signal = recording;
        signal.resize(count);
        return signal;
    }
    if (layer.wave == Wave::noise) {
        Signal signal(count);
        std::ranges::generate(signal, [&] { return chance.next(); });
        return signal;
    }
    return oscillate(layer, pitch, count);
}

Signal voiceOf(const Layer& layer, const Curve& pitch, double length, const Signal& recording,
               Chance& chance) {
    Signal signal = rawWave(layer, pitch, length, recording, chance);
    sweep(signal, layer.low, Biquad::highPass, flat);
    sweep(signal, layer.high, Biquad::lowPass, flat);
    sweep(signal, layer.band, Biquad::bandPass, layer.quality);
    limitSoftly(signal, layer.drive);
    shape(signal, layer, chance);
    return signal;
}

void playNotes(Signal& sum, const Layer& layer, Chance& chance) {
    for (const Note& note : layer.notes) {
        for (const double key : note.keys) {
            mixIn(sum, voiceOf(layer, {{0, frequencyOf(key)}}, note.length, {}, chance), note.start);
        }
    }
}

void playLayer(Signal& sum, const Layer& layer, const Signal& recording, Chance& chance) {
    if (!layer.notes.empty()) {
        playNotes(sum, layer, chance);
        return;
    }
    for (int copy = 0; copy < layer.copies; ++copy) {
        const double stray = layer.copies > 1 ? layer.scatter * chance.next() : 0;
        mixIn(sum, voiceOf(layer, layer.pitch, layer.length, recording, chance),
              layer.start + copy * layer.every + stray);
    }
}

Result<Signal> joined(const Layer& layer, const std::filesystem::path& sounds) {
    Signal all;
    for (const std::string& file : layer.files) {
        const auto sound = readSound(sounds / file);
        if (!sound) {
            return tl::unexpected(sound.error());
        }
        all.insert(all.end(), sound->begin(), sound->end());
    }
    return all.empty() ? all : resampled(all, fileRate, synthesisRate);
}

} // namespace

Result<Signal> play(const Effect& effect, const std::filesystem::path& sounds) {
    Signal sum(samplesIn(effect.length, synthesisRate));
    for (std::size_t i = 0; i < effect.layers.size(); ++i) {
        const auto recording = joined(effect.layers[i], sounds);
        if (!recording) {
            return tl::unexpected(recording.error());
        }
        Chance chance(effect.name + std::to_string(i));
        playLayer(sum, effect.layers[i], *recording, chance);
    }
    if (effect.hasRoom) {
        addRoom(sum, synthesisRate, effect.roomTime, effect.roomGain);
    }
    limitSoftly(sum, effect.drive);
    Biquad::highPass(synthesisRate, rumble, flat).run(sum);
    Signal result = resampled(sum, synthesisRate, fileRate);
    fadeEnds(result, samplesIn(effect.fadeIn, fileRate), samplesIn(effect.fadeOut, fileRate));
    return result;
}

} // namespace ventrel::sound
