// A pilot's call as one recording: the radio noise, then snippet after snippet of his voice set.

#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "audio/game_sounds.h"
#include "base/random.h"
#include "base/result.h"

namespace ventrel {

inline constexpr int mostVoiceSets = 21;

/// How many pilot voices are installed: the folders snd\pcm0, snd\pcm1 and so on up to the first that is
/// missing.
int countVoiceSets(const std::filesystem::path& programFolder);

/// Reads the noise and the snippets anew at every call, so that another file is heard at once. The noise
/// comes one to eight times, which is drawn when its file has been read. A file that cannot be read fails the
/// whole call, and so does a lack of memory (text 3).
Result<std::vector<std::uint8_t>> assembleCall(const std::filesystem::path& programFolder,
                                               const SpokenCall& call, RandomGenerator& random);

} // namespace ventrel
