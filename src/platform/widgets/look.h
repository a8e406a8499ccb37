// The look of the classic grey desktop: every edge, mark and colour that the controls are drawn with.

#pragma once

#include <string_view>

#include "base/failure.h"
#include "platform/canvas/canvas.h"
#include "platform/text/font.h"
#include "platform/text/text.h"

namespace ventrel {

namespace look {

inline constexpr Colour face = Colour::rgb(0xC0, 0xC0, 0xC0);
inline constexpr Colour light = Colour::rgb(0xFF, 0xFF, 0xFF);
inline constexpr Colour softLight = Colour::rgb(0xDF, 0xDF, 0xDF);
inline constexpr Colour shadow = Colour::rgb(0x80, 0x80, 0x80);
inline constexpr Colour darkShadow = Colour::rgb(0, 0, 0);
inline constexpr Colour text = Colour::rgb(0, 0, 0);
inline constexpr Colour greyText = Colour::rgb(0x80, 0x80, 0x80);
inline constexpr Colour field = Colour::rgb(0xFF, 0xFF, 0xFF);
inline constexpr Colour selection = Colour::rgb(0, 0, 0x80);
inline constexpr Colour selectedText = Colour::rgb(0xFF, 0xFF, 0xFF);
inline constexpr Colour caption = Colour::rgb(0, 0, 0x80);
inline constexpr Colour idleCaption = Colour::rgb(0x80, 0x80, 0x80);
inline constexpr Colour captionText = Colour::rgb(0xFF, 0xFF, 0xFF);

} // namespace look

/// The fonts of all controls; they outlive every control.
struct WidgetFonts {
    const Font& text;
    const Font& caption;
};

/// Those of the classic desktop.
WidgetFonts widgetFontsOf(FontSet& fonts);

/// The edge of a button, two pixels wide, inside `rect`; pressed it is one dark line.
void drawButtonEdge(Canvas& canvas, const Rect& rect, bool pressed);
/// The edge of a window or menu, two pixels wide.
void drawRaisedEdge(Canvas& canvas, const Rect& rect);
/// The edge of a field to write or choose in, two pixels wide.
void drawSunkenEdge(Canvas& canvas, const Rect& rect);
/// One pixel, as around a sunken label.
void drawThinSunkenEdge(Canvas& canvas, const Rect& rect);
/// The engraved frame of a group.
void drawGroupFrame(Canvas& canvas, const Rect& rect);
/// Dots just inside `rect`.
void drawFocusFrame(Canvas& canvas, const Rect& rect);
/// The line between two menu items.
void drawSeparator(Canvas& canvas, int left, int right, int y);

/// Text with its marked letter underlined; greyed text is engraved.
void drawLabel(Canvas& canvas, const Font& font, const Rect& box, std::string_view words, bool enabled,
               const TextLayout& layout);

/// A check mark of 7 x 7 pixels.
void drawCheckMark(Canvas& canvas, Point corner, Colour colour);
enum class ToggleLook { ready, pressed, greyed };
/// The box of a check box, 13 x 13 pixels, and the ring of a radio button, 12 x 12.
void drawCheckBox(Canvas& canvas, Point corner, bool checked, ToggleLook toggle);
void drawRadioRing(Canvas& canvas, Point corner, bool checked, ToggleLook toggle);
inline constexpr int toggleMarkSize = 13;

enum class ArrowDirection { up, down, right };
/// A filled triangle, four pixels deep, centred in `box`.
void drawArrow(Canvas& canvas, const Rect& box, ArrowDirection direction, Colour colour);

/// The cross of a close box.
void drawCloseCross(Canvas& canvas, const Rect& box);

/// The picture of a message box, 32 x 32 pixels; nothing for none.
void drawMessageIcon(Canvas& canvas, Point corner, MessageIcon icon);
inline constexpr int messageIconSize = 32;

} // namespace ventrel
