// From the recordings' 8001 samples a second to the device's rate, by a windowed sinc.
//
// Upward only. The wanted band (to 3,600 Hz) comes through whole, its images lie below -80 dB, and the sound
// is late by half the filter's length, 2 ms.
// See J. O. Smith, "Digital Audio Resampling", https://ccrma.stanford.edu/~jos/resample/.

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ventrel {

class Resampler {
public:
    /// `outputRate` is at least `inputRate`; both in samples a second.
    Resampler(int inputRate, int outputRate);

    /// How many input samples the next `outputs` samples take.
    std::size_t inputsFor(std::size_t outputs) const;

    /// Takes exactly that many inputs and fills `output`. Allocates nothing.
    void run(std::span<const float> input, std::span<float> output);

    static constexpr std::size_t taps = 32;

private:
    static constexpr std::size_t phases = 128;
    using Filter = std::array<float, taps>;

    void take(float sample);
    float filtered() const;

    std::vector<Filter> filters_;           // one more than phases, for the place between two
    std::array<float, 2 * taps> history_{}; // every sample stands twice, so that the latest lie in a row
    std::size_t newest_ = 0;                // where the latest sample stands in the first half
    std::uint64_t step_;                    // inputs for one output, in 2^-32
    std::uint64_t place_ = 0;               // of the next output after the latest input, in 2^-32
};

} // namespace ventrel
