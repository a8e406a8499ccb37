// How well a listener who knows the phrases understands a voice: joined calls are given to pocketsphinx, and
// what it writes is held against what was said.

#pragma once

#include <filesystem>
#include <vector>

#include "base/result.h"
#include "tools/sound/calls.h"

namespace ventrel::sound {

struct Understood {
    int words = 0;      ///< that were said
    int wrongWords = 0; ///< left out, put in or taken for others
    int calls = 0;
    int wholeCalls = 0; ///< without a fault
};

/// Lets the recogniser hear the calls, joined from the snippets in `voice`. Its files go into `work`.
Result<Understood> hear(const std::filesystem::path& voice, const std::vector<Call>& calls,
                        const Script& script, const std::filesystem::path& work);

} // namespace ventrel::sound
