// A text of a few characters that lies within its owner, so that a record full of them is copied in one go.

#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace ventrel {

/// At most 15 characters; what does not fit is cut off.
class ShortText {
public:
    static constexpr std::size_t capacity = 15;

    constexpr ShortText() = default;
    constexpr ShortText(std::string_view text) {
        for (const char character : text) {
            *this += character;
        }
    }
    constexpr ShortText(const char* text) : ShortText(std::string_view{text}) {}

    constexpr ShortText& operator+=(char character) {
        if (length_ < capacity) {
            characters_[length_++] = character;
        }
        return *this;
    }
    constexpr operator std::string_view() const { return {characters_.data(), length_}; }
    constexpr std::size_t size() const { return length_; }

    friend constexpr bool operator==(const ShortText&, const ShortText&) = default;

private:
    std::array<char, capacity> characters_{};
    std::uint8_t length_ = 0;
};

} // namespace ventrel
