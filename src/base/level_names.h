// The levels of a shift as they are called, wherever one reads them.

#pragma once

#include <array>
#include <string_view>

namespace ventrel {

/// The last of the levels as a choice, which asks on.
inline constexpr std::string_view customLevelChoice = "Custom...";

/// By the level's number.
inline constexpr std::array<std::string_view, 5> levelNames{
    "Easy", "Normal", "Moderate", "Hard", customLevelChoice.substr(0, customLevelChoice.find('.'))};

} // namespace ventrel
