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
    {"levelat.snd", "level at"},
    {"requestair.snd", "requesting airport"},
    {"requestvor.snd", "requesting VOR"},
    {"1k.snd", "1 thousand"},
    {"2k.snd", "2 thousand"},
    {"3k.snd", "3 thousand"},
    {"4k.snd", "4 thousand"},
    {"5k.snd", "5 thousand"},
    {"6k.snd", "6 thousand"},
    {"7k.snd", "7 thousand"},
    {"8k.snd", "8 thousand"},
    {"9k.snd", "9 thousand"},
    {"10k.snd", "10 thousand"},
    {"heavy.snd", "heavy"},
    {"repeat.snd", "repeat"},
    {"landing.snd", "landing"},
    {"roger.snd", "roger"},
    {"gooday.snd", "good day"},
    {"directvor.snd", "direct to VOR"},
    {"leaving.snd", "leaving"},
    {"mayday.snd", "mayday"},
    {"hell.snd", "what the hell"},
    {"airvec.snd", "bad air vector"},
    {"deadahead.snd", "traffic dead ahead"},
    {"one.snd", "one"},
    {"two.snd", "two"},
    {"three.snd", "three"},
    {"four.snd", "four"},
    {"five.snd", "five"},
    {"six.snd", "six"},
    {"seven.snd", "seven"},
    {"eight.snd", "eight"},
    {"nine.snd", "nine"},
    {"turn0.snd", "turning 0"},
    {"turn45.snd", "turning 45"},
    {"turn90.snd", "turning 90"},
    {"turn135.snd", "turning 135"},
    {"turn180.snd", "turning 180"},
    {"turn225.snd", "turning 225"},
    {"turn270.snd", "turning 270"},
    {"turn315.snd", "turning 315"},
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
                                        : AIRLINES.at(indexOf(number - firstAirlineSnippet)).snippet;
}

std::string_view snippetWords(int number) {
    return number < firstAirlineSnippet ? plainSnippets.at(indexOf(number)).words
                                        : AIRLINES.at(indexOf(number - firstAirlineSnippet)).words;
}

int snippetNumber(char phraseCharacter) {
    const int number = static_cast<unsigned char>(phraseCharacter) - firstCharacter;
    return number >= 0 && number < snippetCount ? number : -1;
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
