// The small instruments of the top bar: clock, small scope and alert lamps.

#pragma once

#include <span>

#include "controls/scope_blips.h"
#include "platform/canvas/canvas.h"
#include "platform/text/font.h"
#include "sim/alert_lamps.h"
#include "sim/game_clock.h"

namespace ventrel {

/// A black box, with the time while a game runs.
void paintClock(Canvas& canvas, const Game& game, const Font& font);

/// The small scope over its piece of the console: dots while a game runs, and the sweep with its trail.
void paintSmallScope(Canvas& canvas, const Bitmap& background, std::span<const Blip> blips, int sweepIndex,
                     Colour flightColour, Colour selectedColour);

/// One lamp over its piece of the console.
void paintLamp(Canvas& canvas, const Bitmap& background, const Bitmap& lamp);

} // namespace ventrel
