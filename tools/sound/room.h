// The echoes of a room.

#pragma once

#include "tools/sound/signal.h"

namespace ventrel::sound {

/// Adds echoes that fade by 60 dB in `time` seconds, at `gain` decibels; those past the signal's end are
/// lost.
void addRoom(Signal& signal, double rate, double time, double gain);

} // namespace ventrel::sound
