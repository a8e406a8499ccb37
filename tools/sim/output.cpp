#include "tools/sim/output.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "base/windows1252.h"

namespace ventrel {

namespace {

constexpr std::size_t pieceSize = 1U << 16U;

} // namespace

Output::Output(std::FILE* file) : file_{file} {}

Output& Output::operator<<(std::string_view plain) {
    text_ += plain;
    return *this;
}

Output& Output::operator<<(char plain) {
    text_ += plain;
    return *this;
}

Output& Output::operator<<(int number) {
    std::array<char, 12> digits; // NOLINT(cppcoreguidelines-pro-type-member-init): filled at once
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    text_.append(digits.data(), end);
    return *this;
}

void Output::appendEncoded(std::string_view text) {
    constexpr unsigned char pastAscii = 0x80;
    const bool isPlain =
        std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < pastAscii; });
    if (isPlain) {
        text_ += text;
    } else {
        text_ += toUtf8(text);
    }
}

Output& Output::quoted(std::string_view text) {
    text_ += '"';
    while (!text.empty()) {
        const auto length = std::min(text.find_first_of("\"\\"), text.size());
        appendEncoded(text.substr(0, length));
        text.remove_prefix(length);
        if (!text.empty()) {
            text_ += '\\';
            text_ += text.front();
            text.remove_prefix(1);
        }
    }
    text_ += '"';
    return *this;
}

void Output::endLine() {
    text_ += '\n';
    if (text_.size() >= pieceSize) {
        writeOut();
    }
}

bool Output::finish() {
    writeOut();
    return !failed_ && (file_ == nullptr || std::fflush(file_) == 0);
}

void Output::writeOut() {
    if (file_ == nullptr) {
        return;
    }
    failed_ = std::fwrite(text_.data(), 1, text_.size(), file_) != text_.size() || failed_;
    text_.clear();
}

} // namespace ventrel
