#include "tools/sim/order_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <limits>
#include <optional>
#include <sstream>
#include <string_view>

#include "base/whole_file.h"
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

/// What a field may hold: from lowest to highest in steps of `unit`.
struct FieldRule {
    std::string_view name;
    int lowest;
    int highest;
    int unit;
};

std::array<FieldRule, fieldCount> fieldRules(const Game& game) {
    return {{
        {"clock", 0, std::numeric_limits<int>::max(), stepInterval.count()},
        {"flight", 0, game.planeCount() - 1, 1},
        {"altitude", approachAltitude, exitAltitude, 1},
        {"heading", 0, fullCircle - headingStep, headingStep},
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

std::optional<int> readField(std::string_view word, const FieldRule& rule) {
    int value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc{} || end != word.data() + word.size() || value < rule.lowest ||
        value > rule.highest || value % rule.unit != 0) {
        return std::nullopt;
    }
    return value;
}

/// The fields from `first` on; those before it are 0.
std::variant<OrderFields, std::string> readFields(const std::vector<std::string_view>& words,
                                                  const Game& game, std::size_t first) {
    if (words.size() != fieldCount - first) {
        return "an order has " + std::to_string(fieldCount - first) + " fields, not " +
               std::to_string(words.size());
    }
    const auto rules = fieldRules(game);
    OrderFields fields{};
    for (std::size_t i = first; i < fields.size(); ++i) {
        const std::string_view word = words[i - first];
        const auto value = readField(word, rules[i]);
        if (!value) {
            return describe(rules[i]) + ", not '" + fromUtf8(word.substr(0, mostShown)) + "'";
        }
        fields[i] = *value;
    }
    if (fields[targetField] == game.vorCount() && fields[holdField] == 0) {
        return "there is no map point " + std::to_string(fields[targetField]) +
               "; this number stands for a hold and needs hold 1";
    }
    return fields;
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

std::variant<std::optional<ScriptedOrder>, std::string> readOrderLine(std::string_view line,
                                                                      const Game& game) {
    const auto words = splitWords(line);
    if (words.empty()) {
        return std::nullopt;
    }
    const auto fields = readFields(words, game, flightField);
    if (const auto* const fault = std::get_if<std::string>(&fields)) {
        return *fault;
    }
    ScriptedOrder order = toOrder(std::get<OrderFields>(fields), game.vorCount());
    order.clock = game.clock;
    return order;
}

std::variant<std::vector<ScriptedOrder>, std::string> readOrderFile(const std::filesystem::path& file,
                                                                    const Game& game) {
    const auto text = readText(file);
    if (!text) {
        return text.error().text;
    }
    std::istringstream lines{*text};
    std::vector<ScriptedOrder> orders;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const auto words = splitWords(line);
        if (words.empty()) {
            continue;
        }
        const auto fields = readFields(words, game, clockField);
        if (const auto* const fault = std::get_if<std::string>(&fields)) {
            return pathText(file) + ":" + std::to_string(number) + ": " + *fault;
        }
        orders.push_back(toOrder(std::get<OrderFields>(fields), game.vorCount()));
    }
    std::stable_sort(orders.begin(), orders.end(),
                     [](const ScriptedOrder& a, const ScriptedOrder& b) { return a.clock < b.clock; });
    return orders;
}

} // namespace ventrel
