#include "tools/apt/airspace_drawing.h"

#include <string>

#include "platform/images/image.h"
#include "platform/text/text.h"
#include "radar/map_drawing.h"

namespace ventrel::apt {

namespace {

constexpr int numberedStep = 5; // cells from one number to the next
constexpr int firstNumbers = 1; // row and column in which numbers stand, near the edge
constexpr int lastNumbers = gridSize - 2;

constexpr Colour cellColour = Colour::rgb(0x10, 0x18, 0x14);
constexpr Colour lostColour = Colour::rgb(0x30, 0x10, 0x10);
constexpr Colour lineColour = Colour::rgb(0x30, 0x48, 0x3C);
constexpr Colour numberedLineColour = Colour::rgb(0x58, 0x88, 0x70);
constexpr Colour edgeColour = Colour::rgb(0xE0, 0xA8, 0x48);
constexpr Colour numberColour = Colour::rgb(0xF0, 0xF0, 0xF0);

const Font& labelFont(const RadarLayout& layout, FontSet& fonts) {
    return fonts.font({Face::smallFonts, -layout.labelHeight, false});
}

void drawCells(Canvas& canvas, const RadarLayout& layout) {
    const Size cellSize{layout.cellSize, layout.cellSize};
    for (int y = 0; y < gridSize; ++y) {
        for (int x = 0; x < gridSize; ++x) {
            const Rect cell = Rect::at(radarPoint(layout, {x, y}), cellSize);
            canvas.fill(cell, isOutsideScope({x, y}) ? lostColour : cellColour);
        }
    }
}

/// A cell's lines are its left and its upper edge, on whose corner a point stands.
void drawLines(Canvas& canvas, const RadarLayout& layout, bool numbered) {
    for (int i = 0; i < gridSize; ++i) {
        const bool isNumbered = i % numberedStep == 0;
        if (isNumbered == numbered) {
            const int at = i * layout.cellSize;
            const Colour colour = numbered ? numberedLineColour : lineColour;
            canvas.line({at, 0}, {at, layout.scopeSize}, colour);
            canvas.line({0, at}, {layout.scopeSize, at}, colour);
        }
    }
}

void drawNumbers(Canvas& canvas, const RadarLayout& layout, const Font& font) {
    const auto draw = [&](Cell cell, int number) {
        const Point corner = radarPoint(layout, cell) + Point{2, 1};
        drawText(canvas, font, corner, std::to_string(number), {numberColour, cellColour});
    };
    for (int i = 0; i < gridSize; i += numberedStep) {
        for (const int line : {firstNumbers, gridMiddle, lastNumbers}) {
            draw({i, line}, i);
            draw({line, i}, i);
        }
    }
}

} // namespace

Bitmap mapPicture(const AirportFile& airport, std::span<const std::byte> jpeg, GridDots dots,
                  FontSet& fonts) {
    const RadarLayout& layout = radarLayoutFor(airport.header.layoutWidth);
    const Bitmap frame(scopeSquare(layout).size());
    Image image;
    Bitmap picture;
    const bool hasPicture = ImageLoadMemory(image, jpeg, ImageFormat::jpeg) == ImageError::none &&
                            ImageToBitmap(image, picture) == ImageError::none;
    return composeMap(layout,
                      {.frame = frame,
                       .airport = hasPicture ? &picture : nullptr,
                       .vors = airport.vors,
                       .showPicture = true,
                       .showGrid = dots == GridDots::shown},
                      labelFont(layout, fonts));
}

Bitmap blankGrid(int layoutWidth, FontSet& fonts) {
    const RadarLayout& layout = radarLayoutFor(layoutWidth);
    Bitmap grid(scopeSquare(layout).size());
    Canvas canvas(grid);
    drawCells(canvas, layout);
    drawLines(canvas, layout, false);
    drawLines(canvas, layout, true);
    canvas.ellipse(layout.scopeEllipse, edgeColour);
    drawNumbers(canvas, layout, labelFont(layout, fonts));
    return grid;
}

} // namespace ventrel::apt
