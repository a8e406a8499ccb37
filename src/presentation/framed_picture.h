// A picture in the middle of the screen, and the frames that the presentations draw around theirs.

#pragma once

#include "platform/canvas/canvas.h"

namespace ventrel {

/// The corner at which something of `size` stands in the middle of `screen`; outside it where it is larger.
Point centredCorner(Size screen, Size size);

/// Eight one-pixel frames around a picture, each two pixels further out than the one before.
void drawNavyFrames(Canvas& canvas, const Rect& picture);

} // namespace ventrel
