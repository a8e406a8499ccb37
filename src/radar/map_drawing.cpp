#include "radar/map_drawing.h"

#include "map_geometry/map_geometry.h"
#include "platform/text/text.h"
#include "radar/runway_drawing.h"

namespace ventrel {

namespace {

constexpr Colour black = Colour::rgb(0, 0, 0);
constexpr Colour gridDots = Colour::rgb(0xD0, 0xD0, 0);

void drawMarker(Canvas& canvas, const RadarLayout& layout, const Vor& vor) {
    canvas.ellipse(markerBox(layout, vor.pixel), vor.symbolColour);
    canvas.setPixel(vor.pixel, vor.symbolColour);
}

void drawLabel(Canvas& canvas, const RadarLayout& layout, const Vor& vor, const Font& font) {
    const Size size{font.width(vor.ident), font.lineHeight()};
    drawText(canvas, font, labelCorner(layout, vor, size), vor.ident, {vor.labelColour, {}});
}

} // namespace

void DrawVor(Canvas& canvas, const RadarLayout& layout, const Vor& vor, const Font& labelFont) {
    drawMarker(canvas, layout, vor);
    drawLabel(canvas, layout, vor, labelFont);
}

void DrawAirport(Canvas& canvas, const RadarLayout& layout, const Vor& vor, const Font& labelFont) {
    drawMarker(canvas, layout, vor);
    drawApproachCone(canvas, layout, vor);
    drawRunway(canvas, layout, vor);
    drawLabel(canvas, layout, vor, labelFont);
}

void DrawGridDots(Canvas& canvas, const RadarLayout& layout) {
    for (int y = 0; y < gridSize; ++y) {
        for (int x = 0; x < gridSize; ++x) {
            canvas.setPixel(radarPoint(layout, {x, y}), gridDots);
        }
    }
}

Bitmap composeMap(const RadarLayout& layout, const MapParts& parts, const Font& labelFont) {
    const Rect square = scopeSquare(layout);
    Bitmap map(square.size());
    Canvas canvas(map);
    canvas.draw(square, parts.frame, square);
    canvas.setClip(Region::ellipse(layout.scopeEllipse));
    if (!parts.showPicture || parts.airport != nullptr) {
        canvas.fill(square, black);
    }
    if (parts.showPicture && parts.airport != nullptr) {
        canvas.draw({0, 0}, *parts.airport);
    }
    for (const Vor& vor : parts.vors) {
        if (vor.isAirport && parts.showCentrelines) {
            drawCentreline(canvas, layout, vor, labelFont);
        }
    }
    for (const Vor& vor : parts.vors) {
        if (vor.isAirport) {
            DrawAirport(canvas, layout, vor, labelFont);
        } else {
            DrawVor(canvas, layout, vor, labelFont);
        }
    }
    if (parts.showGrid) {
        DrawGridDots(canvas, layout);
    }
    return map;
}

} // namespace ventrel
