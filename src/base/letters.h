// Letters whose case does not matter: the 26 of ASCII. Names of files, options and arguments are compared so.

#pragma once

#include <algorithm>
#include <string_view>

namespace ventrel {

constexpr char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr bool sameWithoutCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, {}, lowered, lowered);
}

} // namespace ventrel
