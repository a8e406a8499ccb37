#include "lessons/lesson_phrases.h"

#include <array>

#include "base/whole_number.h"
#include "lessons/lesson_words.h"
#include "sim/grid.h"

namespace ventrel {

namespace {

constexpr std::string_view blanks = " \t\r";
constexpr int secondsPerMinute = 60;
constexpr int mostMinutesAhead = 60;
constexpr int mostCount = 99;

/// Takes `words` off the front of the text, where whole words stand there.
bool takeWords(std::string_view& text, std::string_view words) {
    std::string_view rest = text;
    std::string_view wanted = words;
    while (!wanted.empty()) {
        if (takeLessonWord(rest) != takeLessonWord(wanted)) {
            return false;
        }
    }
    text = rest;
    return true;
}

/// The longest row of the table whose words the text begins with.
template <typename Table>
const auto* takeRow(std::string_view& text, const Table& table) {
    const typename Table::value_type* best = nullptr;
    std::string_view rest = text;
    for (const auto& row : table) {
        std::string_view after = text;
        if (takeWords(after, row.words) && (best == nullptr || row.words.size() > best->words.size())) {
            best = &row;
            rest = after;
        }
    }
    text = rest;
    return best;
}

/// "0:30": minutes and seconds of the clock at which a step acts.
std::optional<ClockSeconds> clockTime(std::string_view word) {
    const auto colon = word.find(':');
    if (colon == std::string_view::npos) {
        return std::nullopt;
    }
    const auto minutes = wholeNumber<int>(word.substr(0, colon));
    const auto seconds = wholeNumber<int>(word.substr(colon + 1));
    if (!minutes || !seconds || *minutes < 0 || *minutes >= mostMinutesAhead || *seconds < 0 ||
        *seconds >= secondsPerMinute || *seconds % stepInterval.count() != 0) {
        return std::nullopt;
    }
    const ClockSeconds time{*minutes * secondsPerMinute + *seconds};
    return time > 0_s ? std::optional(time) : std::nullopt;
}

/// "2,24"
std::optional<Cell> cellOf(std::string_view word) {
    const auto comma = word.find(',');
    if (comma == std::string_view::npos) {
        return std::nullopt;
    }
    const auto x = wholeNumber<int>(word.substr(0, comma));
    const auto y = wholeNumber<int>(word.substr(comma + 1));
    if (!x || !y || *x < 0 || *x >= gridSize || *y < 0 || *y >= gridSize) {
        return std::nullopt;
    }
    const Cell cell{*x, *y};
    return isOutsideScope(cell) ? std::nullopt : std::optional(cell);
}

std::optional<int> altitudeOf(std::string_view word) {
    const auto number = wholeNumber<int>(word);
    return number && *number >= approachAltitude && *number <= exitAltitude ? number : std::nullopt;
}

std::optional<int> headingOf(std::string_view word) {
    const auto number = wholeNumber<int>(word);
    return number && isHeading(*number) ? number : std::nullopt;
}

std::optional<Speed> speedOf(std::string_view word) {
    if (word == "slow") {
        return Speed::slow;
    }
    if (word == "normal") {
        return Speed::normal;
    }
    return word == "fast" ? std::optional(Speed::fast) : std::nullopt;
}

std::optional<std::size_t> flightOf(std::string_view word, std::size_t flights) {
    if (word.size() != 1 || word.front() < 'A' || word.front() > 'Z') {
        return std::nullopt;
    }
    const auto place = static_cast<std::size_t>(word.front() - 'A');
    return place < flights ? std::optional(place) : std::nullopt;
}

/// What the operands of a phrase fill in.
struct Operands {
    int number = 0;
    std::string point{};
    std::optional<Speed> speed{};
    std::optional<std::size_t> flight{};
};

bool takeCount(std::string_view& text, Operands& into) {
    const auto number = wholeNumber<int>(takeLessonWord(text));
    into.number = number.value_or(0);
    return into.number >= 1 && into.number <= mostCount;
}

bool takeNumber(std::string_view& text, Operands& into, std::optional<int> (*numberOf)(std::string_view)) {
    const auto number = numberOf(takeLessonWord(text));
    into.number = number.value_or(0);
    return number.has_value();
}

bool takePoint(std::string_view& text, Operands& into) {
    into.point = takeLessonWord(text);
    return !into.point.empty();
}

bool takeAnyPoint(std::string_view& text, Operands& into) {
    if (!takePoint(text, into)) {
        return false;
    }
    if (into.point == "any") {
        into.point.clear();
    }
    return true;
}

bool takeSpeed(std::string_view& text, Operands& into) {
    into.speed = speedOf(takeLessonWord(text));
    return into.speed.has_value();
}

/// Whether no operand follows the name of a place.
bool endsPlace(std::string_view text) {
    const std::string_view word = takeLessonWord(text);
    return word.empty() || word == "when";
}

/// Takes an operand of that kind off the text; false where there is none.
bool takeOperand(std::string_view& text, Operand operand, std::size_t flights, Operands& into) {
    switch (operand) {
    case Operand::none: return true;
    case Operand::altitude: return takeNumber(text, into, altitudeOf);
    case Operand::heading: return takeNumber(text, into, headingOf);
    case Operand::speed: return takeSpeed(text, into);
    case Operand::count: return takeCount(text, into);
    case Operand::point: return takePoint(text, into);
    case Operand::anyPoint: return takeAnyPoint(text, into);
    case Operand::distance: return takeCount(text, into) && takeWords(text, "of") && takePoint(text, into);
    case Operand::flight:
        into.flight = flightOf(takeLessonWord(text), flights);
        return into.flight.has_value();
    case Operand::perhapsAltitude: return endsPlace(text) || takeNumber(text, into, altitudeOf);
    case Operand::perhapsSpeed: return endsPlace(text) || takeSpeed(text, into);
    }
    return false;
}

Result<FactTerm> takeTerm(std::string_view& text, std::size_t flights) {
    FactTerm term;
    term.isNegated = takeWords(text, "not");
    const std::string_view whole = text;
    std::string_view ahead = text;
    term.flight = flightOf(takeLessonWord(ahead), flights);
    if (term.flight) {
        text = ahead;
    }
    const auto* row = takeRow(text, factWords);
    if (row == nullptr || row->ofFlight != term.flight.has_value()) {
        return failed(quoted(whole) +
                      " begins with no fact that there is of a flight of the lesson, or of none");
    }
    term.fact = row->fact;
    Operands operands;
    if (!takeOperand(text, row->operand, flights, operands)) {
        return failed("after '" + std::string(row->words) + "' something else must follow");
    }
    term.number = operands.number;
    term.point = std::move(operands.point);
    term.speed = operands.speed.value_or(Speed::normal);
    return term;
}

bool readOrigin(std::string_view& text, LessonFlight& flight) {
    const std::string_view from = takeLessonWord(text);
    const auto cell = cellOf(from);
    if (!cell) {
        flight.from = from;
        return !from.empty() && from.find(',') == std::string_view::npos;
    }
    flight.cell = *cell;
    const bool hasHeading = takeWords(text, "heading");
    const auto heading = headingOf(takeLessonWord(text));
    const bool hasAltitude = takeWords(text, "altitude");
    const auto altitude = altitudeOf(takeLessonWord(text));
    flight.heading = heading.value_or(0);
    flight.altitude = altitude.value_or(0);
    flight.isDirect = takeWords(text, "direct");
    return hasHeading && heading && hasAltitude && altitude;
}

} // namespace

std::string_view takeLessonWord(std::string_view& text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    const std::string_view word = text.substr(0, text.find_first_of(blanks));
    text.remove_prefix(word.size());
    return word;
}

Result<LessonFlight> readLessonFlight(std::string_view text, char letter) {
    LessonFlight flight;
    flight.letter = letter;
    if (takeLessonWord(text) != std::string(1, letter)) {
        return failed("flights go by letters in their order; this one is " + std::string(1, letter));
    }
    if (!takeWords(text, "later")) {
        flight.at = takeWords(text, "at") ? clockTime(takeLessonWord(text)) : std::nullopt;
        if (!flight.at) {
            return failed("a flight comes 'later', or at 0:15 to 59:45, a multiple of 15 seconds");
        }
    }
    if (!takeWords(text, "from") || !readOrigin(text, flight)) {
        return failed(
            "a flight comes 'from' an airport, or from a cell of the scope with heading and altitude, "
            "such as 2,24 heading 90 altitude 6");
    }
    if (!takeWords(text, "to")) {
        return failed("a flight needs 'to' and a point");
    }
    flight.to = takeLessonWord(text);
    flight.isHeavy = takeWords(text, "heavy");
    if (flight.to.empty() || !takeLessonWord(text).empty()) {
        return failed("a flight ends with 'to', a point, and perhaps 'heavy'");
    }
    return flight;
}

Result<Condition> readCondition(std::string_view text, std::size_t flights) {
    Condition condition{{}};
    do {
        auto term = takeTerm(text, flights);
        if (!term) {
            return tl::unexpected(std::move(term.error()));
        }
        condition.back().push_back(std::move(*term));
        if (takeWords(text, "or")) {
            condition.emplace_back();
        } else if (!takeWords(text, "and")) {
            break;
        }
    } while (true);
    if (const std::string_view rest = takeLessonWord(text); !rest.empty()) {
        return failed(quoted(rest) + " stands where only 'and' or 'or' may");
    }
    return condition;
}

Result<std::vector<std::size_t>> readFlights(std::string_view text, std::size_t flights) {
    std::vector<std::size_t> found;
    do {
        const std::string_view word = takeLessonWord(text);
        const auto flight = flightOf(word, flights);
        if (!flight) {
            return failed(quoted(word) + " is no flight of the lesson");
        }
        found.push_back(*flight);
    } while (!text.empty());
    return found;
}

Result<LessonShow> readLessonShow(std::string_view text, std::size_t flights) {
    const std::string_view whole = text;
    const auto* row = takeRow(text, spotWords);
    Operands operands;
    if (row == nullptr || !takeOperand(text, row->operand, flights, operands)) {
        return failed(quoted(whole) + " is nothing that can be shown");
    }
    LessonShow show{
        .spot = {row->part, operands.flight, std::move(operands.point), operands.number, operands.speed}};
    if (takeWords(text, "when")) {
        auto when = readCondition(text, flights);
        if (!when) {
            return tl::unexpected(std::move(when.error()));
        }
        show.when = std::move(*when);
    } else if (!takeLessonWord(text).empty()) {
        return failed(quoted(whole) + " is nothing that can be shown");
    }
    return show;
}

} // namespace ventrel
