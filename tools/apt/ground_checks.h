// Whether what is drawn over the picture can be seen on it.

#pragma once

#include <span>

#include "platform/canvas/bitmap.h"
#include "sim/airport_file.h"
#include "tools/apt/faults.h"

namespace ventrel::apt {

/// Adds the labels and circles that are too much like the picture's part under them, and the colours of
/// aircraft and routes that are too much like its brightest parts. `picture` has the radar's size.
void checkGround(const AirportHeader& header, std::span<const Vor> points, const Bitmap& picture,
                 Problems& problems);

} // namespace ventrel::apt
