// The commands of the sound tool. Failures name the file.

#pragma once

#include <filesystem>
#include <string>

#include "base/result.h"

namespace ventrel::sound {

/// Makes all snippets of a pilot's voice in `folder`, which is made anew, at that loudness (LKFS of the
/// speech). `work` takes the speech program's recordings meanwhile.
Result<> makeVoice(const std::filesystem::path& speaker, const std::filesystem::path& script, double loudness,
                   const std::filesystem::path& work, const std::filesystem::path& folder);

/// Makes a sound effect from its recipe at that loudness (LKFS of its loudest 400 ms). Recordings that the
/// recipe uses lie below `sounds`.
Result<> makeEffect(const std::filesystem::path& recipe, double loudness, const std::filesystem::path& sounds,
                    const std::filesystem::path& target);

/// Makes all tracks of a piece of music (MIDI) end on the same beat, in its place, so that it can be played
/// round and round.
Result<> endOnBeat(const std::filesystem::path& piece);

/// One line of figures about a sound of the program (.snd) or a recording (.wav): length in seconds, peak in
/// dB, and loudness in LKFS (of speech, of the loudest moment, of the whole).
Result<std::string> measure(const std::filesystem::path& file);

} // namespace ventrel::sound
