// The shape of the airliner: faces in its own space, metres, x ahead, y to the left, z up from its wheels.

#pragma once

#include <string_view>
#include <vector>

#include "tools/art/daylight.h"
#include "tools/art/space.h"

namespace ventrel::art {

struct Face {
    std::vector<Vec> corners; ///< counter-clockwise from outside
    Tint paint;
    double shine = 0;
    bool glows = false;    ///< has its own light
    bool twoSided = false; ///< seen from behind as well
};

/// The parts in the order in which they hide each other: the far half, then the body, then the near half.
struct AirlinerShape {
    std::vector<Face> left; ///< wing, engine, tail plane and wheels
    std::vector<Face> right;
    std::vector<Face> body;
    std::vector<Face> windows; ///< drawn over the body
    std::vector<Face> fin;
};

AirlinerShape makeAirliner();

inline constexpr double axisHeight = 4.4; // of the body, above the ground
inline constexpr Vec landingLampLeft{4.2, 2.2, 3.3};
inline constexpr Vec noseLamp{12.9, 0, 1.7};
inline constexpr Vec wingTip{-3.8, 17.3, 4.1};
inline constexpr Vec mainWheelFoot{-0.9, 3.4, 0};

} // namespace ventrel::art
