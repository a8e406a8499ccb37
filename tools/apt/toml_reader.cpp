#include "tools/apt/toml_reader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "base/windows1252.h"

namespace ventrel::apt {

namespace {

std::string quoted(std::string_view key) {
    std::string text = fromUtf8(key);
    std::ranges::replace_if(text, isControlCharacter, '?');
    return '\'' + text + '\'';
}

std::string range(double lowest, double highest) {
    const auto text = [](double value) {
        return value == std::floor(value) ? std::to_string(static_cast<long>(value)) : std::to_string(value);
    };
    return text(lowest) + " to " + text(highest);
}

/// The number at that place of a list.
std::optional<double> numberAt(const toml::array& list, std::size_t index, double lowest, double highest) {
    const auto value = list[index].value<double>();
    return value && *value >= lowest && *value <= highest ? value : std::nullopt;
}

std::optional<std::pair<double, double>> placeOnEarth(const toml::node& node) {
    const auto* pair = node.as_array();
    if (pair == nullptr || pair->size() != 2) {
        return {};
    }
    const auto latitude = numberAt(*pair, 0, -90, 90);
    const auto longitude = numberAt(*pair, 1, -180, 180);
    return latitude && longitude ? std::optional(std::pair(*latitude, *longitude)) : std::nullopt;
}

} // namespace

int lineOf(const toml::source_region& place) {
    return static_cast<int>(place.begin.line);
}

TableReader::TableReader(const toml::table& table, Faults& faults, std::string what)
    : table_(table), faults_(faults), what_(std::move(what)) {}

KeyLines TableReader::lines() const {
    KeyLines lines{.table = lineOf(table_.source()), .keys = {}};
    for (const auto& [key, value] : table_) {
        lines.keys.emplace(key.str(), lineOf(key.source()));
    }
    return lines;
}

void TableReader::failAt(const toml::source_region& place, const std::string& reason) {
    isSound_ = false;
    faults_.push_back({lineOf(place), what_ + ": " + reason});
}

void TableReader::fail(const std::string& reason, std::string_view key) {
    const toml::node* node = table_.get(key);
    failAt(node != nullptr ? node->source() : table_.source(), reason);
}

const toml::node* TableReader::node(std::string_view key) {
    read_.emplace(key);
    const toml::node* node = table_.get(key);
    if (node == nullptr) {
        fail(quoted(key) + " is missing");
    }
    return node;
}

std::string TableReader::text(std::string_view key, std::size_t longest) {
    const toml::node* found = node(key);
    if (found == nullptr) {
        return {};
    }
    const auto* value = found->as_string();
    if (value == nullptr) {
        fail(quoted(key) + " must be a text", key);
        return {};
    }
    std::string text = fromUtf8(value->get(), '\0');
    if (toUtf8(text) != value->get()) {
        fail(quoted(key) + " has a character that Windows-1252 lacks", key);
        return {};
    }
    if (std::ranges::any_of(text, isControlCharacter)) {
        fail(quoted(key) + " has a control character", key);
        return {};
    }
    if (text.empty() || text.size() > longest) {
        fail(quoted(key) + " must have 1 to " + std::to_string(longest) + " characters; it has " +
                 std::to_string(text.size()),
             key);
        return {};
    }
    return text;
}

int TableReader::integer(std::string_view key, int lowest, int highest) {
    const toml::node* found = node(key);
    if (found == nullptr) {
        return lowest;
    }
    const auto* value = found->as_integer();
    if (value == nullptr || value->get() < lowest || value->get() > highest) {
        fail(quoted(key) + " must be a whole number from " + range(lowest, highest), key);
        return lowest;
    }
    return static_cast<int>(value->get());
}

double TableReader::real(std::string_view key, double lowest, double highest) {
    const toml::node* found = node(key);
    if (found == nullptr) {
        return lowest;
    }
    const auto value = found->value<double>();
    if (!value || !(*value >= lowest && *value <= highest)) {
        fail(quoted(key) + " must be a number from " + range(lowest, highest), key);
        return lowest;
    }
    return *value;
}

bool TableReader::flag(std::string_view key, bool missing) {
    if (!has(key)) {
        return missing;
    }
    const auto* value = node(key)->as_boolean();
    if (value == nullptr) {
        fail(quoted(key) + " must be true or false", key);
        return missing;
    }
    return value->get();
}

Colour TableReader::colour(std::string_view key) {
    constexpr std::size_t length = 7; // "#rrggbb"
    constexpr int hexadecimal = 16;
    const toml::node* found = node(key);
    if (found == nullptr) {
        return {};
    }
    const auto* value = found->as_string();
    const std::string_view text = value != nullptr ? std::string_view(value->get()) : std::string_view();
    unsigned rgb = 0;
    const bool isMarked = text.size() == length && text.front() == '#';
    const char* end = text.data() + text.size();
    if (!isMarked || std::from_chars(text.data() + 1, end, rgb, hexadecimal).ptr != end) {
        fail(quoted(key) + " must be a colour such as \"#40ff80\"", key);
        return {};
    }
    return Colour::rgb(rgb >> 16, rgb >> 8, rgb);
}

Point TableReader::pair(std::string_view key, int lowest, int highest) {
    const toml::node* found = node(key);
    if (found == nullptr) {
        return {lowest, lowest};
    }
    const auto* value = found->as_array();
    const auto element = [&](std::size_t i) -> std::optional<int> {
        const auto* number = value != nullptr && value->size() == 2 ? (*value)[i].as_integer() : nullptr;
        if (number == nullptr || number->get() < lowest || number->get() > highest) {
            return std::nullopt;
        }
        return static_cast<int>(number->get());
    };
    const auto x = element(0);
    const auto y = element(1);
    if (!x || !y) {
        fail(quoted(key) + " must be two whole numbers from " + range(lowest, highest), key);
        return {lowest, lowest};
    }
    return {*x, *y};
}

std::vector<std::pair<double, double>> TableReader::places(std::string_view key, std::size_t most) {
    const toml::node* found = node(key);
    if (found == nullptr) {
        return {};
    }
    const auto* value = found->as_array();
    std::vector<std::pair<double, double>> places;
    for (std::size_t i = 0; value != nullptr && i < std::min(value->size(), most); ++i) {
        if (const auto place = placeOnEarth((*value)[i])) {
            places.push_back(*place);
        }
    }
    if (places.empty() || places.size() != value->size()) {
        fail(quoted(key) + " must be 1 to " + std::to_string(most) + " pairs [latitude, longitude]", key);
        places.clear();
    }
    return places;
}

const toml::table* TableReader::table(std::string_view key) {
    const toml::node* found = node(key);
    if (found == nullptr) {
        return nullptr;
    }
    if (!found->is_table()) {
        fail(quoted(key) + " must be a table", key);
    }
    return found->as_table();
}

const toml::array* TableReader::tables(std::string_view key) {
    const toml::node* found = node(key);
    if (found == nullptr) {
        return nullptr;
    }
    const auto* value = found->as_array();
    if (value == nullptr || !value->is_homogeneous<toml::table>()) {
        fail(quoted(key) + " must be one or more [[" + std::string(key) + "]]", key);
        return nullptr;
    }
    return value;
}

void TableReader::finish() {
    for (const auto& [key, value] : table_) {
        if (!read_.contains(key.str())) {
            failAt(key.source(), "unknown key " + quoted(key.str()));
        }
    }
}

} // namespace ventrel::apt
