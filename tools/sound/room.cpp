#include "tools/sound/room.h"

#include <array>
#include <cmath>

namespace ventrel::sound {

namespace {

// Seconds without a common measure, so that the echoes never fall together.
constexpr std::array<double, 6> loops{0.0297, 0.0371, 0.0411, 0.0437, 0.0503, 0.0571};
constexpr std::array<double, 2> diffusers{0.0051, 0.0017};
constexpr double diffusion = 0.7;
constexpr double airLoss = 0.35; // of a loop's high notes at each turn
constexpr double fadeToThousandth = -3;

/// An echo that returns to itself, duller each time.
Signal looped(const Signal& signal, std::size_t delay, double feedback) {
    Signal line(delay);
    Signal result(signal.size());
    double dull = 0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        double& place = line[i % delay];
        result[i] = place;
        dull = place * (1 - airLoss) + dull * airLoss;
        place = signal[i] + dull * feedback;
    }
    return result;
}

/// Smears a sound over time and leaves its colour.
void diffuse(Signal& signal, std::size_t delay) {
    Signal line(delay);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        double& place = line[i % delay];
        const double in = signal[i] + diffusion * place;
        signal[i] = place - diffusion * in;
        place = in;
    }
}

} // namespace

void addRoom(Signal& signal, double rate, double time, double gain) {
    Signal echoes(signal.size());
    for (const double loop : loops) {
        const Signal more =
            looped(signal, samplesIn(loop, rate), std::pow(10.0, fadeToThousandth * loop / time));
        for (std::size_t i = 0; i < echoes.size(); ++i) {
            echoes[i] += more[i] / static_cast<double>(loops.size());
        }
    }
    for (const double delay : diffusers) {
        diffuse(echoes, samplesIn(delay, rate));
    }
    const double factor = fromDecibels(gain);
    for (std::size_t i = 0; i < signal.size(); ++i) {
        signal[i] += factor * echoes[i];
    }
}

} // namespace ventrel::sound
