#include "platform/widgets/look.h"

#include <array>

namespace ventrel {

namespace {

using namespace look;

/// One pixel around `rect`: `topLeft` along its top and left, `bottomRight` along the others.
void drawEdge(Canvas& canvas, const Rect& rect, Colour topLeft, Colour bottomRight) {
    const int right = rect.right - 1;
    const int bottom = rect.bottom - 1;
    canvas.line({rect.left, rect.top}, {right, rect.top}, topLeft);
    canvas.line({rect.left, rect.top}, {rect.left, bottom}, topLeft);
    canvas.line({rect.left, bottom}, {rect.right, bottom}, bottomRight);
    canvas.line({right, rect.top}, {right, rect.bottom}, bottomRight);
}

/// A picture of signs: each stands for a colour, a blank for none.
struct Sign {
    char sign;
    Colour colour;
};

template <std::size_t rowCount>
void drawSigns(Canvas& canvas, Point corner, const std::array<std::string_view, rowCount>& rows,
               std::initializer_list<Sign> colours) {
    for (std::size_t y = 0; y < rowCount; ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x) {
            for (const Sign& sign : colours) {
                if (rows[y][x] == sign.sign) {
                    canvas.setPixel(corner + Point{static_cast<int>(x), static_cast<int>(y)}, sign.colour);
                }
            }
        }
    }
}

constexpr std::array<std::string_view, 12> radioRing{{
    "    ssss    ",
    "  ssddddss  ",
    " sddffffddl ",
    " sdffffffgl ",
    "sdffffffffgl",
    "sdffffffffgl",
    "sdffffffffgl",
    "sdffffffffgl",
    " sdffffffgl ",
    " sggffffggl ",
    "  llggggll  ",
    "    llll    ",
}};

constexpr std::array<std::string_view, 4> radioDot{{" oo ", "oooo", "oooo", " oo "}};

constexpr std::array<std::string_view, 7> checkMark{
    {"      o", "     oo", "o   ooo", "oo ooo ", "ooooo  ", " ooo   ", "  o    "}};

constexpr std::array<std::string_view, 7> closeCross{
    {"oo    oo", " oo  oo ", "  oooo  ", "   oo   ", "  oooo  ", " oo  oo ", "oo    oo"}};

constexpr std::array<std::string_view, 16> questionMark{
    {"  ooooo  ", " ooooooo ", "ooo   ooo", "oo     oo", "       oo", "      ooo", "     ooo ", "    ooo  ",
     "   ooo   ", "   ooo   ", "   ooo   ", "         ", "         ", "   ooo   ", "   ooo   ", "   ooo   "}};

constexpr Colour iconRed = Colour::rgb(0xE0, 0, 0);
constexpr Colour iconDarkRed = Colour::rgb(0x80, 0, 0);
constexpr Colour iconYellow = Colour::rgb(0xFF, 0xE0, 0);
constexpr Colour iconBlue = Colour::rgb(0, 0, 0xD0);
constexpr Colour white = Colour::rgb(0xFF, 0xFF, 0xFF);
constexpr Colour black = Colour::rgb(0, 0, 0);

void drawStop(Canvas& canvas, Point corner) {
    canvas.filledEllipse(Rect::at(corner + Point{1, 1}, {31, 31}), shadow, shadow);
    canvas.filledEllipse(Rect::at(corner, {31, 31}), iconDarkRed, iconRed);
    for (int thickness = -1; thickness <= 1; ++thickness) {
        canvas.line(corner + Point{9 + thickness, 9}, corner + Point{22 + thickness, 22}, white);
        canvas.line(corner + Point{21 + thickness, 9}, corner + Point{8 + thickness, 22}, white);
    }
}

void drawWarning(Canvas& canvas, Point corner) {
    const auto triangle = [&](Point by) {
        const Point at = corner + by;
        const std::array<Point, 3> corners{{at + Point{15, 0}, at + Point{31, 29}, at + Point{0, 29}}};
        return Region::polygon(corners);
    };
    canvas.fill(triangle({1, 2}), shadow);
    canvas.fill(triangle({0, 0}), black);
    const std::array<Point, 3> inner{{corner + Point{15, 4}, corner + Point{28, 27}, corner + Point{3, 27}}};
    canvas.fill(Region::polygon(inner), iconYellow);
    canvas.fill(Rect::at(corner + Point{14, 10}, {3, 9}), black);
    canvas.fill(Rect::at(corner + Point{14, 21}, {3, 3}), black);
}

/// The balloon of a question or of a note, with its tail.
void drawBalloon(Canvas& canvas, Point corner) {
    const auto tail = [&](Point left, Point right, Point tip) {
        const std::array<Point, 3> corners{{corner + left, corner + right, corner + tip}};
        return Region::polygon(corners);
    };
    canvas.filledEllipse(Rect::at(corner + Point{1, 1}, {31, 27}), shadow, shadow);
    canvas.fill(tail({12, 22}, {22, 22}, {20, 32}), black);
    canvas.filledEllipse(Rect::at(corner, {31, 27}), black, white);
    canvas.fill(tail({14, 22}, {20, 22}, {19, 29}), white);
}

void drawInformation(Canvas& canvas, Point corner) {
    drawBalloon(canvas, corner);
    canvas.filledEllipse(Rect::at(corner + Point{13, 4}, {5, 5}), iconBlue, iconBlue);
    canvas.fill(Rect::at(corner + Point{12, 11}, {5, 2}), iconBlue);
    canvas.fill(Rect::at(corner + Point{14, 11}, {3, 10}), iconBlue);
    canvas.fill(Rect::at(corner + Point{12, 20}, {7, 2}), iconBlue);
}

void drawQuestion(Canvas& canvas, Point corner) {
    drawBalloon(canvas, corner);
    drawSigns(canvas, corner + Point{11, 5}, questionMark, {{'o', iconBlue}});
}

} // namespace

