// The film's shots of the airliner: it comes in over the lamps of the approach, and touches down.

#pragma once

#include <string_view>

#include "tools/art/airliner.h"
#include "tools/art/space.h"
#include "tools/art/svg.h"

namespace ventrel::art {

std::string_view flightMaterials();

/// Sky, hills and airfield as a camera of the film sees them; `moment` times the flashing lamps.
void drawFilmOutside(Svg& svg, const Camera& camera, double moment);

/// The airliner on the runway, from a little before it touches.
Attitude rollingAt(double moment);
/// Its lamps, of which some flash.
Beacons beaconsAt(double moment);

void drawApproach(Svg& svg, double moment);
void drawTouchDown(Svg& svg, double moment);

} // namespace ventrel::art
