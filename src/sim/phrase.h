// What pilots say: a radio call is a text of phrase characters, each of which stands for one recorded
// snippet.
//
// The simulation composes phrases; the audio room turns them into sound, the tools into written words.
// A snippet's character is its number plus 0x20, so a phrase is printable.

#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/random.h"

namespace ventrel {

/// An airline, or a kind of light aircraft that flies under its own name.
struct Airline {
    std::string_view code;    ///< as printed in a callsign
    std::string_view snippet; ///< file of its spoken name
    std::string_view words;   ///< its spoken name as written
};

inline constexpr int airlineCount = 16;
inline constexpr int firstLightAircraft = 11; ///< rows from here on are never heavy

inline constexpr std::array<Airline, airlineCount> airlines{{
    {"UA", "united.snd", "United"},
    {"DL", "delta.snd", "Delta"},
    {"NW", "northwest.snd", "Northwest"},
    {"IB", "iberia.snd", "Iberia"},
    {"TW", "twa.snd", "TWA"},
    {"AA", "american.snd", "American"},
    {"LF", "lufthansa.snd", "Lufthansa"},
    {"QA", "qantas.snd", "Qantas"},
    {"KL", "klm.snd", "KLM"},
    {"CO", "continental.snd", "Continental"},
    {"US", "usair.snd", "USAir"},
    {"CH", "cherokee.snd", "Cherokee"},
    {"PC", "pipercub.snd", "Piper Cub"},
    {"LR", "lear.snd", "Lear"},
    {"GF", "gulfstream.snd", "Gulfstream"},
    {"CS", "cessna.snd", "Cessna"},
}};

/// The phrase characters of the snippets that stand alone. Altitudes, digits, turns and airlines have their
/// own functions below.
namespace snippet {

inline constexpr char still = ' ';
inline constexpr char request = '!';
inline constexpr char descending = '"';
inline constexpr char climbing = '#';
inline constexpr char levelAt = '$';
inline constexpr char requestAirport = '%';
inline constexpr char requestVor = '&';
inline constexpr char heavy = '1';
inline constexpr char repeat = '2';
inline constexpr char landing = '3';
inline constexpr char roger = '4';
inline constexpr char goodDay = '5';
inline constexpr char directVor = '6';
inline constexpr char leaving = '7';
inline constexpr char mayday = '8';
inline constexpr char hell = '9';
inline constexpr char airVector = ':';
inline constexpr char deadAhead = ';';

} // namespace snippet

inline constexpr int snippetCount = 61;

/// The file name of a snippet, by number from 0 to 60; every voice folder holds all of them.
std::string_view snippetFile(int number);

/// What a snippet says, as written words (assets/sound/calls.toml).
std::string_view snippetWords(int number);

/// How often the radio noise sounds before a call, 1 to 8: drawn for every call that is spoken with it.
int drawNoises(RandomGenerator& random);

/// The number of the snippet that a phrase character stands for; -1 for a character that stands for none.
int snippetNumber(char phraseCharacter);

/// Appends one snippet to a phrase.
void VoiceAppend(std::string& phrase, char phraseCharacter);

/// "1k" to "10k"; the caller passes 1 to 10.
char VoiceAltitudeCode(int altitude);
/// The turn to that heading; a number that is no heading counts as 0.
char VoiceHeadingCode(int heading);
/// "one" to "nine"; the caller passes 1 to 9.
char VoiceDigitCode(int digit);
/// The spoken name of a row of `airlines`.
char VoiceAirlineCode(int row);

/// The whole phrase as written words with blanks between them.
std::string phraseAsWords(std::string_view phrase);

/// The same for reading at a glance, with figures: "Delta 186 climbing to 10,000".
std::string phraseInFigures(std::string_view phrase);

} // namespace ventrel
