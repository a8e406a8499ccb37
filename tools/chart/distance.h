// How far the nearest shore or river is.

#pragma once

#include "tools/chart/plane.h"

namespace ventrel::chart {

enum class Side { covered, clear };

/// From every pixel to the nearest one of that side, in pixels; 0 on the side itself. A pixel of which half
/// is covered is covered. Without any such pixel everything is far away.
Plane distanceTo(Side side, const Plane& covered);

} // namespace ventrel::chart
