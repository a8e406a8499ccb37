// A window's own piece of the console's picture, over which it draws.

#pragma once

#include "platform/canvas/canvas.h"

namespace ventrel {

inline Bitmap consolePiece(const Bitmap& console, const Rect& bounds) {
    Bitmap piece(bounds.size());
    Canvas canvas(piece);
    canvas.draw(piece.bounds(), console, bounds);
    return piece;
}

} // namespace ventrel
