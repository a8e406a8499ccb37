// Texts with placeholders, in the manner of the classic formatter: %s %d %u %c %x %ld, width and zero fill.
//
// Texts are single-byte Windows-1252 throughout the program.

#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>

namespace ventrel {

/// A value for a placeholder: a text, or a whole number (also for %c).
using FormatValue = std::variant<std::string_view, long>;

/// Fills the placeholders of `pattern` from left to right. "%%" is a percent sign; a placeholder of an
/// unknown kind stands as it is written and takes no value, except "%l", which prints its number.
/// A missing value prints nothing. The result holds at most 1023 characters.
std::string FormatText(std::string_view pattern, std::initializer_list<FormatValue> values);

/// Minutes and seconds as "%02d:%02d"; minutes are not wrapped into hours.
std::string FormatMinutesSeconds(int seconds);

} // namespace ventrel
