// The speech programs of the system, which read the pilots' words aloud.

#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "base/result.h"

namespace ventrel::sound {

enum class Engine { flite, festival, espeak };

/// Who speaks, and how. What a program cannot change it ignores.
struct Speaker {
    Engine engine = Engine::flite;
    std::string name; ///< the program's own name of the voice
    double pitch = 0; ///< hertz; of espeak its number from 0 to 99. 0: the voice's own
    double spread =
        0;           ///< how far the pitch strays from there, in hertz; small joins words without a sing-song
    double pace = 1; ///< how long everything takes, 1 being the voice's own; of espeak words a minute
    double tract = 1; ///< as of `RadioSettings`: pitch and pace hold after it
};

/// What is spoken: the words of each snippet, by its name.
using Script = std::map<std::string, std::string>;

/// Reads a speaker and his words from their recipes.
Result<Speaker> readSpeaker(const std::filesystem::path& file);
Result<Script> readScript(const std::filesystem::path& file);

/// Speaks every snippet into `folder`, as NAME.wav.
Result<> speak(const Speaker& speaker, const Script& script, const std::filesystem::path& folder);

} // namespace ventrel::sound
