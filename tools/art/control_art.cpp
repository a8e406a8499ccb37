#include "tools/art/control_art.h"

#include <array>

#include "console/panel_layout.h"
#include "tools/art/console_parts.h"

namespace ventrel::art {

namespace {

// All in the panel's own pixels.
constexpr const PanelLayout& places = panelLayout;
/// Horizontal needles are three rows, of which the pivot is the middle one.
constexpr Spot dialMiddle{places.dialMiddle.x + 0.0, places.dialMiddle.y + 0.5};
/// A number of the dial and how far from its middle it stands. Lamps and selector leave little room.
struct DialNumber {
    std::string_view figures;
    double radius;
};
constexpr std::array<DialNumber, 8> dialNumbers{{
    {"360", 36},
    {"045", 39},
    {"090", 37.6},
    {"135", 39},
    {"180", 34.8},
    {"225", 39},
    {"270", 38.5},
    {"315", 39},
}};

struct SpeedLamp {
    Rect lens;
    std::string_view label;
};
constexpr std::array<SpeedLamp, 3> speedLamps{{
    {places.fast.lens, "FAST"},
    {places.normal.lens, "NORM"},
    {places.slow.lens, "SLOW"},
}};
constexpr std::string_view unlit = "#402813";

constexpr double altitudeNumbersBeside = 8; // right of the well

constexpr Box at(Point corner, const Rect& rect) {
    return Box(rect.movedBy(corner));
}

constexpr Spot at(Point corner, Spot spot) {
    return {corner.x + spot.x, corner.y + spot.y};
}

void drawDial(Svg& svg, Point corner) {
    const Spot middle = at(corner, dialMiddle);
    constexpr double dialRadius = places.dialRadius;
    svg.circle(middle, dialRadius + 1.6, "fill=\"url(#rim)\"");
    svg.circle(middle, dialRadius + 0.8, "fill=\"#14181a\"");
    svg.circle(middle, dialRadius, "fill=\"url(#glass)\"");
    for (int degrees = 0; degrees < 360; degrees += 15) {
        const bool isHeading = degrees % 45 == 0;
        svg.line(around(middle, dialRadius - (isHeading ? 5 : 3), degrees),
                 around(middle, dialRadius - 1, degrees),
                 isHeading ? "stroke=\"#ffb066\" stroke-width=\"1.6\""
                           : "stroke=\"#c9c4b2\" stroke-width=\"1\" opacity=\".5\"");
    }
    svg.circle(middle, 2.6, "fill=\"url(#screw)\"");
    for (std::size_t i = 0; i < dialNumbers.size(); ++i) {
        const int degrees = 45 * static_cast<int>(i);
        const DialNumber& printed = dialNumbers[i];
        drawSmallNumber(svg, around(middle, printed.radius, degrees), printed.figures, ivory);
    }
}

void drawSpeedLamps(Svg& svg, Point corner) {
    constexpr double labelBelow = 9;
    for (const SpeedLamp& lamp : speedLamps) {
        const Box lens = at(corner, lamp.lens);
        drawWell(svg, lens.grownBy(1), "#0b0908", 1);
        svg.rect(lens, 0, "fill=\"" + std::string(unlit) + '"');
        svg.line({lens.x, lens.y + 0.5}, {lens.right(), lens.y + 0.5}, "stroke=\"#7a5230\" opacity=\".6\"");
        drawPrinted(svg, {lens.middle().x, lens.bottom() + labelBelow}, lamp.label, fivePixelCapitals, 0.2,
                    ivory);
    }
}

void drawAltitudeScale(Svg& svg, Point corner) {
    const Box well = at(corner, places.altitudeWell);
    drawWell(svg, well);
    for (int altitude = 1; altitude <= 10; ++altitude) {
        const Box bar = at(corner, places.altitudeBar(altitude));
        const double y = bar.middle().y;
        svg.rect(bar, 0, "fill=\"#2c1e12\"");
        svg.line({bar.x, bar.y + 0.5}, {bar.right(), bar.y + 0.5}, "stroke=\"#6b4a2c\" opacity=\".5\"");
        svg.line({well.right() + 2, y}, {well.right() + 3, y}, "stroke=\"#ffb066\"");
        drawNumber(svg, {well.right() + altitudeNumbersBeside, y}, std::to_string(altitude), ivory);
    }
}

void drawSelector(Svg& svg, Point corner) {
    const Box lamp = at(corner, places.directLamp);
    drawKey(svg, at(corner, places.directButton));
    svg.ellipse(lamp.grownBy(1), "fill=\"#0b0908\"");
    svg.ellipse(lamp, "fill=\"" + std::string(unlit) + '"');
    svg.ellipse({lamp.x + 2, lamp.y + 1.5, 4.5, 3}, "fill=\"#a97748\" opacity=\".45\"");
    drawPrinted(svg, at(corner, Spot{34.5, 85}), "DIRECT", fivePixelCapitals, 0.6, ivory);
    drawWell(svg, at(corner, places.targetBox), "#000", 1.5);
    drawArrowKey(svg, at(corner, places.targetUp), true);
    drawArrowKey(svg, at(corner, places.targetDown), false);
}

} // namespace

void drawControls(Svg& svg, Point corner) {
    drawWell(svg, at(corner, places.previewWell), "#000", 1.5);
    drawDial(svg, corner);
    drawSpeedLamps(svg, corner);
    drawAltitudeScale(svg, corner);
    drawSelector(svg, corner);
    drawPrinted(svg, at(corner, Spot{84.5, 117}), "FLIGHT ORDERS", fivePixelCapitals, 1.8, ivory);
}

} // namespace ventrel::art
