// The emblem of the service: a compass rose around an airliner.

#pragma once

#include <string_view>

#include "tools/art/svg.h"

namespace ventrel::art {

/// Where it stands, and what it is painted with.
struct EmblemLook {
    Spot middle;
    double radius = 0;
    std::string_view ink;
    std::string_view accent; ///< of the marks every 30 degrees
};

void drawEmblem(Svg& svg, const EmblemLook& look);

/// The airliner alone, seen from above and flying up, `length` pixels long.
void drawAirlinerFromAbove(Svg& svg, Spot middle, double length, std::string_view look);

} // namespace ventrel::art
