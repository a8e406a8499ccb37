#include "base/profile_file.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "base/letters.h"
#include "base/whole_file.h"

namespace ventrel {

namespace {

constexpr std::string_view blanks = " \t\r\v\f";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// One line: where it stands in the text, without its line end, and where the next one starts.
struct Line {
    std::size_t start = 0;
    std::string_view text;
    std::size_t next = 0;
};

Line lineAt(std::string_view text, std::size_t start) {
    const std::size_t newline = std::min(text.find('\n', start), text.size());
    std::string_view line = text.substr(start, newline - start);
    const bool hasReturn = newline < text.size() && line.ends_with('\r');
    line.remove_suffix(hasReturn ? 1 : 0);
    return {start, line, std::min(newline + 1, text.size())};
}

/// The line end of the first line; "\n" when it has none.
std::string_view lineEndOf(std::string_view text) {
    const std::size_t newline = text.find('\n');
    const bool hasReturn = newline != std::string_view::npos && newline > 0 && text[newline - 1] == '\r';
    return hasReturn ? "\r\n" : "\n";
}

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
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
    std::ranges::replace_if(text, [](char c) { return c == '\n' || c == '\r' || c == '\0'; }, ' ');
    const bool needsQuotes = trimmed(text) != text || withoutQuotes(text) != text;
    return needsQuotes ? '"' + text + '"' : text;
}

} // namespace

Result<ProfileFile> ProfileFile::read(std::filesystem::path file) {
    const auto content = readWholeFileIfThere(file, mostBytes);
    if (!content) {
        return tl::unexpected(content.error());
    }
    const Bytes bytes = content->value_or(Bytes{});
    return fromText(std::move(file), {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

ProfileFile ProfileFile::fromText(std::filesystem::path file, std::string_view text) {
    ProfileFile profile;
    profile.path_ = std::move(file);
    profile.text_ = text;
    return profile;
}

std::optional<ProfileFile::Place> ProfileFile::find(std::string_view section, std::string_view key) const {
    std::optional<Place> place;
    const std::size_t start = text_.starts_with(byteOrderMark) ? byteOrderMark.size() : 0;
    for (Line line{0, {}, start}; line.next < text_.size();) {
        line = lineAt(text_, line.next);
        if (const auto name = sectionName(line.text)) {
            if (place) {
                break; // the section ends here
            }
            if (sameWithoutCase(*name, section)) {
                place = Place{false, 0, 0, line.next};
            }
        } else if (place) {
            const auto keyOfLine = keyName(line.text);
            if (keyOfLine && sameWithoutCase(*keyOfLine, key)) {
                const std::size_t pastEquals = line.text.find('=') + 1;
                const std::size_t valueAt =
                    std::min(line.text.find_first_not_of(blanks, pastEquals), line.text.size());
                const std::size_t valueLength = trimmed(line.text.substr(valueAt)).size();
                return Place{true, line.start + valueAt, valueLength, line.start};
            }
            if (!trimmed(line.text).empty()) {
                place->insertAt = line.next; // blank lines stay between the sections
            }
        }
    }
    return place;
}

std::optional<std::string_view> ProfileFile::value(std::string_view section, std::string_view key) const {
    const auto place = find(section, key);
    if (!place || !place->hasKey) {
        return std::nullopt;
    }
    return withoutQuotes(std::string_view(text_).substr(place->valueStart, place->valueLength));
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

void ProfileFile::insertLine(std::size_t at, std::string_view line) {
    const std::string_view end = lineEndOf(text_);
    const bool joinsLine = at > 0 && text_[at - 1] != '\n'; // the last line of a file may lack its end
    std::string inserted(joinsLine ? end : "");
    inserted.append(line).append(end);
    text_.insert(at, inserted);
}

void ProfileFile::set(std::string_view section, std::string_view key, std::string_view newValue) {
    const std::string value = written(newValue);
    const auto place = find(section, key);
    if (place && place->hasKey) {
        const bool isSame = std::string_view(text_).substr(place->valueStart, place->valueLength) == value;
        if (!isSame) {
            text_.replace(place->valueStart, place->valueLength, value);
            changed_ = true;
        }
        return;
    }
    if (!place) {
        insertLine(text_.size(), '[' + std::string(section) + ']');
    }
    insertLine(place ? place->insertAt : text_.size(), std::string(key) + '=' + value);
    changed_ = true;
}

Result<> ProfileFile::save() {
    if (!changed_) {
        return {};
    }
    auto saved = replaceFile(path_, std::as_bytes(std::span(text_)));
    changed_ = !saved;
    return saved;
}

} // namespace ventrel
