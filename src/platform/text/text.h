// Text laid out: on one line, in columns, or wrapped into a box.

#pragma once

#include <optional>
#include <string_view>

#include "platform/canvas/canvas.h"
#include "platform/text/font.h"

namespace ventrel {

struct TextStyle {
    Colour colour;
    std::optional<Colour> ground; ///< fills each line's cell first; none: transparent
};

enum class Align { near, middle, far }; ///< left or top, centred, right or bottom

struct TextLayout {
    Align across = Align::near;
    Align down = Align::near; ///< of the whole block of lines
    /// Break between words at the box's width, and inside a word that is wider than the box. A line feed, a
    /// carriage return or both together always end a line.
    bool wrap = false;
    bool singleLine = false; ///< line breaks count as blanks, and nothing is wrapped
    /// "&x" underlines x (the last such mark counts), "&&" is an ampersand; otherwise they are ordinary
    /// characters.
    bool mnemonics = false;
    bool clip = true; ///< draw inside the box only
};

/// Draws one line at `corner` and returns the x at which a next piece goes on.
int drawText(Canvas& canvas, const Font& font, Point corner, std::string_view text, const TextStyle& style);

/// The same, drawn inside `clip` only; an opaque ground fills the whole of `clip`.
int drawTextInside(Canvas& canvas, const Font& font, Point corner, std::string_view text,
                   const TextStyle& style, const Rect& clip);

/// Draws the text into the box and returns the height of its lines together.
int drawTextBox(Canvas& canvas, const Font& font, const Rect& box, std::string_view text,
                const TextStyle& style, const TextLayout& layout);

/// The size that the text takes in a box of that width (any width when it does not wrap).
Size measureText(const Font& font, std::string_view text, int width, const TextLayout& layout);

/// Draws one line whose tab characters move on to the next multiple of `tabWidth` pixels from `corner`.
/// A `tabWidth` below 1 has no such stops: the columns then follow one another.
void drawTabbedText(Canvas& canvas, const Font& font, Point corner, std::string_view text, int tabWidth,
                    const TextStyle& style);

} // namespace ventrel
