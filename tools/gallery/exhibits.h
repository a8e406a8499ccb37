// The gallery's pictures that are no windows: every face and every drawing operation, with their names.

#pragma once

#include "platform/canvas/canvas.h"
#include "platform/text/font.h"

namespace ventrel {

/// Of the dark panels that both are painted on.
inline constexpr Colour darkGround = Colour::rgb(8, 14, 12);

/// What is drawn on them.
inline constexpr Colour amber = Colour::rgb(255, 159, 82);
inline constexpr Colour green = Colour::rgb(0x5C, 0xFF, 0x94);
inline constexpr Colour white = Colour::rgb(255, 255, 255);

/// Every face in every size that the windows ask for, and how lines are laid out.
void paintFaces(Canvas& canvas, const Rect& panel, FontSet& fonts);

/// One cell for each drawing operation.
void paintDrawing(Canvas& canvas, const Rect& panel, int columns, const Font& captions);

} // namespace ventrel
