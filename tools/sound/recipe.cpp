#include "tools/sound/recipe.h"

#include <cmath>

namespace ventrel::sound {

namespace {

std::string inFull(double value) {
    const std::string text = std::to_string(value);
    return value == std::floor(value) ? text.substr(0, text.find('.')) : text;
}

bool isIn(const Range& range, double value) {
    return value >= range.lowest && value <= range.highest;
}

} // namespace

RecipeTable::RecipeTable(const toml::table& table, std::string file)
    : table_(table), file_(std::move(file)) {}

const toml::node* RecipeTable::node(std::string_view key) {
    read_.emplace(key);
    return table_.get(key);
}

void RecipeTable::refuse(std::string_view key, const std::string& reason) {
    if (!fault_) {
        const toml::node* const at = table_.get(key);
        const toml::source_position place = (at != nullptr ? at->source() : table_.source()).begin;
        fault_ = Failure{file_ + ':' + std::to_string(place.line) + ": '" + std::string(key) + "' " + reason};
    }
}

double RecipeTable::number(std::string_view key, Range range, std::optional<double> missing) {
    const toml::node* const value = node(key);
    if (value == nullptr && missing) {
        return *missing;
    }
    const std::optional<double> number = value != nullptr ? value->value<double>() : std::nullopt;
    if (!number || !isIn(range, *number)) {
        refuse(key, "must be a number from " + inFull(range.lowest) + " to " + inFull(range.highest));
        return range.lowest;
    }
    return *number;
}

std::string RecipeTable::text(std::string_view key, std::optional<std::string> missing) {
    const toml::node* const value = node(key);
    if (value == nullptr && missing) {
        return *missing;
    }
    const auto text = value != nullptr ? value->value<std::string>() : std::nullopt;
    if (!text || text->empty()) {
        refuse(key, "must be a text");
    }
    return text.value_or("");
}

std::vector<std::string> RecipeTable::texts(std::string_view key) {
    const toml::node* const value = node(key);
    std::vector<std::string> result;
    if (value != nullptr && value->is_array()) {
        for (const toml::node& element : *value->as_array()) {
            result.push_back(element.value_or(std::string()));
        }
    }
    if (result.empty()) {
        refuse(key, "must be a list of texts");
    }
    return result;
}

std::vector<double> RecipeTable::numbers(std::string_view key, Range range) {
    const toml::node* const value = node(key);
    std::vector<double> result;
    if (value != nullptr && value->is_array()) {
        for (const toml::node& element : *value->as_array()) {
            const auto number = element.value<double>();
            if (!number || !isIn(range, *number)) {
                refuse(key, "must be a list of numbers from " + inFull(range.lowest) + " to " +
                                inFull(range.highest));
                return {};
            }
            result.push_back(*number);
        }
    }
    if (result.empty()) {
        refuse(key, "must be a list of numbers");
    }
    return result;
}

Curve RecipeTable::curve(std::string_view key, Range range) {
    const toml::node* const value = node(key);
    if (value == nullptr) {
        return {};
    }
    if (!value->is_array()) {
        return {{0, number(key, range)}};
    }
    Curve result;
    for (const toml::node& element : *value->as_array()) {
        const toml::array* const pair = element.as_array();
        const bool isPair = pair != nullptr && pair->size() == 2;
        const auto time = isPair ? pair->get(0)->value<double>() : std::nullopt;
        const auto height = isPair ? pair->get(1)->value<double>() : std::nullopt;
        const auto isLater = [&](double seconds) { return result.empty() || seconds > result.back().time; };
        if (!time || !isLater(*time) || !height || !isIn(range, *height)) {
            refuse(key, "must be a list of [seconds, number from " + inFull(range.lowest) + " to " +
                            inFull(range.highest) + "], in the order of time");
            return {};
        }
        result.push_back({*time, *height});
    }
    return result;
}

std::vector<RecipeTable> RecipeTable::tables(std::string_view key) {
    const toml::node* const value = node(key);
    std::vector<RecipeTable> result;
    if (value != nullptr && !value->is_array_of_tables()) {
        refuse(key, "must be tables");
    } else if (value != nullptr) {
        for (const toml::node& element : *value->as_array()) {
            result.emplace_back(*element.as_table(), file_);
        }
    }
    return result;
}

Result<> RecipeTable::finish() {
    for (const auto& [key, value] : table_) {
        if (!read_.contains(key.str())) {
            refuse(key.str(), "means nothing here");
        }
    }
    if (fault_) {
        return tl::unexpected(*fault_);
    }
    return {};
}

Result<toml::table> readRecipe(const std::filesystem::path& file) {
    try {
        return toml::parse_file(file.string());
    } catch (const toml::parse_error& error) {
        return failed(file.string() + ':' + std::to_string(error.source().begin.line) + ": " +
                      std::string(error.description()));
    }
}

} // namespace ventrel::sound
