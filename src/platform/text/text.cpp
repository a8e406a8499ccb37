#include "platform/text/text.h"

#include <algorithm>
#include <vector>

#include "platform/text/text_layout.h"

namespace ventrel {

namespace {

constexpr char tab = '\t';
/// From the base line to the line under a mnemonic.
constexpr int underlineGap = 1;

/// Where something of that size starts between two edges.
constexpr int aligned(Align align, int low, int high, int size) {
    switch (align) {
    case Align::near: return low;
    case Align::middle: return low + (high - low - size) / 2;
    case Align::far: return high - size;
    }
    return low;
}

/// The line under the character at `index` of a line that starts at `corner`.
Rect underline(const Font& font, Point corner, std::string_view line, std::size_t index) {
    const Point start = corner + Point{font.width(line.substr(0, index)), font.ascent() + underlineGap};
    return Rect::at(start, {font.width(line.substr(index, 1)), 1});
}

struct Column {
    std::string_view text;
    int x = 0; ///< from the line's start
};

std::vector<Column> columnsOf(const Font& font, std::string_view text, int tabWidth) {
    std::vector<Column> columns;
    int x = 0;
    while (true) {
        const std::size_t end = std::min(text.find(tab), text.size());
        columns.push_back({text.substr(0, end), x});
        if (end == text.size()) {
            return columns;
        }
        x += font.width(columns.back().text);
        x = tabWidth > 0 ? (x / tabWidth + 1) * tabWidth : x;
        text.remove_prefix(end + 1);
    }
}

} // namespace

int drawText(Canvas& canvas, const Font& font, Point corner, std::string_view text, const TextStyle& style) {
    corner = limited(corner);
    const int width = font.width(text);
    if (style.ground) {
        canvas.fill(Rect::at(corner, {width, font.lineHeight()}), *style.ground);
    }
    font.draw(canvas, corner, text, style.colour);
    return corner.x + width;
}

int drawTextInside(Canvas& canvas, const Font& font, Point corner, std::string_view text,
                   const TextStyle& style, const Rect& clip) {
    if (style.ground) {
        canvas.fill(clip, *style.ground);
    }
    font.draw(canvas, corner, text, style.colour, clip);
    return limited(corner).x + font.width(text);
}

int drawTextBox(Canvas& canvas, const Font& font, const Rect& textBox, std::string_view text,
                const TextStyle& style, const TextLayout& layout) {
    const Rect box = limited(textBox);
    const Rect inside = layout.clip ? box : everywhere;
    const LaidOutText laidOut = layOutText(font, text, box.width(), layout);
    const int height = static_cast<int>(laidOut.lines.size()) * font.lineHeight();
    int y = aligned(layout.down, box.top, box.bottom, height);
    for (const TextLine& line : laidOut.lines) {
        const Point corner{aligned(layout.across, box.left, box.right, line.width), y};
        const Rect cell = Rect::at(corner, {line.width, font.lineHeight()});
        const std::string_view drawn = laidOut.line(line);
        if (style.ground) {
            canvas.fill(cell.intersectedWith(inside), *style.ground);
        }
        font.draw(canvas, corner, drawn, style.colour, inside);
        if (laidOut.underlined && line.holds(*laidOut.underlined)) {
            const Rect under = underline(font, corner, drawn, *laidOut.underlined - line.first);
            canvas.fill(under.intersectedWith(inside), style.colour);
        }
        y += font.lineHeight();
    }
    return height;
}

Size measureText(const Font& font, std::string_view text, int width, const TextLayout& layout) {
    const LaidOutText laidOut = layOutText(font, text, width, layout);
    Size size{0, static_cast<int>(laidOut.lines.size()) * font.lineHeight()};
    for (const TextLine& line : laidOut.lines) {
        size.width = std::max(size.width, line.width);
    }
    return size;
}

void drawTabbedText(Canvas& canvas, const Font& font, Point corner, std::string_view text, int tabWidth,
                    const TextStyle& style) {
    corner = limited(corner);
    const std::vector<Column> columns = columnsOf(font, text, tabWidth);
    const int width = columns.back().x + font.width(columns.back().text);
    if (style.ground) {
        canvas.fill(Rect::at(corner, {width, font.lineHeight()}), *style.ground);
    }
    for (const Column& column : columns) {
        font.draw(canvas, corner + Point{column.x, 0}, column.text, style.colour);
    }
}

} // namespace ventrel
