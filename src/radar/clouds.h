// The drifting clouds, which hide what lies under them.

#pragma once

#include <span>

#include "platform/canvas/canvas.h"
#include "sim/game.h"

namespace ventrel {

/// The colour of a cloud picture that lets the scope show through.
inline constexpr Colour cloudTransparent = Colour::rgb(0xFF, 0xFF, 0);

/// Draws every cloud that has appeared and not yet drifted away.
void drawClouds(Canvas& canvas, std::span<const Cloud> clouds, std::span<const Bitmap> pictures);

} // namespace ventrel
