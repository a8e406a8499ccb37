// The evening sky of the large pictures and the film, and the hills along its horizon.

#pragma once

#include <string_view>

#include "tools/art/space.h"
#include "tools/art/svg.h"

namespace ventrel::art {

/// The sky above a horizon, over the whole width of a picture. All its parts grow with `reach`, its height in
/// pixels.
struct SkyLook {
    Size size;          ///< of the picture
    double horizon = 0; ///< its row
    double sun = 0;     ///< the column where the sun has gone down
    double reach = 300;
    unsigned clouds = 7; ///< chooses their shapes
};
void drawSky(Svg& svg, const SkyLook& look);

/// Hills as the camera sees them, far and pale behind near and dark, down to the horizon.
void drawHills(Svg& svg, const Camera& camera, double width);

/// A film's fine grain over all of a picture, so that its slow shades show no steps.
void drawGrain(Svg& svg, Size size);

} // namespace ventrel::art
