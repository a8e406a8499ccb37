// The airfield at dusk: one runway to the east along the x axis, whose threshold lies at x 0, with its
// lights, the lights of the approach before it, a taxiway, and the buildings on its north side.

#pragma once

#include <string>

#include "tools/art/space.h"
#include "tools/art/svg.h"

namespace ventrel::art {

inline constexpr double runwayLength = 2400; // metres
inline constexpr double runwayWidth = 46;

/// What the ground is made of, in a drawing that shows `depth` pixels of it; to be defined before it.
std::string airfieldMaterials(double depth);

/// Ground, runway, buildings and the lights of the town behind, from the camera's horizon down to the
/// picture's foot.
void drawAirfield(Svg& svg, const Camera& camera, Size size);

/// All lamps of the field, with the row of flashes that runs towards the threshold; `moment` is in seconds.
/// The glows of airliner.h are to be defined before.
void drawAirfieldLamps(Svg& svg, const Camera& camera, double moment);

} // namespace ventrel::art
