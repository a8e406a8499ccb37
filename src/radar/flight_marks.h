// What stands around a flight on the scope: the ring of what has just happened to it, the thin one of what is
// coming, and the shapes that tell flights apart without their colours.

#pragma once

#include "console/radar_layout.h"
#include "console/signal_colours.h"
#include "platform/canvas/canvas.h"
#include "sim/flight.h"

namespace ventrel {

/// Whether colours alone have to tell things apart.
enum class MarkShapes {
    alike,    ///< every mark is a ring
    distinct, ///< a near miss has two rings, a failure a square; the selected flight stands on a bracket
};

/// The box around a flight's alert mark; also the first ring of a collision.
Rect alertCircle(Point radarPoint);

/// The mark around a flight to which something has just happened; nothing without an alert.
void drawAlertMark(Canvas& canvas, const RadarLayout& layout, const Flight& flight,
                   const SignalColours& colours, MarkShapes shapes);

/// The thin ring around a flight that will come too close to another one: as far as a near miss reaches.
void drawConflictRing(Canvas& canvas, const RadarLayout& layout, const Flight& flight, Colour colour);

/// The box that the bracket takes.
constexpr Rect bracketBox(Point radarPoint) {
    constexpr Rect around{-7, 4, 7, 9};
    return around.movedBy(radarPoint);
}

/// A bracket under the flight's symbol, clear of its tag.
void drawBracket(Canvas& canvas, const RadarLayout& layout, const Flight& flight, Colour colour);

} // namespace ventrel
