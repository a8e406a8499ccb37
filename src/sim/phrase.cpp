#include "sim/phrase.h"

#include "sim/grid.h"

namespace ventrel {

namespace {

constexpr char firstCharacter = 0x20;
constexpr int firstAirlineSnippet = 45;

struct SnippetEntry {
    std::string_view file;
    std::string_view words;
};

// In the order of their numbers; the airlines follow.
constexpr std::array<SnippetEntry, firstAirlineSnippet> plainSnippets{{
    {"still.snd", "still waiting"},
    {"request.snd", "requesting departure"},
    {"descending.snd", "descending to"},
    {"climbing.snd", "climbing to"},
    {"levelat.snd", "with you level at"},
    {"requestair.snd", "going around, request new approach"},
    {"requestvor.snd", "request vectors to the VOR"},
    {"1k.snd", "one thousand"},
    {"2k.snd", "two thousand"},
    {"3k.snd", "three thousand"},
    {"4k.snd", "four thousand"},
    {"5k.snd", "five thousand"},
    {"6k.snd", "six thousand"},
    {"7k.snd", "seven thousand"},
    {"8k.snd", "eight thousand"},
    {"9k.snd", "niner thousand"},
    {"10k.snd", "one zero thousand"},
    {"heavy.snd", "heavy"},
    {"repeat.snd", "say again"},
    {"landing.snd", "landing"},
    {"roger.snd", "roger"},
    {"gooday.snd", "good day"},
    {"directvor.snd", "direct to the VOR"},
    {"leaving.snd", "leaving your airspace"},
    {"mayday.snd", "mayday, mayday"},
    {"hell.snd", "what the hell!"},
    {"airvec.snd", "we need a vector, now"},
    {"deadahead.snd", "traffic dead ahead"},
    {"one.snd", "one"},
    {"two.snd", "two"},
    {"three.snd", "three"},
    {"four.snd", "four"},
    {"five.snd", "five"},
    {"six.snd", "six"},
    {"seven.snd", "seven"},
    {"eight.snd", "eight"},
    {"nine.snd", "niner"},
    {"turn0.snd", "turn heading three six zero"},
    {"turn45.snd", "turn heading zero four five"},
    {"turn90.snd", "turn heading zero niner zero"},
    {"turn135.snd", "turn heading one three five"},
    {"turn180.snd", "turn heading one eight zero"},
    {"turn225.snd", "turn heading two two five"},
    {"turn270.snd", "turn heading two seven zero"},
    {"turn315.snd", "turn heading three one five"},
}};

static_assert(firstAirlineSnippet + airlineCount == snippetCount);

constexpr std::size_t indexOf(int number) {
    return static_cast<std::size_t>(number);
}

constexpr char offsetBy(char base, int offset) {
    return static_cast<char>(base + offset);
}

} // namespace

std::string_view snippetFile(int number) {
    return number < firstAirlineSnippet ? plainSnippets.at(indexOf(number)).file
                                        : airlines.at(indexOf(number - firstAirlineSnippet)).snippet;
}

std::string_view snippetWords(int number) {
    return number < firstAirlineSnippet ? plainSnippets.at(indexOf(number)).words
                                        : airlines.at(indexOf(number - firstAirlineSnippet)).words;
}

int snippetNumber(char phraseCharacter) {
    const int number = static_cast<unsigned char>(phraseCharacter) - firstCharacter;
    return number >= 0 && number < snippetCount ? number : -1;
}

int drawNoises(RandomGenerator& random) {
    constexpr int fewest = 1;
    constexpr int most = 8;
    return Random(random, fewest, most);
}

void VoiceAppend(std::string& phrase, char phraseCharacter) {
    phrase.push_back(phraseCharacter);
}

char VoiceAltitudeCode(int altitude) {
    return offsetBy('&', altitude);
}

char VoiceHeadingCode(int heading) {
    return offsetBy('E', isHeading(heading) ? heading / headingStep : 0);
}

char VoiceDigitCode(int digit) {
    return offsetBy(';', digit);
}

char VoiceAirlineCode(int row) {
    return offsetBy('M', row);
}

std::string phraseAsWords(std::string_view phrase) {
    std::string words;
    for (const char character : phrase) {
        const int number = snippetNumber(character);
        if (number < 0) {
            continue;
        }
        if (!words.empty()) {
            words += ' ';
        }
        words += snippetWords(number);
    }
    return words;
}

} // namespace ventrel
