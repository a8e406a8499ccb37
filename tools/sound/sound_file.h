// The files of the sound tool: recordings that speech programs and synthesisers write (RIFF WAV, 16 bits),
// and the program's own sounds.

#pragma once

#include <filesystem>

#include "base/result.h"
#include "tools/sound/signal.h"

namespace ventrel::sound {

struct Recording {
    double rate = 0; ///< samples per second
    std::vector<Signal> channels;
};

/// A WAV file of 16-bit samples. Whatever length its header claims, it ends where the file does.
Result<Recording> readWave(const std::filesystem::path& file);

/// A sound of the program: headerless, 8 bits, one channel, `fileRate`.
Result<Signal> readSound(const std::filesystem::path& file);

/// Writes a sound of the program, which the caller has kept within -1 and 1. `dither` hides the steps of a
/// soft sound in an even hiss; it needs a seed.
Result<> writeSound(const std::filesystem::path& file, SignalView signal, std::string_view dither = {});

} // namespace ventrel::sound
