#include "tools/sim/arguments.h"

#include <array>
#include <limits>

#include "base/string_table.h"
#include "base/whole_number.h"
#include "base/windows1252.h"
#include "controller/track.h"
#include "sim/custom_skill.h"

namespace ventrel {

namespace {

constexpr std::string_view help = R"(Plays one shift without a window and writes everything that happens.

    ventrel-sim FILE.apt [options]
    ventrel-sim --replay FILE [FILE.apt] [--log | --score] [--until T]

  --width 800|1024   screen layout (default: that of the file)
  --skill 0..4       0 Easy, 1 Normal (default), 2 Moderate, 3 Hard, 4 Custom
  --planes N         flights of a Custom shift, 1 to 99 (default 25)
  --minutes M        length of a Custom shift, 1 to 120 (default 35)
  --clouds 0|1       random cloud cover (default 1; Easy has none)
  --direct-entry 0|1 flights enter on a direct course (default 1; Easy always)
  --voices V         pilot voice sets installed, 0 to 21 (default 0)
  --speaking         the pilots are heard: the length of the radio noise is drawn with every call
  --cloud-size WxH   size of every cloud picture in pixels (default 64x48)
  --name NAME        controller name (default Test)
  --seed N           state of the random generator (default 1)
  --seeds A..B       a shift for each seed from A to B, and a summary of each instead of everything that happens:
                     one JSON object a line
  --orders FILE      orders to send: clock flight altitude heading speed directTarget hold
  --until T          last clock second (default 36000)
  --controller       the automatic controller plays the shift
  --look-ahead N     steps of 15 clock seconds that it looks ahead, 1 to 40 (default 40)
  --careless         orders are sent at random, also beside the controller's
  --interactive      another program plays: a JSON object for each step, orders read after it
  --log              a log for people instead of one JSON object a line
  --prediction       how good the prediction of conflicts was, instead of everything that happens
  --record FILE      keeps the shift as a replay, in a new file
  --replay FILE      plays a replay, as the shift was played; without FILE.apt in the airspace of its name out
                     of the folder apt beside this program, or of the player's own
  --score            the outcome alone, in one line, and of a replay also what it is one of
  --help             this text

Exit status: 0 the shift ended or --until was reached; 1 the airport file or replay cannot be played;
2 wrong usage or a wrong orders file; 3 the replay did not come out as it tells, or tells no end.
)";

constexpr unsigned anyUnsigned = std::numeric_limits<unsigned>::max();

template <typename Number>
bool readNumber(std::string_view word, Number lowest, Number highest, Number& number) {
    const auto read = wholeNumber<Number>(word);
    if (!read || *read < lowest || *read > highest) {
        return false;
    }
    number = *read;
    return true;
}

bool readFlag(std::string_view word, bool& flag) {
    flag = word == "1";
    return word == "0" || word == "1";
}

bool setWidth(Arguments& arguments, std::string_view word) {
    int width = 0;
    if (!readNumber(word, 0, std::numeric_limits<int>::max(), width) || !scopeLayoutFor(width)) {
        return false;
    }
    arguments.width = width;
    return true;
}

bool setSkill(Arguments& arguments, std::string_view word) {
    int skill = 0;
    if (!readNumber(word, 0, static_cast<int>(Skill::custom), skill)) {
        return false;
    }
    arguments.skill = static_cast<Skill>(skill);
    return true;
}

bool setCloudSize(Arguments& arguments, std::string_view word) {
    constexpr int largest = 9999;
    const auto cross = word.find('x');
    return cross != std::string_view::npos &&
           readNumber(word.substr(0, cross), 1, largest, arguments.cloudSize.width) &&
           readNumber(word.substr(cross + 1), 1, largest, arguments.cloudSize.height);
}

bool setSeeds(Arguments& arguments, std::string_view word) {
    constexpr std::string_view to = "..";
    const auto dots = word.find(to);
    SeedRange seeds;
    if (dots == std::string_view::npos || !readNumber(word.substr(0, dots), 0U, anyUnsigned, seeds.first) ||
        !readNumber(word.substr(dots + to.size()), seeds.first, anyUnsigned, seeds.last)) {
        return false;
    }
    arguments.seeds = seeds;
    return true;
}

bool setUntil(Arguments& arguments, std::string_view word) {
    constexpr int latest = 2000000000;
    int time = 0;
    if (!readNumber(word, 0, latest, time)) {
        return false;
    }
    arguments.until = ClockSeconds{time};
    return true;
}

struct OptionRule {
    std::string_view name;
    std::string_view
        expected; ///< what its value must be, for the message; empty for an option without a value
    bool (*set)(Arguments& arguments, std::string_view value);
    bool goesWithReplay = false; ///< it sets up no shift of its own
    bool goesWithSeeds = true;   ///< it is not about one shift alone, or another way to write it down
};

constexpr int voiceSetLimit = 21;

constexpr std::array optionRules{
    OptionRule{"--width", "800 or 1024", setWidth},
    OptionRule{"--skill", "a number from 0 to 4", setSkill},
    OptionRule{"--planes", "a number",
               [](Arguments& a, std::string_view v) { return readNumber(v, 0U, anyUnsigned, a.planes); }},
    OptionRule{"--minutes", "a number",
               [](Arguments& a, std::string_view v) { return readNumber(v, 0U, anyUnsigned, a.minutes); }},
    OptionRule{"--clouds", "0 or 1", [](Arguments& a, std::string_view v) { return readFlag(v, a.clouds); }},
    OptionRule{"--direct-entry", "0 or 1",
               [](Arguments& a, std::string_view v) { return readFlag(v, a.directEntry); }},
    OptionRule{"--voices", "a number from 0 to 21",
               [](Arguments& a, std::string_view v) { return readNumber(v, 0, voiceSetLimit, a.voices); }},
    OptionRule{"--cloud-size", "a width and a height such as 64x48", setCloudSize},
    OptionRule{"--name", "a name",
               [](Arguments& a, std::string_view v) {
                   a.name = fromUtf8(v);
                   return true;
               }},
    OptionRule{"--seed", "a number from 0 to 4294967295",
               [](Arguments& a, std::string_view v) { return readNumber(v, 0U, anyUnsigned, a.seed); }, false,
               false},
    OptionRule{"--seeds", "a range of numbers such as 1..500", setSeeds},
    OptionRule{"--orders", "a file",
               [](Arguments& a, std::string_view v) {
                   a.orders = v;
                   return true;
               },
               false, false},
    OptionRule{"--until", "a clock second from 0 to 2000000000", setUntil, true},
    OptionRule{"--controller", "", [](Arguments& a, std::string_view) { return a.controller = true; }},
    OptionRule{"--look-ahead", "a number from 1 to 40",
               [](Arguments& a, std::string_view v) { return readNumber(v, 1, stepsAhead, a.lookAhead); }},
    OptionRule{"--careless", "", [](Arguments& a, std::string_view) { return a.careless = true; }},
    OptionRule{"--interactive", "", [](Arguments& a, std::string_view) { return a.interactive = true; },
               false, false},
    OptionRule{"--speaking", "", [](Arguments& a, std::string_view) { return a.speaking = true; }},
    OptionRule{"--log", "", [](Arguments& a, std::string_view) { return a.log = true; }, true, false},
    OptionRule{"--prediction", "", [](Arguments& a, std::string_view) { return a.prediction = true; }, false,
               false},
    OptionRule{"--record", "a file",
               [](Arguments& a, std::string_view v) {
                   a.record = v;
                   return true;
               },
               false, false},
    OptionRule{"--replay", "a file",
               [](Arguments& a, std::string_view v) {
                   a.replay = v;
                   return true;
               },
               true, false},
    OptionRule{"--score", "", [](Arguments& a, std::string_view) { return a.score = true; }, true, false},
    OptionRule{"--help", "", [](Arguments& a, std::string_view) { return a.help = true; }, true},
};

const OptionRule* ruleOf(std::string_view word) {
    for (const OptionRule& rule : optionRules) {
        if (rule.name == word) {
            return &rule;
        }
    }
    return nullptr;
}

/// What is wrong with the size of a Custom shift; of the other skills its numbers are only checked by range.
std::optional<TextId> shiftFault(const Arguments& arguments) {
    const auto fault = customShiftFault(arguments.planes, arguments.minutes);
    const bool counts = arguments.skill == Skill::custom || fault != TextId::tooManyPlanes;
    return counts ? fault : std::nullopt;
}

std::string quoted(std::string_view word) {
    return FormatText("'%s'", {word});
}

/// Takes one option and its value off the front of `words`; what is wrong with it, or nothing.
std::string takeOption(Arguments& arguments, std::span<const char* const>& words) {
    const std::string name = words.front();
    words = words.subspan(1);
    const OptionRule* const rule = ruleOf(name);
    if (rule == nullptr) {
        return "there is no option " + name;
    }
    if (rule->expected.empty()) {
        rule->set(arguments, {});
        return {};
    }
    const std::string expected{rule->expected};
    if (words.empty()) {
        return name + " needs " + expected;
    }
    const std::string_view value = words.front();
    words = words.subspan(1);
    return rule->set(arguments, value) ? std::string{}
                                       : name + " needs " + expected + ", not " + quoted(value);
}

std::string takeFile(Arguments& arguments, std::span<const char* const>& words) {
    if (!arguments.airport.empty()) {
        return "there is a second airport file, " + quoted(words.front());
    }
    arguments.airport = words.front();
    words = words.subspan(1);
    return {};
}

} // namespace

