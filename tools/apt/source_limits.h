// A look at a source before the TOML library sees it, which reads as deep as a text tells it to.

#pragma once

#include <optional>
#include <string_view>

#include "tools/apt/faults.h"

namespace ventrel::apt {

/// Dots in one key and brackets within each other, far above what an airspace needs.
inline constexpr int mostNesting = 16;

/// The first place where a key has more parts, or a value lies deeper, than `mostNesting`; dots and brackets
/// in texts and comments don't count.
std::optional<Fault> nestingFault(std::string_view toml);

} // namespace ventrel::apt
