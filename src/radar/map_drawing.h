// The part of the scope that does not move during a game: frame, airport picture, map points and grid.
//
// Composed once for each game (and when the player toggles the picture or the grid) into one bitmap, which
// every radar frame starts from.

#pragma once

#include <span>

#include "console/radar_layout.h"
#include "platform/canvas/canvas.h"
#include "platform/text/font.h"
#include "sim/vor.h"

namespace ventrel {

/// The pictures and choices that a map is made of.
struct MapParts {
    const Bitmap& frame; ///< the scope's glass and the console around it, at least the scope's square
    const Bitmap* airport = nullptr; ///< the airport's own picture; none: the frame's glass
    std::span<const Vor> vors;       ///< later points are drawn over earlier ones
    bool showPicture = true;         ///< off: black inside the scope, whatever there is
    bool showGrid = false;
    bool showCentrelines = false;
};

/// The letters of the points' labels.
constexpr FontRequest mapLabelFont(const RadarLayout& layout) {
    return {Face::smallFonts, -layout.labelHeight, false};
}

/// Makes the map of that layout.
Bitmap composeMap(const RadarLayout& layout, const MapParts& parts, const Font& labelFont);

/// One map point that is not an airport: circle, centre dot and label.
void DrawVor(Canvas& canvas, const RadarLayout& layout, const Vor& vor, const Font& labelFont);

/// One airport: circle, approach cone, runway, landing arrow and label. A runway heading that is none of the
/// eight draws the circle and the label alone.
void DrawAirport(Canvas& canvas, const RadarLayout& layout, const Vor& vor, const Font& labelFont);

/// A dot at the top-left corner of every cell.
void DrawGridDots(Canvas& canvas, const RadarLayout& layout);

} // namespace ventrel
