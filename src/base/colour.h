// A colour as the airport files store it: 32 bits, red in the low byte, then green, then blue.

#pragma once

#include <cstdint>

namespace ventrel {

struct Colour {
    std::uint32_t value = 0; ///< 0x00BBGGRR; the top byte is ignored when drawing

    static constexpr Colour rgb(unsigned red, unsigned green, unsigned blue) {
        return {(red & 0xFFU) | (green & 0xFFU) << 8 | (blue & 0xFFU) << 16};
    }
    constexpr std::uint8_t red() const { return static_cast<std::uint8_t>(value); }
    constexpr std::uint8_t green() const { return static_cast<std::uint8_t>(value >> 8); }
    constexpr std::uint8_t blue() const { return static_cast<std::uint8_t>(value >> 16); }

    friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

} // namespace ventrel
