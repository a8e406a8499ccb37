// The sweep: a thin line that swings across the scope about its lower-left corner, like a wiper.
//
// Drawn by inverting pixels straight on the screen, and erased by inverting the same pixels again; a frame
// copied to the screen in between has erased it too, which `wasPaintedOver` records.

#pragma once

#include "platform/canvas/canvas.h"
#include "platform/devices/backend.h"
#include "radar/radar_layout.h"

namespace ventrel {

struct Sweep {
    Point end;                   ///< along the top edge and the right edge of the radar's square
    bool isOutward = false;      ///< to the right and down; otherwise back
    bool wasPaintedOver = false; ///< the line that was on the screen is gone
    Millis lastStep = 0;
};

/// Real time that must be exceeded between two steps.
inline constexpr Millis sweepStepInterval = 5;

/// Moves the end one pixel on.
void SweepAdvance(Sweep& sweep, int scopeSize);

/// The pixels of the line within the round scope.
Region sweepLine(Point end, const RadarLayout& layout, const Region& scope);

/// Whether the next step's time has come.
bool isSweepDue(const Sweep& sweep, Millis now);

/// One step on the screen: erases the line where it stands and draws it one pixel on, or ten pixels on after
/// a frame.
void stepSweep(Sweep& sweep, Canvas& screen, const RadarLayout& layout, const Region& scope, Millis now);

} // namespace ventrel
