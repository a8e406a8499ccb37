// The filters of the sound tool, and the change from one rate to another.

#pragma once

#include "tools/sound/signal.h"

namespace ventrel::sound {

/// A filter of the second order. Frequencies are in hertz and are kept below half the rate.
class Biquad {
public:
    static Biquad lowPass(double rate, double frequency, double quality);
    static Biquad highPass(double rate, double frequency, double quality);
    /// Lets pass what lies around the frequency, at its own level there.
    static Biquad bandPass(double rate, double frequency, double quality);
    /// Raises what lies above the frequency by so many decibels.
    static Biquad highShelf(double rate, double frequency, double quality, double decibels);

    double next(double sample) {
        const double out = b0_ * sample + s1_;
        s1_ = b1_ * sample - a1_ * out + s2_;
        s2_ = b2_ * sample - a2_ * out;
        return out;
    }
    void run(Signal& signal);
    /// Takes over the other's frequency and goes on sounding.
    void retune(const Biquad& other);

    /// By its coefficients, those of the input first.
    Biquad(double b0, double b1, double b2, double a0, double a1, double a2);

private:
    double b0_, b1_, b2_, a1_, a2_;
    double s1_ = 0, s2_ = 0;
};

/// The quality of a filter with the flattest passband.
inline constexpr double flat = 0.70710678118654752;

/// Lets pass what lies between the two frequencies, steeply and without delay. `taps` is odd; more is
/// steeper.
Signal bandPass(SignalView signal, double rate, double low, double high, std::size_t taps);

/// The same sound at another rate; what the new rate cannot hold is taken out. Played at a rate other than
/// `to`, the result is higher and shorter, or lower and longer.
Signal resampled(SignalView signal, double from, double to);

} // namespace ventrel::sound
