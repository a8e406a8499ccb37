// How colours look to different eyes: how bright they are beside each other, and how far apart they are also
// for the one man in twelve who has little or no sense of red or of green, and for those few without one of
// blue.

#pragma once

#include "base/colour.h"

namespace ventrel::apt {

/// The light that the colour gives, 0 black to 1 white.
double luminanceOf(Colour colour);

/// From 1, the same brightness, to 21, black and white; 3 is the least for a symbol that must be seen.
double contrast(double luminance, double otherLuminance);

enum class Sight { full, withoutRed, withoutGreen, withoutBlue };

/// How far apart the colours look; 2 is just seen side by side, 30 is seen at a glance.
double distanceSeen(Colour a, Colour b, Sight sight);

} // namespace ventrel::apt
