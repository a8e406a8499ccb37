// Whole numbers from text, as files and command lines have them.

#pragma once

#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>
#include <system_error>

namespace ventrel {

/// The number that the whole text is; none for anything else: a blank, a plus sign, something behind it, or
/// more than the type holds. Digits above 9 may be of either case.
template <std::integral Number>
std::optional<Number> wholeNumber(std::string_view text, int base = 10) {
    Number number{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    const bool isWhole = fault == std::errc() && end == text.data() + text.size();
    return isWhole ? std::optional(number) : std::nullopt;
}

} // namespace ventrel
