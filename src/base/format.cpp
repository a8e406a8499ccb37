#include "base/format.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <limits>

namespace ventrel {

namespace {

constexpr std::size_t longestResult = 1023;
constexpr int widestField = static_cast<int>(longestResult);
constexpr int secondsPerMinute = 60;

/// One placeholder: "%", flags, width, precision, an "l", and the letter of its kind.
struct Placeholder {
    std::string_view written; // as it stands in the pattern
    bool alignLeft = false;
    bool zeroFill = false;
    int width = 0;
    int precision = -1; // -1: none given
    bool isLong = false;
    char kind = '\0';
};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isKnownKind(char kind) {
    return std::string_view("sdiucxX").find(kind) != std::string_view::npos;
}

class PatternReader {
public:
    explicit PatternReader(std::string_view pattern) : pattern_(pattern) {}

    bool atEnd() const { return at_ >= pattern_.size(); }
    char peek() const { return atEnd() ? '\0' : pattern_[at_]; }
    char take() { return pattern_[at_++]; }

    bool takeIf(char c) {
        const bool isThere = peek() == c && !atEnd();
        at_ += isThere ? 1 : 0;
        return isThere;
    }

    /// Reads a placeholder whose "%" has been taken.
    Placeholder takePlaceholder() {
        const std::size_t start = at_ - 1;
        Placeholder p;
        takeFlags(p);
        p.width = takeNumber();
        if (takeIf('.')) {
            p.precision = takeNumber();
        }
        p.isLong = takeIf('l');
        const std::size_t beforeKind = at_;
        p.kind = atEnd() ? '\0' : take();
        if (p.isLong && !isKnownKind(p.kind)) {
            at_ = beforeKind; // "%l" alone is a number; what follows is text
            p.kind = 'd';
        }
        p.written = pattern_.substr(start, at_ - start);
        return p;
    }

private:
    void takeFlags(Placeholder& p) {
        for (;;) {
            if (takeIf('-')) {
                p.alignLeft = true;
            } else if (takeIf('0')) {
                p.zeroFill = true;
            } else {
                return;
            }
        }
    }

    int takeNumber() {
        int number = 0;
        while (isDigit(peek())) {
            number = std::min(number * 10 + (take() - '0'), widestField);
        }
        return number;
    }

    std::string_view pattern_;
    std::size_t at_ = 0;
};

std::string digits(long value, char kind) {
    const auto number = static_cast<std::int32_t>(value);
    const auto unsignedNumber = static_cast<std::uint32_t>(value);
    switch (kind) {
    case 'u': return std::to_string(unsignedNumber);
    case 'x':
    case 'X': {
        char text[std::numeric_limits<std::uint32_t>::digits];
        std::snprintf(text, sizeof text, kind == 'x' ? "%x" : "%X", unsignedNumber);
        return text;
    }
    default: return std::to_string(number);
    }
}

std::string numberText(const Placeholder& p, long value) {
    std::string text = digits(value, p.kind);
    const bool isNegative = text.front() == '-';
    const auto wanted = static_cast<std::size_t>(p.zeroFill && !p.alignLeft ? p.width : 0);
    if (text.size() < wanted) {
        text.insert(isNegative ? 1 : 0, wanted - text.size(), '0');
    }
    return text;
}

std::string valueText(const Placeholder& p, const FormatValue& value) {
    if (const auto* text = std::get_if<std::string_view>(&value)) {
        const auto most = p.precision < 0 ? text->size() : static_cast<std::size_t>(p.precision);
        return std::string(text->substr(0, most));
    }
    const long number = std::get<long>(value);
    return p.kind == 'c' ? std::string(1, static_cast<char>(number)) : numberText(p, number);
}

std::string padded(std::string text, const Placeholder& p) {
    const auto width = static_cast<std::size_t>(p.width);
    if (text.size() < width) {
        text.insert(p.alignLeft ? text.size() : 0, width - text.size(), ' ');
    }
    return text;
}

} // namespace

std::string FormatText(std::string_view pattern, std::initializer_list<FormatValue> values) {
    std::string result;
    const auto* next = values.begin();
    for (PatternReader reader(pattern); !reader.atEnd() && result.size() < longestResult;) {
        const char c = reader.take();
        if (c != '%') {
            result += c;
            continue;
        }
        if (reader.takeIf('%')) {
            result += '%';
            continue;
        }
        const Placeholder p = reader.takePlaceholder();
        if (!isKnownKind(p.kind)) {
            result += p.written;
        } else if (next != values.end()) {
            result += padded(valueText(p, *next++), p);
        }
    }
    result.resize(std::min(result.size(), longestResult));
    return result;
}

std::string FormatMinutesSeconds(int seconds) {
    return FormatText("%02d:%02d", {long{seconds / secondsPerMinute}, long{seconds % secondsPerMinute}});
}

} // namespace ventrel
