#include "console/console_layout.h"

namespace ventrel {

std::optional<int> stripButtonAt(const StripsLayout& strips, Point point) {
    for (int strip = 0; strip < strips.count; ++strip) {
        if (strips.button(strip).contains(point)) {
            return strip;
        }
    }
    return std::nullopt;
}

} // namespace ventrel
