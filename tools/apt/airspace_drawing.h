// Pictures of an airspace without the game: its map, and the empty grid as a ground to paint over.

#pragma once

#include <cstddef>
#include <span>

#include "platform/canvas/bitmap.h"
#include "platform/text/font.h"
#include "sim/airport_file.h"

namespace ventrel::apt {

enum class GridDots { hidden, shown };

/// The map as the game draws it, black around the scope. A picture that cannot be decoded is left out, as
/// there.
Bitmap mapPicture(const AirportFile& airport, std::span<const std::byte> jpeg, GridDots dots, FontSet& fonts);

/// The layout's cells, numbered, within the edge of the scope; cells in which flights are lost are darkened.
Bitmap blankGrid(int layoutWidth, FontSet& fonts);

} // namespace ventrel::apt
