// How a controller's name is written.

#pragma once

#include <string>
#include <string_view>

namespace ventrel {

inline constexpr std::size_t longestControllerName = 30;

/// Who has not yet given a name.
inline constexpr std::string_view namelessController = "Controller";

/// The first letter a capital, all others small, accented ones too (Windows-1252).
std::string properName(std::string_view name);

} // namespace ventrel
