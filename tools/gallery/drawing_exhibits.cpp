#include <array>

#include "platform/text/text.h"
#include "tools/gallery/exhibits.h"

namespace ventrel {

namespace {

constexpr Colour red = Colour::rgb(0xE0, 0x30, 0x30);
constexpr Colour blue = Colour::rgb(0x40, 0x70, 0xE0);
constexpr Colour grey = Colour::rgb(0x90, 0xA0, 0x98);
constexpr Colour key = Colour::rgb(255, 0, 255); // the transparent colour

/// What the drawing of every cell is made for; cells may be larger.
constexpr Size drawn{64, 48};

/// A small aeroplane in front of a sun, with the transparent colour around it.
Bitmap samplePicture() {
    Bitmap picture({32, 24});
    Canvas canvas(picture);
    canvas.fill(picture.bounds(), key);
    canvas.filledEllipse({9, 2, 29, 22}, amber, Colour::rgb(0xB0, 0x50, 0x20));
    const std::array<Point, 7> plane{{{1, 11}, {14, 9}, {18, 1}, {21, 1}, {19, 9}, {30, 11}, {19, 14}}};
    canvas.fill(Region::polygon(plane), white);
    return picture;
}

void drawLines(Canvas& canvas) {
    for (int i = 0; i <= 8; ++i) {
        canvas.line({0, 0}, {i * 8, 47}, green);
        canvas.line({63, 0}, {i * 8, 47}, i % 2 == 0 ? amber : grey);
    }
}

void drawPolyline(Canvas& canvas) {
    const std::array<Point, 8> symbol{
        {{2, 40}, {14, 8}, {22, 30}, {30, 4}, {38, 30}, {46, 8}, {58, 40}, {2, 40}}};
    canvas.polyline(symbol, green);
    for (int x = 0; x < drawn.width; x += 4) {
        canvas.setPixel({x, 45}, white);
    }
}

void drawFrames(Canvas& canvas) {
    canvas.fill(Rect{2, 4, 30, 44}, blue);
    canvas.frame({2, 4, 30, 44}, white);
    for (int inset = 0; inset < 14; inset += 3) {
        canvas.frame(Rect{34, 4, 64, 44}.grownBy(-inset), amber);
    }
}

void drawHollowEllipses(Canvas& canvas) {
    canvas.ellipse({0, 2, 12, 14}, green);
    canvas.ellipse({0, 18, 15, 33}, green);
    canvas.ellipse({0, 37, 9, 46}, green);
    canvas.ellipse({19, 4, 61, 44}, red, 2);
    canvas.ellipse({26, 14, 54, 34}, amber, 1);
}

void drawFilledEllipses(Canvas& canvas) {
    canvas.filledEllipse({0, 3, 36, 27}, green, red);
    canvas.filledEllipse({40, 3, 63, 45}, white, blue);
    canvas.filledEllipse({6, 31, 30, 45}, amber, amber);
}

void drawPolygons(Canvas& canvas) {
    const std::array<Point, 5> star{{{32, 0}, {48, 46}, {6, 17}, {58, 17}, {16, 46}}};
    canvas.fill(Region::polygon(star), amber);
}

void drawClipped(Canvas& canvas) {
    canvas.setClip(Region::ellipse({6, 0, 58, 48}));
    for (int y = 0; y < drawn.height; y += 4) {
        canvas.fill(Rect{0, y, drawn.width, y + 2}, green);
    }
    canvas.fill(Rect{20, 12, 44, 36}, blue);
    canvas.clearClip();
}

void drawInverted(Canvas& canvas) {
    canvas.fill(Rect{4, 8, 60, 24}, red);
    canvas.fill(Rect{4, 24, 60, 40}, white);
    canvas.invert(Region::ellipse({14, 2, 50, 46}));
    canvas.invert(Region::ellipse({26, 14, 38, 34}));
}

void drawCopied(Canvas& canvas) {
    const Bitmap picture = samplePicture();
    canvas.draw({0, 0}, picture);
    canvas.draw(Rect{34, 0, 63, 48}, picture, {8, 0, 28, 24});
    canvas.draw(Rect{4, 28, 20, 40}, picture, picture.bounds());
}

void drawRasterOps(Canvas& canvas) {
    constexpr std::array ops{RasterOp::copy, RasterOp::notCopy, RasterOp::sourceAnd, RasterOp::sourceOr};
    const Bitmap picture = samplePicture();
    for (std::size_t i = 0; i < ops.size(); ++i) {
        const Rect place = Rect::at({static_cast<int>(i % 2) * 32, static_cast<int>(i / 2) * 24}, {31, 23});
        canvas.fill(place, blue);
        canvas.draw(place.grownBy(-2), picture, {2, 2, 29, 21}, ops[i]);
    }
}

void drawTransparently(Canvas& canvas) {
    for (int x = 0; x < drawn.width; x += 8) {
        canvas.fill(Rect{x, 0, x + 4, 48}, blue);
    }
    const Bitmap picture = samplePicture();
    canvas.drawTransparent({4, 2}, picture, key);
    canvas.drawTransparent({26, 22}, picture, key);
}

void drawScrolled(Canvas& canvas) {
    for (int i = 0; i < 6; ++i) {
        canvas.fill(Rect::at({i * 11, 4 + i * 7}, {9, 5}), i % 2 == 0 ? green : amber);
    }
    canvas.scroll({0, 0, 64, 48}, {16, -6});
}

struct DrawingCell {
    std::string_view name;
    void (*draw)(Canvas& canvas);
};

constexpr std::array cells{std::to_array<DrawingCell>({
    {"lines", drawLines},
    {"polyline", drawPolyline},
    {"frames", drawFrames},
    {"ellipses", drawHollowEllipses},
    {"filled", drawFilledEllipses},
    {"polygon", drawPolygons},
    {"clip", drawClipped},
    {"invert", drawInverted},
    {"copy, stretch", drawCopied},
    {"raster ops", drawRasterOps},
    {"transparent", drawTransparently},
    {"scroll", drawScrolled},
})};

/// On a picture of its own, since drawings move and clip what is there.
void paintCell(Canvas& canvas, Point corner, const DrawingCell& cell) {
    Bitmap picture(drawn);
    Canvas own(picture);
    own.fill(picture.bounds(), darkGround);
    cell.draw(own);
    canvas.draw(corner, picture);
}

} // namespace

void paintDrawing(Canvas& canvas, const Rect& panel, int columns, const Font& captions) {
    const int rows = (static_cast<int>(cells.size()) + columns - 1) / columns;
    const Size pitch{panel.width() / columns, panel.height() / rows};
    constexpr int captionGap = 4;
    const int height = drawn.height + captionGap + captions.lineHeight();
    for (int i = 0; i < static_cast<int>(cells.size()); ++i) {
        const DrawingCell& cell = cells[static_cast<std::size_t>(i)];
        const Point corner{panel.left + i % columns * pitch.width, panel.top + i / columns * pitch.height};
        const Point at = corner + Point{(pitch.width - drawn.width) / 2, (pitch.height - height) / 2};
        paintCell(canvas, at, cell);
        const Rect words =
            Rect::at({corner.x, at.y + drawn.height + captionGap}, {pitch.width, captions.lineHeight()});
        drawTextBox(canvas, captions, words, cell.name, {grey, {}},
                    {.across = Align::middle, .singleLine = true});
    }
}

} // namespace ventrel
