// Plays the layers of an effect into one signal.

#pragma once

#include <filesystem>

#include "base/result.h"
#include "tools/sound/effect.h"
#include "tools/sound/signal.h"

namespace ventrel::sound {

/// The effect at `fileRate`, at no particular level. Recordings that it uses lie below `sounds`; fails where
/// one cannot be read.
Result<Signal> play(const Effect& effect, const std::filesystem::path& sounds);

} // namespace ventrel::sound
