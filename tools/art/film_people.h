// The controllers of the film, seen from behind at their desk.

#pragma once

#include <string_view>

#include "tools/art/svg.h"

namespace ventrel::art {

enum class Hair { shortCut, ponyTail, wreath };

struct PersonLook {
    std::string_view shirt;
    std::string_view sleeve; ///< the same in its shade
    std::string_view skin;
    std::string_view hair;
    Hair cut;
};

/// All measured from the nape of the neck, in pixels of a person who is about 150 tall.
struct Pose {
    Spot neck; ///< in the picture
    Spot leftHand;
    Spot rightHand;
    double lean = 0; ///< degrees to the right
    double nod = 0;  ///< degrees of the head against the body
};

std::string_view peopleMaterials();

void drawPerson(Svg& svg, const PersonLook& look, const Pose& pose);

} // namespace ventrel::art
