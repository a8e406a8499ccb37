// The two sizes of the main window, and of the console that fills it.

#pragma once

#include "base/geometry.h"

namespace ventrel {

inline constexpr Size smallWindow{800, 600};
inline constexpr Size largeWindow{1024, 768};

constexpr bool isLarge(Size window) {
    return window.width == largeWindow.width;
}

} // namespace ventrel
