// The radio between a pilot and the tower: one chain for all voices, from a clean recording to a call as it
// comes out of a loudspeaker.

#pragma once

#include "base/result.h"
#include "tools/sound/signal.h"

namespace ventrel::sound {

/// How a speaker's recordings become a pilot's.
struct RadioSettings {
    double rate = 0;       ///< of the recording
    double tract = 1;      ///< above 1 a shorter vocal tract and a higher voice, below 1 a longer one
    double loudness = -12; ///< of the call, as `speechLoudness` measures it
};

/// A snippet at `fileRate`: trimmed, with a breath of silence on either side so that snippets join to a
/// sentence. Fails for a recording in which nobody speaks.
Result<Signal> overRadio(SignalView speech, const RadioSettings& settings);

} // namespace ventrel::sound