WidgetFonts widgetFontsOf(FontSet& fonts) {
    return {fonts.font({Face::msSansSerif, -11, false}), fonts.font({Face::msSansSerif, -11, true})};
}

void drawButtonEdge(Canvas& canvas, const Rect& rect, bool pressed) {
    if (pressed) {
        drawEdge(canvas, rect, shadow, shadow);
        return;
    }
    drawEdge(canvas, rect, light, darkShadow);
    drawEdge(canvas, rect.grownBy(-1), softLight, shadow);
}

void drawRaisedEdge(Canvas& canvas, const Rect& rect) {
    drawEdge(canvas, rect, softLight, darkShadow);
    drawEdge(canvas, rect.grownBy(-1), light, shadow);
}

void drawSunkenEdge(Canvas& canvas, const Rect& rect) {
    drawEdge(canvas, rect, shadow, light);
    drawEdge(canvas, rect.grownBy(-1), darkShadow, softLight);
}

void drawThinSunkenEdge(Canvas& canvas, const Rect& rect) {
    drawEdge(canvas, rect, shadow, light);
}

void drawGroupFrame(Canvas& canvas, const Rect& rect) {
    drawEdge(canvas, {rect.left + 1, rect.top + 1, rect.right, rect.bottom}, light, light);
    drawEdge(canvas, {rect.left, rect.top, rect.right - 1, rect.bottom - 1}, shadow, shadow);
}

void drawFocusFrame(Canvas& canvas, const Rect& rect) {
    const auto dot = [&](int x, int y) {
        if ((x + y) % 2 == 0) {
            canvas.setPixel({x, y}, text);
        }
    };
    for (int x = rect.left; x < rect.right; ++x) {
        dot(x, rect.top);
        dot(x, rect.bottom - 1);
    }
    for (int y = rect.top + 1; y < rect.bottom - 1; ++y) {
        dot(rect.left, y);
        dot(rect.right - 1, y);
    }
}

void drawSeparator(Canvas& canvas, int left, int right, int y) {
    canvas.line({left, y}, {right, y}, shadow);
    canvas.line({left, y + 1}, {right, y + 1}, light);
}

void drawLabel(Canvas& canvas, const Font& font, const Rect& box, std::string_view words, bool enabled,
               const TextLayout& layout) {
    if (!enabled) {
        drawTextBox(canvas, font, box.movedBy({1, 1}), words, {light, {}}, layout);
    }
    drawTextBox(canvas, font, box, words, {enabled ? text : greyText, {}}, layout);
}

void drawCheckMark(Canvas& canvas, Point corner, Colour colour) {
    drawSigns(canvas, corner, checkMark, {{'o', colour}});
}

void drawCheckBox(Canvas& canvas, Point corner, bool checked, ToggleLook toggle) {
    const Rect box = Rect::at(corner, {toggleMarkSize, toggleMarkSize});
    canvas.fill(box, toggle == ToggleLook::ready ? field : face);
    drawSunkenEdge(canvas, box);
    if (checked) {
        drawCheckMark(canvas, corner + Point{3, 3}, toggle == ToggleLook::greyed ? greyText : text);
    }
}

void drawRadioRing(Canvas& canvas, Point corner, bool checked, ToggleLook toggle) {
    const Colour inside = toggle == ToggleLook::ready ? field : face;
    drawSigns(canvas, corner, radioRing,
              {{'s', shadow}, {'d', darkShadow}, {'f', inside}, {'g', softLight}, {'l', light}});
    if (checked) {
        drawSigns(canvas, corner + Point{4, 4}, radioDot,
                  {{'o', toggle == ToggleLook::greyed ? greyText : text}});
    }
}

void drawArrow(Canvas& canvas, const Rect& box, ArrowDirection direction, Colour colour) {
    constexpr int depth = 4;
    const Point middle{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
    for (int i = 0; i < depth; ++i) {
        switch (direction) {
        case ArrowDirection::up:
            canvas.line({middle.x - i, middle.y - 2 + i}, {middle.x + i + 1, middle.y - 2 + i}, colour);
            break;
        case ArrowDirection::down:
            canvas.line({middle.x - i, middle.y + 1 - i}, {middle.x + i + 1, middle.y + 1 - i}, colour);
            break;
        case ArrowDirection::right:
            canvas.line({middle.x + 1 - i, middle.y - i}, {middle.x + 1 - i, middle.y + i + 1}, colour);
            break;
        }
    }
}

void drawCloseCross(Canvas& canvas, const Rect& box) {
    const Point corner{(box.left + box.right) / 2 - 4, (box.top + box.bottom) / 2 - 4};
    drawSigns(canvas, corner, closeCross, {{'o', text}});
}

void drawMessageIcon(Canvas& canvas, Point corner, MessageIcon icon) {
    switch (icon) {
    case MessageIcon::stop: drawStop(canvas, corner); break;
    case MessageIcon::exclamation: drawWarning(canvas, corner); break;
    case MessageIcon::information: drawInformation(canvas, corner); break;
    case MessageIcon::question: drawQuestion(canvas, corner); break;
    case MessageIcon::none: break;
    }
}

} // namespace ventrel
