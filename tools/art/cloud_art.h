// The sixteen clouds that drift over the scope, each with its own size and shape.

#pragma once

#include <string>

namespace ventrel::art {

inline constexpr int cloudCount = 16;

/// The drawing of cloud 0 to 15, on a clear ground.
std::string drawCloud(int index);

} // namespace ventrel::art
