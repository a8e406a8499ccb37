#include "base/windows1252.h"

#include <algorithm>
#include <array>
#include <optional>

namespace ventrel {

namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr unsigned firstSpecial = 0x80;
constexpr unsigned pastSpecial = 0xA0;

/// The characters of bytes 0x80 to 0x9F, as published in the Unicode Consortium's mapping table CP1252.TXT.
/// The five bytes without a character stand for the control characters of their own numbers, as in
/// bestfit1252.txt.
constexpr std::array<char32_t, pastSpecial - firstSpecial> specials{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void appendUtf8(std::string& text, char32_t c) {
    const auto continuation = [&](int shift) { text += static_cast<char>(0x80U | (c >> shift & 0x3FU)); };
    if (c < 0x80) {
        text += static_cast<char>(c);
    } else if (c < 0x800) {
        text += static_cast<char>(0xC0U | c >> 6);
        continuation(0);
    } else {
        text += static_cast<char>(0xE0U | c >> 12);
        continuation(6);
        continuation(0);
    }
}

std::optional<char> toByte(char32_t c) {
    if (c < firstSpecial || (c >= pastSpecial && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    const auto* const found = std::ranges::find(specials, c);
    if (found == specials.end()) {
        return std::nullopt;
    }
    return static_cast<char>(firstSpecial + static_cast<unsigned>(found - specials.begin()));
}

/// Takes the first character off `text`; the replacement character for a broken sequence, of which one byte
/// goes.
char32_t takeCharacter(std::string_view& text) {
    const auto first = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (first < 0x80) {
        return first;
    }
    const std::size_t following = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    const bool isLead = first >= 0xC2 && first < 0xF5;
    if (!isLead || text.size() < following) {
        return replacement;
    }
    char32_t c = first & (0x3FU >> following);
    for (std::size_t i = 0; i < following; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80U) {
            return replacement;
        }
        c = c << 6 | (byte & 0x3FU);
    }
    constexpr std::array<char32_t, 4> lowest{0, 0x80, 0x800, 0x10000};
    if (c < lowest[following]) {
        return replacement; // longer than the character needs
    }
    text.remove_prefix(following);
    return c;
}

bool isControl(char32_t c) {
    constexpr char32_t firstPrintable = 0x20;
    constexpr char32_t deletion = 0x7F; // and the 32 after it, as far as they are no characters
    return c < firstPrintable || (c >= deletion && c < pastSpecial);
}

} // namespace

char32_t toUnicode(char windows1252) {
    const auto byte = static_cast<unsigned char>(windows1252);
    return byte >= firstSpecial && byte < pastSpecial ? specials[byte - firstSpecial] : byte;
}

bool isControlCharacter(char windows1252) {
    return isControl(toUnicode(windows1252));
}

std::string toUtf8(std::string_view windows1252) {
    std::string utf8;
    for (const char c : windows1252) {
        appendUtf8(utf8, toUnicode(c));
    }
    return utf8;
}

std::string toTerminal(std::string_view windows1252) {
    std::string text(windows1252);
    std::ranges::replace_if(text, [](char c) { return c != '\n' && isControlCharacter(c); }, '?');
    return toUtf8(text);
}

std::string fromUtf8(std::string_view utf8, char missing) {
    std::string text;
    while (!utf8.empty()) {
        const char byte = toByte(takeCharacter(utf8)).value_or(missing);
        const bool isLeftOut = byte == '\0' && missing == '\0';
        if (!isLeftOut) {
            text += byte;
        }
    }
    return text;
}

std::string pathText(const std::filesystem::path& path) {
    return fromUtf8(path.string());
}

} // namespace ventrel
