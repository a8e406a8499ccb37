// The sweep: a thin line that swings across the scope about its lower-left corner, like a wiper.
//
// Drawn by inverting pixels straight on the screen, and erased by inverting the same pixels again, so that it
// costs no frame. Whoever copies a picture over the line says so; the record knows which pixels of it are on
// the screen.

#pragma once

#include "console/radar_layout.h"
#include "platform/canvas/canvas.h"
#include "platform/devices/backend.h"

namespace ventrel {

struct Sweep {
    Point end;                   ///< along the top edge and the right edge of the radar's square
    bool isOutward = false;      ///< to the right and down; otherwise back
    bool wasPaintedOver = false; ///< by a frame, since the latest step
    Region drawn;                ///< the pixels that are inverted on the screen at present
    Millis lastStep = 0;
};

/// Real time from one step to the next.
inline constexpr Millis sweepStepTime = 6;

/// Moves the end one pixel on.
void SweepAdvance(Sweep& sweep, int scopeSize);

/// The pixels of the line within the round scope.
Region sweepLine(Point end, const RadarLayout& layout, const Region& scope);

/// That many steps on the screen, at least 1: erases the line where it stands and draws it so many pixels
/// on, and nine more after a frame.
void stepSweep(Sweep& sweep, Canvas& screen, const RadarLayout& layout, const Region& scope, int steps);

/// A frame covers all of the screen's scope: no line is there any more.
void coverSweep(Sweep& sweep);

/// Draws the line where it stands, after it was covered.
void showSweep(Sweep& sweep, Canvas& screen, const RadarLayout& layout, const Region& scope);

/// Draws the line's pixels inside `area` again, over which a picture has just been copied.
void mendSweep(const Sweep& sweep, Canvas& screen, const Rect& area);

} // namespace ventrel
