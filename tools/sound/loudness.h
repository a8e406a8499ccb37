// How loud a sound is to the ear: levels weighted by frequency as ITU-R BS.1770 weighs them, in LKFS.
//
// A sine of 1 kHz at full scale in one channel has about -3 LKFS.

#pragma once

#include "tools/sound/signal.h"

namespace ventrel::sound {

/// What counts as no sound at all.
inline constexpr double silence = -120;

/// Of speech: the level over its blocks of 20 ms, leaving out those that lie 20 dB and more below the
/// loudest.
double speechLoudness(SignalView signal, double rate);

/// Of an effect: the level over its loudest 400 ms (the greatest momentary loudness). A shorter sound counts
/// as followed by silence, much as the ear takes it.
double momentaryLoudness(SignalView signal, double rate);

/// Of a piece of music in any number of channels, all equally long: the gated loudness of the whole.
double programmeLoudness(std::span<const Signal> channels, double rate);

} // namespace ventrel::sound
