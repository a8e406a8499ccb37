// Sound as numbers: the type that every step of the sound tool works on, decibels, and the rates.
//
// A sample of 1 is the loudest that a sound file can hold. Steps are exact: the same input gives the same
// bytes on every machine.

#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace ventrel::sound {

using Signal = std::vector<double>;
using SignalView = std::span<const double>;

/// Samples per second of the program's sound files.
inline constexpr double fileRate = 8001;
/// Files hold 8 bits: this is one step of them.
inline constexpr double fileStep = 1.0 / 128;

/// The factor of an amplitude that is so many decibels more.
double fromDecibels(double decibels);
/// Decibels of an amplitude; -200 for none.
double toDecibels(double amplitude);

/// The whole number of samples nearest to that time.
std::size_t samplesIn(double seconds, double rate);

/// The root of the mean square; 0 for no samples.
double rootMeanSquare(SignalView signal);
/// The greatest deviation from silence.
double peakOf(SignalView signal);
void amplify(Signal& signal, double factor);
/// Lets the first and the last so many samples rise and fall along half a cosine.
void fadeEnds(Signal& signal, std::size_t rise, std::size_t fall);

/// A generator of numbers that owes nothing to the standard library's: the same everywhere.
class Chance {
public:
    /// Equal seeds give equal numbers; a text makes a readable one.
    explicit Chance(std::string_view seed);
    /// From -1 to 1, evenly.
    double next();

private:
    unsigned long long state_ = 14695981039346656037ULL;
};

} // namespace ventrel::sound
