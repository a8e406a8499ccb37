// A line of text that has to get by with the width it is given: what gives way when the words are too wide.

#pragma once

#include <string_view>

#include "platform/canvas/canvas.h"
#include "platform/text/font.h"
#include "platform/text/text.h"

namespace ventrel {

/// Draws the line into the box from its top-left corner, over the style's ground. A line that is too wide
/// keeps all its words: first its blanks narrow to one pixel, then letters move closer by a pixel each,
/// spread evenly over the line. Only what is too wide even then loses its end.
void drawTightLine(Canvas& canvas, const Font& font, const Rect& box, std::string_view text,
                   const TextStyle& style);

/// What a line of that text takes of `width` pixels.
int tightLineWidth(const Font& font, std::string_view text, int width);

} // namespace ventrel
