// How large a picture that comes from outside may be.

#pragma once

#include <cstdint>

namespace ventrel {

/// No side of a picture may be longer; a file that claims more is refused before memory is taken.
inline constexpr std::uint32_t imageSideLimit = 4096;

} // namespace ventrel
