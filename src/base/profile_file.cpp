#include "base/profile_file.h"

#include <algorithm>
#include <cstdint>
#include <limits>

#include "base/whole_file.h"

namespace ventrel {

namespace {

constexpr std::size_t wholeFile = std::numeric_limits<std::size_t>::max();

constexpr std::string_view blanks = " \t\r\v\f";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lowered, lowered);
}

bool isComment(std::string_view line) {
    return trimmed(line).starts_with(';');
}

std::optional<std::string_view> sectionName(std::string_view line) {
    const std::string_view text = trimmed(line);
    const std::size_t end = text.find(']');
    if (!text.starts_with('[') || end == std::string_view::npos) {
        return std::nullopt;
    }
    return trimmed(text.substr(1, end - 1));
}

std::optional<std::string_view> keyName(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (isComment(line) || equals == std::string_view::npos) {
        return std::nullopt;
    }
    return trimmed(line.substr(0, equals));
}

bool isQuote(char c) {
    return c == '"' || c == '\'';
}

std::string_view withoutQuotes(std::string_view text) {
    const bool isQuoted = text.size() >= 2 && isQuote(text.front()) && text.back() == text.front();
    return isQuoted ? text.substr(1, text.size() - 2) : text;
}

/// The value as it reads back the same.
std::string written(std::string_view value) {
    std::string text(value);
    std::ranges::replace_if(
        text, [](char c) { return c == '\n' || c == '\r' || c == '\0'; }, ' ');
    const bool needsQuotes = trimmed(text) != text || withoutQuotes(text) != text;
    return needsQuotes ? '"' + text + '"' : text;
}

} // namespace

ProfileFile::ProfileFile(std::filesystem::path file) {
    const auto content = readFileStart(file, wholeFile).value_or(std::vector<std::byte>{});
    *this = fromText(std::move(file), {reinterpret_cast<const char*>(content.data()), content.size()});
}

ProfileFile ProfileFile::fromText(std::filesystem::path file, std::string_view text) {
    ProfileFile profile;
    profile.path_ = std::move(file);
    while (!text.empty()) {
        const std::size_t newline = text.find('\n');
        const bool hasEnd = newline != std::string_view::npos;
        std::string_view line = text.substr(0, newline);
        text.remove_prefix(hasEnd ? newline + 1 : text.size());
        const bool hasReturn = hasEnd && line.ends_with('\r');
        line.remove_suffix(hasReturn ? 1 : 0);
        profile.lines_.push_back({std::string(line), hasReturn ? "\r\n" : hasEnd ? "\n" : ""});
    }
    if (!profile.lines_.empty() && !profile.lines_.front().end.empty()) {
        profile.lineEnd_ = profile.lines_.front().end;
    }
    return profile;
}

std::string ProfileFile::toText() const {
    std::string text;
    for (const Line& line : lines_) {
        text += line.text;
        text += line.end;
    }
    return text;
}

std::optional<ProfileFile::Place> ProfileFile::find(std::string_view section, std::string_view key) const {
    std::optional<Place> place;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        std::string_view line = lines_[i].text;
        if (i == 0 && line.starts_with(byteOrderMark)) {
            line.remove_prefix(byteOrderMark.size());
        }
        if (const auto name = sectionName(line)) {
            if (place) {
                break;
            }
            if (sameName(*name, section)) {
                place = Place{i, std::nullopt, i + 1};
            }
        } else if (place) {
            const auto keyOfLine = keyName(line);
            if (keyOfLine && sameName(*keyOfLine, key)) {
                place->keyLine = i;
                break;
            }
            if (!trimmed(line).empty()) {
                place->insertBefore = i + 1; // blank lines stay between the sections
            }
        }
    }
    return place;
}

std::optional<std::string_view> ProfileFile::value(std::string_view section, std::string_view key) const {
    const auto place = find(section, key);
    if (!place || !place->keyLine) {
        return std::nullopt;
    }
    const std::string_view line = lines_[*place->keyLine].text;
    return withoutQuotes(trimmed(line.substr(line.find('=') + 1)));
}

int ProfileFile::integer(std::string_view section, std::string_view key, int missing) const {
    const auto found = value(section, key);
    if (!found) {
        return missing;
    }
    std::string_view digits = trimmed(*found);
    const bool isNegative = digits.starts_with('-');
    if (isNegative || digits.starts_with('+')) {
        digits.remove_prefix(1);
    }
    std::uint32_t number = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') {
            break;
        }
        number = number * 10 + static_cast<std::uint32_t>(c - '0');
    }
    return static_cast<std::int32_t>(isNegative ? 0U - number : number);
}

std::string ProfileFile::text(std::string_view section, std::string_view key,
                              std::string_view missing) const {
    return std::string(value(section, key).value_or(missing));
}

void ProfileFile::insertLine(std::size_t before, std::string text) {
    if (before > 0 && lines_[before - 1].end.empty()) {
        lines_[before - 1].end = lineEnd_;
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(before), Line{std::move(text), lineEnd_});
}

void ProfileFile::set(std::string_view section, std::string_view key, std::string_view newValue) {
    const auto place = find(section, key);
    if (place && place->keyLine) {
        std::string& line = lines_[*place->keyLine].text;
        const std::string before = line;
        line.resize(line.find('=') + 1);
        line += written(newValue);
        changed_ = changed_ || line != before;
        return;
    }
    std::string line = std::string(key) + '=' + written(newValue);
    if (place) {
        insertLine(place->insertBefore, std::move(line));
    } else {
        insertLine(lines_.size(), '[' + std::string(section) + ']');
        insertLine(lines_.size(), std::move(line));
    }
    changed_ = true;
}

bool ProfileFile::save() {
    if (!changed_) {
        return true;
    }
    const std::string text = toText();
    const auto content = std::as_bytes(std::span(text));
    if (replaceFile(path_, content) < content.size()) {
        return false;
    }
    changed_ = false;
    return true;
}

} // namespace ventrel
