#include "tools/sound/calls.h"

#include <array>
#include <cctype>
#include <cmath>
#include <sstream>

#include "tools/sound/signal.h"

namespace ventrel::sound {

namespace {

using Names = std::vector<std::string>;

const Names airlines{"united",    "delta",  "northwest",  "iberia",      "twa",   "american",
                     "lufthansa", "qantas", "klm",        "continental", "usair", "cherokee",
                     "pipercub",  "lear",   "gulfstream", "cessna"};
const Names digits{"one", "two", "three", "four", "five", "six", "seven", "eight", "nine"};
const Names altitudes{"1k", "2k", "3k", "4k", "5k", "6k", "7k", "8k", "9k", "10k"};
const Names turns{"turn0", "turn45", "turn90", "turn135", "turn180", "turn225", "turn270", "turn315"};
const Names changes{"climbing", "descending"};

// What follows a callsign; a name in capitals stands for any of its kind.
const std::vector<Names> messages{
    {"levelat", "ALTITUDE"},
    {"request"},
    {"still"},
    {"repeat", "still"},
    {"TURN"},
    {"TURN", "CHANGE", "ALTITUDE"},
    {"CHANGE", "ALTITUDE"},
    {"CHANGE", "ALTITUDE", "directvor"},
    {"directvor"},
    {"roger"},
    {"leaving", "gooday"},
    {"repeat", "requestvor"},
    {"landing", "gooday"},
    {"requestvor", "hell"},
    {"mayday", "airvec"},
    {"requestair", "hell"},
    {"mayday", "deadahead"},
};

constexpr int digitsOfCall = 3;
constexpr double heavyShare = 0.3;
constexpr std::size_t firstLight = 11; // airline that is never heavy

/// Takes a kind's names in turn, from a place by chance.
class Turn {
public:
    Turn(const Names& names, Chance& chance)
        : names_(&names),
          next_(static_cast<std::size_t>((chance.next() + 1) / 2 * static_cast<double>(names.size()))) {}
    const std::string& take() { return names_->at(next_++ % names_->size()); }

private:
    const Names* names_;
    std::size_t next_;
};

std::string anyOf(const Names& names, const Script& script) {
    std::string text;
    for (const std::string& name : names) {
        text += text.empty() ? "( " : " | ";
        for (const std::string& word : wordsOf({name}, script)) {
            text += word + ' ';
        }
    }
    return text + ')';
}

std::string ruleOf(const std::string& name, const Script& script) {
    const bool isKind = std::isupper(static_cast<unsigned char>(name.front())) != 0;
    return isKind ? '<' + name + '>' : anyOf({name}, script);
}

} // namespace

std::vector<Call> sampleCalls(int count) {
    Chance chance("calls");
    Turn altitude(altitudes, chance);
    Turn turn(turns, chance);
    Turn change(changes, chance);
    std::vector<Call> calls;
    for (int i = 0; i < count; ++i) {
        const auto number = static_cast<std::size_t>(i);
        const std::size_t airline = number % airlines.size();
        Call call{airlines[airline]};
        for (int digit = 0; digit < digitsOfCall; ++digit) {
            call.push_back(Turn(digits, chance).take());
        }
        if (airline < firstLight && std::abs(chance.next()) < heavyShare) {
            call.emplace_back("heavy");
        }
        for (const std::string& name : messages[number % messages.size()]) {
            call.push_back(name == "ALTITUDE" ? altitude.take()
                           : name == "TURN"   ? turn.take()
                           : name == "CHANGE" ? change.take()
                                              : name);
        }
        calls.push_back(call);
    }
    return calls;
}

std::vector<std::string> wordsOf(const Call& call, const Script& script) {
    std::vector<std::string> words;
    for (const std::string& name : call) {
        std::string text;
        for (const char letter : script.at(name)) {
            const auto code = static_cast<unsigned char>(letter);
            text += std::isalpha(code) != 0 ? static_cast<char>(std::tolower(code)) : ' ';
        }
        std::istringstream stream(text);
        for (std::string word; stream >> word;) {
            words.push_back(word);
        }
    }
    return words;
}

std::string callGrammar(const Script& script) {
    std::string rest;
    for (const Names& message : messages) {
        rest += rest.empty() ? "" : " | ";
        for (const std::string& name : message) {
            rest += ruleOf(name, script) + ' ';
        }
    }
    return "#JSGF V1.0;\ngrammar calls;\n"
           "<AIRLINE> = " +
           anyOf(airlines, script) + ";\n<DIGIT> = " + anyOf(digits, script) +
           ";\n<ALTITUDE> = " + anyOf(altitudes, script) + ";\n<TURN> = " + anyOf(turns, script) +
           ";\n<CHANGE> = " + anyOf(changes, script) + ";\n<MESSAGE> = " + rest +
           ";\npublic <call> = <AIRLINE> <DIGIT> <DIGIT> <DIGIT> [" + anyOf({"heavy"}, script) +
           "] <MESSAGE>;\n";
}

} // namespace ventrel::sound
