#include "story/shift_history.h"

#include <algorithm>
#include <array>

#include "base/format.h"
#include "base/whole_file.h"
#include "base/whole_number.h"
#include "base/windows1252.h"
#include "story/shift_report.h"

namespace ventrel {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view firstLine = "Ventrel shifts 1";
constexpr char separator = '\t';
constexpr std::size_t fieldCount = 11;
constexpr std::size_t sizeLimit = 1U << 20U;
constexpr std::size_t mostShifts = 2000;

using Fields = std::array<std::string_view, fieldCount>;

/// The text up to the next `end`, which is taken off `rest` with it.
std::string_view takeUntil(std::string_view& rest, char end) {
    const std::size_t length = std::min(rest.find(end), rest.size());
    const std::string_view taken = rest.substr(0, length);
    rest.remove_prefix(std::min(length + 1, rest.size()));
    return taken;
}

bool splitFields(std::string_view line, Fields& fields) {
    if (std::ranges::count(line, separator) != static_cast<std::ptrdiff_t>(fieldCount - 1)) {
        return false;
    }
    std::ranges::generate(fields, [&line] { return takeUntil(line, separator); });
    return true;
}

/// False unless all of it is a number from `least` to `most`.
template <typename Number>
bool readNumber(std::string_view text, Number least, Number most, Number& number) {
    const auto read = wholeNumber<Number>(text);
    number = read.value_or(number);
    return read && number >= least && number <= most;
}

bool readLine(std::string_view line, PastShift& shift) {
    constexpr int mostScore = 1'000'000'000;
    constexpr int mostFlights = 99;
    constexpr int mostNearMisses = 1'000'000;
    Fields fields;
    int skill = 0;
    int collided = 0;
    const bool isRead =
        splitFields(line, fields) && readNumber(fields[2], 0, static_cast<int>(Skill::custom), skill) &&
        readNumber(fields[3], 0, mostScore, shift.score) &&
        readNumber(fields[4], -mostScore, mostScore, shift.possibleScore) &&
        readNumber(fields[5], 0, mostFlights, shift.handled) &&
        readNumber(fields[6], 1, mostFlights, shift.flights) &&
        readNumber(fields[7], 0, mostNearMisses, shift.nearMisses) && readNumber(fields[8], 0, 1, collided) &&
        readNumber(fields[9], std::uint32_t{0}, UINT32_MAX, shift.seed);
    if (!isRead) {
        return false;
    }
    shift.date = fields[0];
    shift.airspace = fields[1];
    shift.skill = static_cast<Skill>(skill);
    shift.collided = collided != 0;
    shift.controller = fields[10];
    return true;
}

/// A text without what would end its field or line.
std::string field(std::string text) {
    constexpr auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' '; };
    std::ranges::replace_if(text, isControl, ' ');
    return text;
}

std::string lineOf(const PastShift& shift) {
    std::string line = field(shift.date) + separator + field(shift.airspace);
    for (const long number : {long{static_cast<int>(shift.skill)}, long{shift.score},
                              long{shift.possibleScore}, long{shift.handled}, long{shift.flights},
                              long{shift.nearMisses}, long{shift.collided ? 1 : 0}, long{shift.seed}}) {
        line += separator + std::to_string(number);
    }
    return line + separator + field(shift.controller) + '\n';
}

} // namespace

PastShift pastShiftOf(const ShiftStory& story, std::string date) {
    return {.date = std::move(date),
            .airspace = story.airspace,
            .skill = story.skill,
            .score = story.score,
            .possibleScore = story.possibleScore,
            .handled = handledCount(story),
            .flights = static_cast<int>(story.flights.size()),
            .nearMisses = static_cast<int>(story.nearMisses.size()),
            .collided = story.end == ShiftEnd::collision,
            .seed = story.seed,
            .controller = story.controller};
}

Result<std::vector<PastShift>> readShiftHistory(const fs::path& file) {
    const auto read = readWholeFileIfThere(file, sizeLimit);
    if (!read) {
        return tl::unexpected(read.error());
    }
    std::vector<PastShift> shifts;
    const std::optional<Bytes>& bytes = *read;
    if (!bytes) {
        return shifts;
    }
    std::string text;
    std::ranges::transform(*bytes, std::back_inserter(text),
                           [](std::byte byte) { return static_cast<char>(byte); });
    std::string_view rest = text;
    if (takeUntil(rest, '\n') != firstLine) {
        return failed(FormatText("%s is no list of shifts. It is left as it is.", {pathText(file)}));
    }
    for (long number = 2; !rest.empty(); ++number) {
        if (!readLine(takeUntil(rest, '\n'), shifts.emplace_back())) {
            return failed(FormatText("Line %d of the list of shifts %s is damaged. It is left as it is.",
                                     {number, pathText(file)}));
        }
    }
    return shifts;
}

Result<> addToShiftHistory(const fs::path& file, const PastShift& shift) {
    auto shifts = readShiftHistory(file);
    if (!shifts) {
        return tl::unexpected(shifts.error());
    }
    shifts->push_back(shift);
    const std::size_t forgotten = shifts->size() > mostShifts ? shifts->size() - mostShifts : 0;
    std::string text = std::string(firstLine) + '\n';
    for (std::size_t i = forgotten; i < shifts->size(); ++i) {
        text += lineOf((*shifts)[i]);
    }
    return replaceFile(file, std::as_bytes(std::span(text)));
}

std::vector<PastShift> comparableShifts(const std::vector<PastShift>& history, const PastShift& shift) {
    std::vector<PastShift> found;
    std::ranges::copy_if(history, std::back_inserter(found), [&shift](const PastShift& past) {
        return past.airspace == shift.airspace && past.skill == shift.skill &&
               (shift.skill != Skill::custom || past.flights == shift.flights);
    });
    return found;
}

} // namespace ventrel
