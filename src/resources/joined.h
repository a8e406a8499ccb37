// Tables made of several parts.

#pragma once

#include <algorithm>
#include <array>

namespace ventrel {

/// The rows of all parts, one part after the other.
template <typename Row, std::size_t... counts>
constexpr auto joined(const std::array<Row, counts>&... parts) {
    std::array<Row, (counts + ...)> rows{};
    auto next = rows.begin();
    ((next = std::ranges::copy(parts, next).out), ...);
    return rows;
}

} // namespace ventrel
