// PNG files put together by hand, so that tests can make every form of them and every lie.

#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace ventrel {

using Bytes = std::vector<std::byte>;

inline Bytes operator+(Bytes left, const Bytes& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

inline Bytes bytes(std::initializer_list<unsigned> values) {
    Bytes result;
    for (const unsigned value : values) {
        result.push_back(static_cast<std::byte>(value));
    }
    return result;
}

inline Bytes bigEndian(std::uint32_t value) {
    return bytes({value >> 24, value >> 16 & 0xFF, value >> 8 & 0xFF, value & 0xFF});
}

inline Bytes littleEndian(std::uint64_t value, std::size_t size) {
    Bytes result;
    for (std::size_t i = 0; i < size; ++i) {
        result.push_back(static_cast<std::byte>(value >> (8 * i)));
    }
    return result;
}

inline Bytes pngChunk(std::string_view name, const Bytes& content) {
    Bytes named;
    for (const char c : name) {
        named.push_back(static_cast<std::byte>(c));
    }
    named = named + content;
    std::uint32_t check = 0xFFFFFFFF;
    for (const std::byte byte : named) {
        check ^= std::to_integer<std::uint32_t>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            check = check >> 1 ^ ((check & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return bigEndian(static_cast<std::uint32_t>(content.size())) + named + bigEndian(~check);
}

/// The content packed without packing: one stored block.
inline Bytes stored(const Bytes& content) {
    std::uint32_t a = 1;
    std::uint32_t b = 0;
    for (const std::byte byte : content) {
        a = (a + std::to_integer<std::uint32_t>(byte)) % 65521;
        b = (b + a) % 65521;
    }
    const auto size = static_cast<std::uint32_t>(content.size());
    return bytes({0x78, 0x01, 1}) + littleEndian(size, 2) + littleEndian(~size, 2) + content +
           bigEndian(b << 16 | a);
}

struct PngForm {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    unsigned bitDepth = 8;
    unsigned colourType = 2; ///< 0 grey, 2 colour, 3 table, 4 grey with opacity, 6 colour with opacity
    bool interlaced = false;
    Bytes chunks; ///< between header and pixels
};

/// A whole file; `rows` are the rows as they are packed, each behind its filter byte.
inline Bytes pngFile(const PngForm& form, const Bytes& rows) {
    return bytes({0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'}) +
           pngChunk("IHDR", bigEndian(form.width) + bigEndian(form.height) +
                                bytes({form.bitDepth, form.colourType, 0, 0, form.interlaced ? 1U : 0U})) +
           form.chunks + pngChunk("IDAT", stored(rows)) + pngChunk("IEND", {});
}

/// The rows of a picture whose pixel at (x, y) is `pixel(x, y)`, in the seven passes of an interlaced file or
/// in one.
template <typename Pixel>
Bytes pngRows(const PngForm& form, const Pixel& pixel) {
    struct Pass {
        std::uint32_t left, top, stepX, stepY;
    };
    static constexpr Pass passes[] = {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4},
                                      {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}};
    const std::vector<Pass> used = form.interlaced ? std::vector<Pass>(std::begin(passes), std::end(passes))
                                                   : std::vector<Pass>{{0, 0, 1, 1}};
    Bytes rows;
    for (const Pass& pass : used) {
        for (std::uint32_t y = pass.top; y < form.height && pass.left < form.width; y += pass.stepY) {
            rows = rows + bytes({0});
            for (std::uint32_t x = pass.left; x < form.width; x += pass.stepX) {
                rows = rows + pixel(x, y);
            }
        }
    }
    return rows;
}

} // namespace ventrel
