#include "sim/phrase.h"

#include "sim/grid.h"

namespace ventrel {

namespace {

constexpr char firstCharacter = 0x20;
constexpr int firstAirlineSnippet = 45;

struct SnippetEntry {
    std::string_view file;
    std::string_view words;
    std::string_view figures = {}; ///< a shorter form for reading; empty: the words
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
    {"1k.snd", "one thousand", "1,000"},
    {"2k.snd", "two thousand", "2,000"},
    {"3k.snd", "three thousand", "3,000"},
    {"4k.snd", "four thousand", "4,000"},
    {"5k.snd", "five thousand", "5,000"},
    {"6k.snd", "six thousand", "6,000"},
    {"7k.snd", "seven thousand", "7,000"},
    {"8k.snd", "eight thousand", "8,000"},
    {"9k.snd", "niner thousand", "9,000"},
    {"10k.snd", "one zero thousand", "10,000"},
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
    {"one.snd", "one", "1"},
    {"two.snd", "two", "2"},
    {"three.snd", "three", "3"},
    {"four.snd", "four", "4"},
    {"five.snd", "five", "5"},
    {"six.snd", "six", "6"},
    {"seven.snd", "seven", "7"},
    {"eight.snd", "eight", "8"},
    {"nine.snd", "niner", "9"},
    {"turn0.snd", "turn heading three six zero", "turn heading 360"},
    {"turn45.snd", "turn heading zero four five", "turn heading 045"},
    {"turn90.snd", "turn heading zero niner zero", "turn heading 090"},
    {"turn135.snd", "turn heading one three five", "turn heading 135"},
    {"turn180.snd", "turn heading one eight zero", "turn heading 180"},
    {"turn225.snd", "turn heading two two five", "turn heading 225"},
    {"turn270.snd", "turn heading two seven zero", "turn heading 270"},
    {"turn315.snd", "turn heading three one five", "turn heading 315"},
}};

static_assert(firstAirlineSnippet + airlineCount == snippetCount);

constexpr std::size_t indexOf(int number) {
    return static_cast<std::size_t>(number);
}

constexpr char offsetBy(char base, int offset) {
    return static_cast<char>(base + offset);
}

std::string_view figuresOf(int number) {
    const bool hasFigures =
        number < firstAirlineSnippet && !plainSnippets.at(indexOf(number)).figures.empty();
    return hasFigures ? plainSnippets.at(indexOf(number)).figures : snippetWords(number);
}

/// The snippets as text, with blanks between them but where two digits make one number.
std::string written(std::string_view phrase, std::string_view (*textOf)(int number)) {
    constexpr std::string_view digits = "123456789";
    const auto isDigit = [&](std::string_view text) {
        return text.size() == 1 && digits.find(text[0]) != std::string_view::npos;
    };
    std::string all;
    std::string_view before;
    for (const char character : phrase) {
        const int number = snippetNumber(character);
        if (number < 0) {
            continue;
        }
        const std::string_view text = textOf(number);
        if (!all.empty() && !(isDigit(before) && isDigit(text))) {
            all += ' ';
        }
        all += text;
        before = text;
    }
    return all;
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
    return written(phrase, snippetWords);
}

std::string phraseInFigures(std::string_view phrase) {
    return written(phrase, figuresOf);
}

} // namespace ventrel
