#include "tools/sim/order_text.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <limits>
#include <optional>
#include <sstream>
#include <string_view>

#include "base/whole_file.h"
#include "base/whole_number.h"
#include "base/windows1252.h"

namespace ventrel {

namespace {

constexpr std::size_t largestOrders = std::size_t{16} << 20; // bytes: orders without end are no orders
constexpr std::size_t mostShown = 40;                        // bytes of a wrong word

enum Field {
    clockField,
    flightField,
    altitudeField,
    headingField,
    speedField,
    targetField,
    holdField,
    fieldCount
};

using OrderFields = std::array<int, fieldCount>;

/// What a field may hold: from lowest to highest in steps of `unit`. Altitude and heading are left to the
/// judge of orders; for them this is what a fault says.
struct FieldRule {
    std::string_view name;
    int lowest;
    int highest;
    int unit;
    bool isJudged = false;
};

std::array<FieldRule, fieldCount> fieldRules(const Game& game) {
    return {{
        {"clock", 0, std::numeric_limits<int>::max(), stepInterval.count()},
        {"flight", 0, game.planeCount() - 1, 1},
        {"altitude", approachAltitude, exitAltitude, 1, true},
        {"heading", 0, fullCircle - headingStep, headingStep, true},
        {"speed", static_cast<int>(Speed::slow), static_cast<int>(Speed::fast), 1},
        {"directTarget", -1, game.vorCount(), 1},
        {"hold", 0, 1, 1},
    }};
}

std::vector<std::string_view> splitWords(std::string_view line) {
    constexpr std::string_view blanks = " \t\r";
    line = line.substr(0, line.find('#'));
    std::vector<std::string_view> words;
    for (auto start = line.find_first_not_of(blanks); start != std::string_view::npos;
         start = line.find_first_not_of(blanks)) {
        line.remove_prefix(start);
        words.push_back(line.substr(0, line.find_first_of(blanks)));
        line.remove_prefix(words.back().size());
    }
    return words;
}

std::string describe(const FieldRule& rule) {
    std::string text{rule.name};
    text += " must be a whole number from " + std::to_string(rule.lowest);
    if (rule.highest != std::numeric_limits<int>::max()) {
        text += " to " + std::to_string(rule.highest);
    }
    if (rule.unit != 1) {
        text += " in steps of " + std::to_string(rule.unit);
    }
    return text;
}

bool allows(const FieldRule& rule, int value) {
    return rule.isJudged || (value >= rule.lowest && value <= rule.highest && value % rule.unit == 0);
}

std::optional<int> readField(std::string_view word, const FieldRule& rule) {
    const auto value = wholeNumber<int>(word);
    return value && allows(rule, *value) ? value : std::nullopt;
}

std::string faultOf(const FieldRule& rule, std::string_view word) {
    return describe(rule) + ", not '" + fromUtf8(word.substr(0, mostShown)) + "'";
}

ScriptedOrder toOrder(const OrderFields& fields, int pointCount) {
    return {ClockSeconds{fields[clockField]},
            FlightIndex{fields[flightField]},
            {.altitude = fields[altitudeField],
             .heading = fields[headingField],
             .directTarget = directTargetOf(fields[targetField], pointCount),
             .speed = static_cast<Speed>(fields[speedField]),
             .hold = fields[holdField] != 0}};
}

/// What the judge of orders has against the numbers; the words are the fields from `first` on.
std::optional<std::string> judgedFault(const Game& game, const ScriptedOrder& order,
                                       const std::vector<std::string_view>& words, std::size_t first) {
    const auto rules = fieldRules(game);
    switch (judgeNumbers(game, game.flight(order.flight), order.order)) {
    case OrderVerdict::altitudeOutOfRange: return faultOf(rules[altitudeField], words[altitudeField - first]);
    case OrderVerdict::headingOutOfRange: return faultOf(rules[headingField], words[headingField - first]);
    case OrderVerdict::unknownTarget:
        return "there is no map point " + std::string{words[targetField - first]} +
               "; this number stands for a hold and needs hold 1";
    default: return std::nullopt;
    }
}

/// The fields from `first` on; the clock of an order without one is 0.
Result<ScriptedOrder> readOrder(const std::vector<std::string_view>& words, const Game& game,
                                std::size_t first) {
    if (words.size() != fieldCount - first) {
        return failed("an order has " + std::to_string(fieldCount - first) + " fields, not " +
                      std::to_string(words.size()));
    }
    const auto rules = fieldRules(game);
    OrderFields fields{};
    for (std::size_t i = first; i < fields.size(); ++i) {
        const auto value = readField(words[i - first], rules[i]);
        if (!value) {
            return failed(faultOf(rules[i], words[i - first]));
        }
        fields[i] = *value;
    }
    const ScriptedOrder order = toOrder(fields, game.vorCount());
    if (const auto fault = judgedFault(game, order, words, first)) {
        return failed(*fault);
    }
    return order;
}

/// The whole text, also out of a pipe.
Result<std::string> readText(const std::filesystem::path& file) {
    std::ifstream stream{file, std::ios::binary};
    std::string text;
    std::array<char, std::size_t{64} << 10> piece; // NOLINT(cppcoreguidelines-pro-type-member-init)
    while (stream && text.size() <= largestOrders) {
        stream.read(piece.data(), piece.size());
        text.append(piece.data(), static_cast<std::size_t>(stream.gcount()));
    }
    if (text.size() > largestOrders) {
        return tl::unexpected(tooLarge(file, largestOrders));
    }
    if (!stream.eof()) {
        return failed(pathText(file) + ": the orders cannot be read");
    }
    return text;
}

} // namespace

Result<std::optional<ScriptedOrder>> readOrderLine(std::string_view line, const Game& game) {
    const auto words = splitWords(line);
    if (words.empty()) {
        return std::optional<ScriptedOrder>{};
    }
    auto order = readOrder(words, game, flightField);
    if (!order) {
        return tl::unexpected(std::move(order.error()));
    }
    order->clock = game.clock;
    return std::optional{*order};
}

Result<std::vector<ScriptedOrder>> readOrderFile(const std::filesystem::path& file, const Game& game) {
    const auto text = readText(file);
    if (!text) {
        return tl::unexpected(text.error());
    }
    std::istringstream lines{*text};
    std::vector<ScriptedOrder> orders;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const auto words = splitWords(line);
        if (words.empty()) {
            continue;
        }
        const auto order = readOrder(words, game, clockField);
        if (!order) {
            return failed(pathText(file) + ":" + std::to_string(number) + ": " + order.error().text);
        }
        orders.push_back(*order);
    }
    std::stable_sort(orders.begin(), orders.end(),
                     [](const ScriptedOrder& a, const ScriptedOrder& b) { return a.clock < b.clock; });
    return orders;
}

} // namespace ventrel
