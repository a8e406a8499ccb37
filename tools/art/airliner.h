// An airliner with two engines, as a body in space: the one that lands in the film and stands on the large
// pictures.

#pragma once

#include "tools/art/daylight.h"
#include "tools/art/space.h"
#include "tools/art/svg.h"

namespace ventrel::art {

/// Where it is and how it lies there.
struct Attitude {
    Vec at;             ///< the point under its middle at which its wheels touch the ground
    double bearing = 0; ///< degrees clockwise from north
    double pitch = 0;   ///< degrees, nose up
    double bank = 0;    ///< degrees, right wing down
    double bend = 1;    ///< metres by which the wings' tips are lifted: about 1 in flight, 0 on the ground
};

/// Which of its lamps are on.
struct Beacons {
    bool landing = true; ///< in the wing roots and at the nose wheel
    bool strobe = false; ///< white, at the wing tips
    bool beacon = false; ///< red, above and below
};

/// The glows that lamps have in a drawing; to be defined before anything with lamps is drawn into it.
std::string_view glowMaterials();

void drawAirliner(Svg& svg, const Camera& camera, const Attitude& attitude, const Daylight& light);

/// Its lamps with their glare, over everything else. `scale` is the glare's size, 1 for the title.
void drawBeacons(Svg& svg, const Camera& camera, const Attitude& attitude, const Beacons& beacons,
                 double scale);

/// Its shadow on the ground, and the light that its lamps throw ahead of it, both weaker the higher it is.
void drawGroundShade(Svg& svg, const Camera& camera, const Attitude& attitude);

/// Where one of its main wheels touches: left (-1) or right (1).
Vec mainWheel(const Attitude& attitude, int side);

} // namespace ventrel::art
