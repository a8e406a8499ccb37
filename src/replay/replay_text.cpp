#include "replay/replay_text.h"

#include <algorithm>
#include <limits>

#include "base/whole_number.h"
#include "base/windows1252.h"
#include "sim/custom_skill.h"
#include "sim/schedule.h"

namespace ventrel {

namespace {

constexpr long long mostVoices = 21;
constexpr long long largestCloud = 9999; // pixels
constexpr std::size_t mostClouds = largeLayout.cloudImages;
constexpr std::size_t longestText = 255; // bytes
constexpr long long mostPoints = std::numeric_limits<std::int32_t>::max();
constexpr int checksumDigits = 16;
constexpr int checksumBase = 16;

/// On one line, whatever a name may hold.
std::string oneLine(std::string text) {
    std::ranges::replace_if(text, isControlCharacter, ' ');
    return toUtf8(text);
}

/// Of a name of the system, which has no letters that it could not keep.
std::string oneLineOfFile(std::string name) {
    std::ranges::replace_if(name, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return name;
}

template <typename Number>
bool readInto(std::string_view text, long long lowest, long long highest, Number& number) {
    long long value = 0;
    if (!readWholeNumber(text, lowest, highest, value)) {
        return false;
    }
    number = static_cast<Number>(value);
    return true;
}

bool readFlag(std::string_view text, bool& flag) {
    flag = text == "1";
    return text == "0" || text == "1";
}

bool readName(std::string_view text, std::string& name) {
    name = fromUtf8(text);
    return text.size() <= longestText;
}

/// A file of that name in a folder, and never one outside it.
bool readFileName(std::string_view text, std::string& name) {
    name = text;
    return !text.empty() && text.size() <= longestText && text.find('/') == std::string_view::npos &&
           text != "." && text != "..";
}

std::string hexText(std::uint64_t number) {
    std::string digits(checksumDigits, '0');
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit, number /= checksumBase) {
        *digit = "0123456789abcdef"[number % checksumBase];
    }
    return digits;
}

bool readHex(std::string_view text, std::uint64_t& number) {
    const auto read = wholeNumber<std::uint64_t>(text, checksumBase);
    number = read.value_or(number);
    return read && text.size() == checksumDigits;
}

std::string customText(const ReplayHeader& header) {
    const auto& [planes, length, bonus] = header.custom;
    return std::to_string(planes) + ' ' + std::to_string(length.count()) + ' ' + std::to_string(bonus);
}

bool readCustom(ReplayHeader& header, std::string_view text) {
    const auto words = wordsOf(text);
    int length = 0;
    constexpr long long any = std::numeric_limits<std::int32_t>::max();
    if (words.size() != 3 || !readInto(words[0], -any, any, header.custom.planeCount) ||
        !readInto(words[1], -any, any, length) || !readInto(words[2], -any, any, header.custom.bonus)) {
        return false;
    }
    header.custom.length = ClockSeconds{length};
    return true;
}

std::string cloudSizesText(const ReplayHeader& header) {
    std::string text;
    for (const Size& size : header.cloudSizes) {
        text += (text.empty() ? "" : " ") + std::to_string(size.width) + 'x' + std::to_string(size.height);
    }
    return text;
}

bool readCloudSizes(ReplayHeader& header, std::string_view text) {
    const auto words = wordsOf(text);
    header.cloudSizes.clear();
    for (const std::string_view word : words) {
        const auto cross = std::min(word.find('x'), word.size() - 1);
        Size size;
        if (!readInto(word.substr(0, cross), 0, largestCloud, size.width) ||
            !readInto(word.substr(cross + 1), 0, largestCloud, size.height)) {
            return false;
        }
        header.cloudSizes.push_back(size);
    }
    return words.size() <= mostClouds;
}

bool readKind(ReplayHeader& header, std::string_view text) {
    const auto* const found = std::ranges::find(replayKindWords, text);
    header.kind = static_cast<ReplayKind>(found - replayKindWords.begin());
    return found != replayKindWords.end();
}

bool readBegun(ReplayHeader& header, std::string_view text) {
    const auto moment = readMoment(text);
    header.begun = moment.value_or(UtcMoment{});
    return moment.has_value();
}

bool readLastStep(ReplayHeader& header, std::string_view text) {
    int time = 0;
    const bool isRead = readInto(text, -1, latestReplayClock, time);
    header.lastStepTime = ClockSeconds{time};
    return isRead;
}

constexpr std::string_view aName = "a text of at most 255 bytes";
constexpr std::string_view zeroOrOne = "0 or 1";

using Header = ReplayHeader;

// clang-format off
constexpr auto headerRows = std::to_array<ReplayHeaderRow>({
    {"program", [](const Header& h) { return oneLine(h.program); },
     [](Header& h, std::string_view t) { return readName(t, h.program); }, aName},
    {"begun", [](const Header& h) { return momentText(h.begun); }, readBegun,
     "a moment such as 2026-11-25T12:30:05Z"},
    {"kind", [](const Header& h) { return std::string{replayKindWords.at(static_cast<std::size_t>(h.kind))}; },
     readKind, "scored, practice or day"},
    {"airspace", [](const Header& h) { return oneLine(h.airspaceName); },
     [](Header& h, std::string_view t) { return readName(t, h.airspaceName); }, aName},
    {"file", [](const Header& h) { return oneLineOfFile(h.airspaceFile); },
     [](Header& h, std::string_view t) { return readFileName(t, h.airspaceFile); },
     "the name of a file, without folders"},
    {"checksum", [](const Header& h) { return hexText(h.airspaceChecksum); },
     [](Header& h, std::string_view t) { return readHex(t, h.airspaceChecksum); },
     "sixteen hexadecimal digits"},
    {"width", [](const Header& h) { return std::to_string(h.width); },
     [](Header& h, std::string_view t) {
         return readInto(t, 0, largeLayout.windowWidth, h.width) && scopeLayoutFor(h.width);
     },
     "800 or 1024"},
    {"skill", [](const Header& h) { return std::to_string(static_cast<int>(h.skill)); },
     [](Header& h, std::string_view t) { return readInto(t, 0, static_cast<int>(Skill::custom), h.skill); },
     "a number from 0 to 4"},
    {"custom", customText, readCustom, "three whole numbers: planes, seconds and bonus"},
    {"clouds", [](const Header& h) { return std::to_string(int{h.cloudCover}); },
     [](Header& h, std::string_view t) { return readFlag(t, h.cloudCover); }, zeroOrOne},
    {"direct-entry", [](const Header& h) { return std::to_string(int{h.directEntry}); },
     [](Header& h, std::string_view t) { return readFlag(t, h.directEntry); }, zeroOrOne},
    {"voices", [](const Header& h) { return std::to_string(h.voiceSetCount); },
     [](Header& h, std::string_view t) { return readInto(t, 0, mostVoices, h.voiceSetCount); },
     "a number from 0 to 21"},
    {"cloud-sizes", cloudSizesText, readCloudSizes, "at most 16 sizes such as 64x48"},
    {"name", [](const Header& h) { return oneLine(h.controllerName); },
     [](Header& h, std::string_view t) { return readName(t, h.controllerName); }, aName},
    {"last-step", [](const Header& h) { return std::to_string(h.lastStepTime.count()); }, readLastStep,
     "a clock second, or -1"},
    {"seed", [](const Header& h) { return std::to_string(h.seed); },
     [](Header& h, std::string_view t) {
         return readInto(t, 0, std::numeric_limits<std::uint32_t>::max(), h.seed);
     },
     "a number from 0 to 4294967295"},
    {"possible", [](const Header& h) { return std::to_string(h.possibleScore); },
     [](Header& h, std::string_view t) { return readInto(t, -mostPoints, mostPoints, h.possibleScore); },
     "a whole number"},
});
// clang-format on

std::string eventText(const ReplayedStep& step) {
    return std::string{stepWord} + ' ' + std::to_string(step.random) + ' ' + std::to_string(step.score);
}

std::string eventText(const ReplayedLamp& lamp) {
    return std::string{lampWord} + ' ' + std::to_string(static_cast<int>(lamp.level));
}

std::string eventText(const ReplayedOrder& order) {
    std::string text{orderWord};
    for (const int number : {order.flight.number(), order.altitude, order.heading,
                             static_cast<int>(order.speed), order.target, static_cast<int>(order.hold)}) {
        text += ' ' + std::to_string(number);
    }
    return text;
}

std::string timedLine(ClockSeconds clock, std::string_view text) {
    return std::to_string(clock.count()) + ' ' + std::string{text} + '\n';
}

} // namespace

std::span<const ReplayHeaderRow> replayHeaderRows() {
    return headerRows;
}

std::string replayHeaderText(const ReplayHeader& header) {
    std::string text = std::string{replayMark} + '\n';
    for (const ReplayHeaderRow& row : headerRows) {
        text += std::string{row.key} + ' ' + row.text(header) + '\n';
    }
    return text + std::string{replayHeaderEnd} + '\n';
}

std::string replayLine(const ReplayEvent& event) {
    return timedLine(event.clock, std::visit([](const auto& what) { return eventText(what); }, event.what));
}

std::string replayLine(ClockSeconds clock, const NoiseChange& change) {
    return timedLine(clock, std::string{noiseWord} + ' ' + std::to_string(change.call) + ' ' +
                                std::to_string(int{change.isDrawn}));
}

std::string replayLine(const ReplayEnd& end) {
    return timedLine(end.clock,
                     std::string{endWord} + ' ' +
                         std::string{replayOutcomeWords.at(static_cast<std::size_t>(end.outcome))} + ' ' +
                         std::to_string(end.score));
}

std::string practiceLine(ClockSeconds clock) {
    return timedLine(clock, practiceWord);
}

bool readWholeNumber(std::string_view text, long long lowest, long long highest, long long& number) {
    const auto read = wholeNumber<long long>(text);
    number = read.value_or(number);
    return read && number >= lowest && number <= highest;
}

std::vector<std::string_view> wordsOf(std::string_view line) {
    std::vector<std::string_view> words;
    for (auto start = line.find_first_not_of(' '); start != std::string_view::npos;
         start = line.find_first_not_of(' ')) {
        line.remove_prefix(start);
        words.push_back(line.substr(0, line.find(' ')));
        line.remove_prefix(words.back().size());
    }
    return words;
}

} // namespace ventrel
