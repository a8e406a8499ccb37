// Bytes as files hold them, and the numbers and letters among them.

#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace ventrel {

using Bytes = std::vector<std::byte>;
using ByteView = std::span<const std::byte>;

/// The number that `size` bytes at `offset` make, at most four, the lowest first. They must lie within.
constexpr std::uint32_t numberAt(ByteView bytes, std::size_t offset, std::size_t size = 4) {
    std::uint32_t number = 0;
    for (std::size_t i = size; i-- > 0;) {
        number = number << 8U | std::to_integer<std::uint32_t>(bytes[offset + i]);
    }
    return number;
}

/// Whether these letters stand at `offset`; false also where the bytes end before.
constexpr bool isTag(ByteView bytes, std::size_t offset, std::string_view tag) {
    return offset + tag.size() <= bytes.size() &&
           std::ranges::equal(bytes.subspan(offset, tag.size()), tag, [](std::byte byte, char letter) {
               return byte == static_cast<std::byte>(letter);
           });
}

} // namespace ventrel