Result<Arguments> parseArguments(std::span<const char* const> words) {
    Arguments arguments;
    std::string_view settingUp; // the first option that does not go with a replay
    std::string_view ofOne;     // the first that does not go with many seeds
    while (!words.empty()) {
        const bool isOption = std::string_view{words.front()}.starts_with("-");
        if (const OptionRule* const rule = ruleOf(words.front()); rule != nullptr) {
            settingUp = settingUp.empty() && !rule->goesWithReplay ? rule->name : settingUp;
            ofOne = ofOne.empty() && !rule->goesWithSeeds ? rule->name : ofOne;
        }
        std::string fault = isOption ? takeOption(arguments, words) : takeFile(arguments, words);
        if (!fault.empty()) {
            return failed(std::move(fault));
        }
    }
    if (arguments.replay && !settingUp.empty()) {
        return failed(std::string{settingUp} + " does not go with --replay, which tells all of the shift");
    }
    if (arguments.seeds && !ofOne.empty()) {
        return failed(std::string{ofOne} + " does not go with --seeds, which plays many shifts");
    }
    if (arguments.airport.empty() && !arguments.replay && !arguments.help) {
        return failed("an airport file is needed");
    }
    if (const auto fault = shiftFault(arguments)) {
        return failed(std::string{StringTableText(*fault)});
    }
    return arguments;
}

std::string_view helpText() {
    return help;
}

ShiftSetup setupFor(const Arguments& arguments) {
    const bool isEasy = arguments.skill == Skill::easy;
    const auto planes = static_cast<int>(arguments.planes);
    const ClockSeconds length = static_cast<int>(arguments.minutes) * clockMinute;
    return {.skill = arguments.skill,
            .custom = {planes, length, bonusFor(planes, length)},
            .cloudCover = arguments.clouds && !isEasy,
            .directEntry = arguments.directEntry || isEasy,
            .voiceSetCount = arguments.voices,
            .controllerName = arguments.name};
}

} // namespace ventrel
