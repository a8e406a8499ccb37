// The drifting clouds, which hide what lies under them.

#pragma once

#include <span>

#include "platform/canvas/canvas.h"
#include "sim/game_state.h"

namespace ventrel {

/// The colour of a cloud picture that lets the scope show through.
inline constexpr Colour cloudTransparent = Colour::rgb(0xFF, 0xFF, 0);

/// Draws every cloud that has appeared, and moves each on by one frame.
void drawClouds(Canvas& canvas, std::span<Cloud> clouds, std::span<const Bitmap> pictures, ClockSeconds now,
                int scopeSize);

/// Moves a cloud whose picture has that size; false once it has left the radar.
bool CloudDrift(Cloud& cloud, Size picture, int scopeSize);

} // namespace ventrel
