// The reader of outlines against any bytes; what it accepts can be drawn.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tools/chart/strokes.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ventrel::chart;
    constexpr int side = 49;
    const auto outline = parseOutline({reinterpret_cast<const char*>(data), size}, "fuzz.outline");
    if (!outline) {
        return outline.error().text.starts_with("fuzz.outline:") ? 0 : (std::abort(), 0);
    }
    Plane plane = filled(side, outline->land);
    for (const GradedLine& river : outline->rivers) {
        stroke(plane, river.line, {.width = 2});
    }
    for (const GradedLine& border : outline->borders) {
        stroke(plane, border.line, {.width = 1, .dash = 3, .gap = 4});
    }
    for (int y = 0; y < side; ++y) {
        for (const float value : plane.row(y)) {
            if (!(value >= 0 && value <= 1)) {
                std::abort();
            }
        }
    }
    return 0;
}
