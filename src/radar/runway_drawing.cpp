#include "radar/runway_drawing.h"

#include <array>
#include <cstddef>

#include "base/format.h"
#include "map_geometry/map_geometry.h"
#include "platform/text/text.h"

namespace ventrel {

namespace {

/// The landing arrow: how far back from the airport the straight one starts, and the corner of the slanting
/// one for headings 45, 135, 225 and 315.
struct ArrowPlace {
    int straight = 0;
    std::array<Point, 4> slanting;
};

constexpr ArrowPlace smallArrow{12, {{{-9, 9}, {-8, -9}, {9, -8}, {9, 9}}}};
constexpr ArrowPlace largeArrow{15, {{{-11, 11}, {-12, -12}, {11, -11}, {12, 12}}}};

constexpr int straightArrowRows = 3;
constexpr int slantingArrowLeg = 4; // pixels, the corner included

/// One step away from the runway towards the cone: against the landing direction.
Point backwards(int heading) {
    const Cell behind = stepCell({0, 0}, turned(heading, fullCircle / 2));
    return {behind.x, behind.y};
}

void drawStraightArrow(Canvas& canvas, const Vor& airport, int distance) {
    const Point back = backwards(airport.runwayHeading);
    const Point across{back.y, back.x};
    for (int row = 0; row < straightArrowRows; ++row) {
        for (int side = -row; side <= row; ++side) {
            const Point offset{back.x * (distance + row) + across.x * side,
                               back.y * (distance + row) + across.y * side};
            canvas.setPixel(airport.pixel + offset, airport.runwayColour);
        }
    }
}

void drawSlantingArrow(Canvas& canvas, const Vor& airport, Point corner) {
    const Point back = backwards(airport.runwayHeading);
    for (int row = 0; row < slantingArrowLeg; ++row) {
        for (int column = 0; column < slantingArrowLeg - row; ++column) {
            const Point offset{corner.x + back.x * column, corner.y + back.y * row};
            canvas.setPixel(airport.pixel + offset, airport.runwayColour);
        }
    }
}

void drawLandingArrow(Canvas& canvas, const RadarLayout& layout, const Vor& airport, std::size_t heading) {
    const bool isLarge = layout.windowWidth == largeRadarLayout.windowWidth;
    const ArrowPlace& place = isLarge ? largeArrow : smallArrow;
    const bool isSlanting = heading % 2 != 0;
    if (isSlanting) {
        drawSlantingArrow(canvas, airport, place.slanting[heading / 2]);
    } else {
        drawStraightArrow(canvas, airport, place.straight);
    }
}

} // namespace

Colour approachConeColour(Colour runwayColour) {
    const auto twoThirds = [](unsigned channel) { return channel / 3 * 2; };
    return Colour::rgb(twoThirds(runwayColour.red()), twoThirds(runwayColour.green()),
                       twoThirds(runwayColour.blue()));
}

void drawApproachCone(Canvas& canvas, const RadarLayout& layout, const Vor& airport) {
    const auto cone = approachCone(layout, airport.pixel, airport.runwayHeading);
    if (!cone) {
        return;
    }
    for (const MapLine& line : *cone) {
        canvas.line(line.from, line.to, approachConeColour(airport.runwayColour));
    }
}

void drawCentreline(Canvas& canvas, const RadarLayout& layout, const Vor& airport, const Font& font) {
    constexpr int north = 36;
    constexpr int degrees = 10; // of one number
    const int number = airport.runwayHeading == 0 ? north : airport.runwayHeading / degrees;
    const std::string text = FormatText("%02d", {long{number}});
    const auto line =
        centreline(layout, airport.pixel, airport.runwayHeading, {font.width(text), font.lineHeight()});
    if (!line) {
        return;
    }
    for (const MapLine& dash : line->dashes) {
        canvas.line(dash.from, dash.to, approachConeColour(airport.runwayColour));
    }
    drawText(canvas, font, line->number.topLeft(), text, {airport.runwayColour, {}});
}

void drawRunway(Canvas& canvas, const RadarLayout& layout, const Vor& airport) {
    const auto lines = runwayLines(layout, airport.pixel, airport.runwayHeading);
    const auto heading = headingNumber(airport.runwayHeading);
    if (!lines || !heading) {
        return;
    }
    for (const MapLine& line : *lines) {
        canvas.line(line.from, line.to, airport.runwayColour);
    }
    drawLandingArrow(canvas, layout, airport, *heading);
}

} // namespace ventrel
