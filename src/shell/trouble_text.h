// Many troubles told at once: one box in place of one each.

#pragma once

#include <span>
#include <string>

namespace ventrel {

/// The texts one below the other; of very many the first, and how many more there are.
std::string troubleText(std::span<const std::string> troubles);

} // namespace ventrel
