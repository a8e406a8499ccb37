#include "platform/text/font.h"

#include <algorithm>
#include <cassert>

namespace ventrel {

namespace {

constexpr std::size_t area(Size size) {
    return static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height);
}

/// Where the row `y` of a picture of `bounds` has its pixel `x`.
constexpr std::size_t indexOf(const Rect& bounds, int x, int y) {
    return area({bounds.width(), y - bounds.top}) + static_cast<std::size_t>(x - bounds.left);
}

} // namespace

Font::Font(const FontMeasures& measures, const std::array<Glyph, glyphCount>& glyphs,
           std::vector<std::uint8_t> coverage)
    : measures_(measures), glyphs_(glyphs), coverage_(std::move(coverage)) {
    assert(std::ranges::all_of(glyphs_, [&](const Glyph& glyph) {
        return glyph.coverage + area(glyph.ink.size()) <= coverage_.size();
    }));
}

int Font::width(std::string_view text) const {
    int width = 0;
    for (const char c : text) {
        width += glyph(c).advance;
    }
    return width;
}

/// What the text draws, from its line's top-left corner.
Rect Font::ink(std::string_view text) const {
    Rect ink;
    int pen = 0;
    for (const char c : text) {
        ink = ink.unitedWith(glyph(c).ink.movedBy({pen, 0}));
        pen += glyph(c).advance;
    }
    return ink;
}

void Font::draw(Canvas& canvas, Point corner, std::string_view text, Colour colour,
                const Rect& inside) const {
    corner = limited(corner);
    const Rect visible = ink(text).intersectedWith(limitedMove(limited(inside), {-corner.x, -corner.y}));
    if (visible.isEmpty()) {
        return;
    }
    // The whole line becomes one mask, so that the canvas clips and notes its damage once.
    std::vector<std::uint8_t> line(area(visible.size()));
    int pen = 0;
    for (const char c : text) {
        const Glyph& drawn = glyph(c);
        const Rect ink = drawn.ink.movedBy({pen, 0});
        const Rect part = ink.intersectedWith(visible);
        for (int y = part.top; y < part.bottom; ++y) {
            const std::uint8_t* from = coverage_.data() + drawn.coverage + indexOf(ink, part.left, y);
            std::uint8_t* to = line.data() + indexOf(visible, part.left, y);
            // Neighbours may touch each other's cell: the stronger one counts.
            std::transform(from, from + part.width(), to, to,
                           [](std::uint8_t a, std::uint8_t b) { return std::max(a, b); });
        }
        pen += drawn.advance;
    }
    canvas.drawMask(limitedMove(corner, visible.topLeft()), {visible.size(), line}, colour);
}

} // namespace ventrel
