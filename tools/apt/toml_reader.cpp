#include "tools/apt/toml_reader.h"

#include <charconv>
#include <cmath>

#include "base/windows1252.h"

namespace ventrel::apt {

namespace {

std::string quoted(std::string_view key) {
    return '\'' + std::string(key) + '\'';
}

std::string range(double lowest, double highest) {
    const auto text = [](double value) {
        return value == std::floor(value) ? std::to_string(static_cast<long>(value)) : std::to_string(value);
    };
    return text(lowest) + " to " + text(highest);
}

} // namespace

SourceFault faultAt(const std::filesystem::path& file, const toml::source_region& place,
                    const std::string& reason) {
    return {file.string() + ':' + std::to_string(place.begin.line) + ": " + reason};
}

TableReader::TableReader(const toml::table& table, const std::filesystem::path& file, std::string what)
    : table_(table), file_(file), what_(std::move(what)) {}

void TableReader::fail(const std::string& reason, std::string_view key) const {
    const toml::node* node = table_.get(key);
    throw faultAt(file_, node != nullptr ? node->source() : table_.source(), what_ + ": " + reason);
}

const toml::node& TableReader::node(std::string_view key) {
    const toml::node* node = table_.get(key);
    if (node == nullptr) {
        fail(quoted(key) + " is missing");
    }
    read_.emplace(key);
    return *node;
}

std::string TableReader::text(std::string_view key, std::size_t longest) {
    const auto* value = node(key).as_string();
    if (value == nullptr) {
        fail(quoted(key) + " must be a text", key);
    }
    std::string text = fromUtf8(value->get(), '\0');
    if (toUtf8(text) != value->get()) {
        fail(quoted(key) + " has a character that Windows-1252 lacks", key);
    }
    for (const char c : text) {
        if (static_cast<unsigned char>(c) < ' ') {
            fail(quoted(key) + " has a control character", key);
        }
    }
    if (text.empty() || text.size() > longest) {
        fail(quoted(key) + " must have 1 to " + std::to_string(longest) + " characters", key);
    }
    return text;
}

int TableReader::integer(std::string_view key, int lowest, int highest) {
    const auto* value = node(key).as_integer();
    if (value == nullptr || value->get() < lowest || value->get() > highest) {
        fail(quoted(key) + " must be a whole number from " + range(lowest, highest), key);
    }
    return static_cast<int>(value->get());
}

double TableReader::real(std::string_view key, double lowest, double highest) {
    const auto value = node(key).value<double>();
    if (!value || !(*value >= lowest && *value <= highest)) {
        fail(quoted(key) + " must be a number from " + range(lowest, highest), key);
    }
    return *value;
}

bool TableReader::flag(std::string_view key, bool missing) {
    if (!has(key)) {
        return missing;
    }
    const auto* value = node(key).as_boolean();
    if (value == nullptr) {
        fail(quoted(key) + " must be true or false", key);
    }
    return value->get();
}

Colour TableReader::colour(std::string_view key) {
    constexpr std::size_t length = 7; // "#rrggbb"
    const auto* value = node(key).as_string();
    const std::string_view text = value != nullptr ? std::string_view(value->get()) : std::string_view();
    unsigned rgb = 0;
    const bool isMarked = text.size() == length && text.front() == '#';
    const char* end = text.data() + text.size();
    if (!isMarked || std::from_chars(text.data() + 1, end, rgb, 16).ptr != end) {
        fail(quoted(key) + " must be a colour such as \"#40ff80\"", key);
    }
    return Colour::rgb(rgb >> 16, rgb >> 8, rgb);
}

Point TableReader::pair(std::string_view key, int lowest, int highest) {
    const auto* value = node(key).as_array();
    const auto element = [&](std::size_t i) {
        const auto* number = value != nullptr && value->size() == 2 ? (*value)[i].as_integer() : nullptr;
        if (number == nullptr || number->get() < lowest || number->get() > highest) {
            fail(quoted(key) + " must be two whole numbers from " + range(lowest, highest), key);
        }
        return static_cast<int>(number->get());
    };
    return {element(0), element(1)};
}

const toml::table& TableReader::table(std::string_view key) {
    const auto* value = node(key).as_table();
    if (value == nullptr) {
        fail(quoted(key) + " must be a table", key);
    }
    return *value;
}

const toml::array& TableReader::tables(std::string_view key) {
    const auto* value = node(key).as_array();
    if (value == nullptr || !value->is_homogeneous<toml::table>()) {
        fail(quoted(key) + " must be one or more [[" + std::string(key) + "]]", key);
    }
    return *value;
}

void TableReader::finish() const {
    for (const auto& [key, value] : table_) {
        if (!read_.contains(key.str())) {
            throw faultAt(file_, key.source(), what_ + ": unknown key " + quoted(key.str()));
        }
    }
}

} // namespace ventrel::apt
