// Calls as the game joins them from snippets, to try a voice with, and how they are written.

#pragma once

#include <string>
#include <vector>

#include "tools/sound/speaker.h"

namespace ventrel::sound {

/// The names of a call's snippets, in order.
using Call = std::vector<std::string>;

/// So many calls, the same each time: all airlines, digits, headings, altitudes and messages take their
/// turns.
std::vector<Call> sampleCalls(int count);

/// The words of a call, in small letters and without punctuation.
std::vector<std::string> wordsOf(const Call& call, const Script& script);

/// A JSGF grammar of all calls that the game can make.
std::string callGrammar(const Script& script);

} // namespace ventrel::sound
