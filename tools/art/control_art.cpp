#include "tools/art/control_art.h"

#include <array>
#include <cmath>
#include <numbers>

#include "tools/art/console_parts.h"

namespace ventrel::art {

namespace {

// All in the panel's own pixels.
constexpr Spot dialMiddle{47, 35.3};
constexpr double dialRadius = 30;
constexpr double dialNumberRadius = 37.5;
constexpr double lowestNumberRadius = 34.6; // that of 180, above the selector
constexpr std::array<std::string_view, 8> dialNumbers{"360", "045", "090", "135", "180", "225", "270", "315"};

struct SpeedLamp {
    Box socket;
    std::string_view label;
};
constexpr std::array<SpeedLamp, 3> speedLamps{{
    {{93, 11, 10, 9}, "FAST"},
    {{93, 31, 10, 9}, "NORM"},
    {{93, 51, 10, 9}, "SLOW"},
}};

constexpr Box altitudeWell{112, 1, 40, 87};
constexpr double altitudeRow = 9;
constexpr double altitudeMiddle = 94.5; // of altitude 0, were there one
constexpr double altitudeNumberX = 158.2;

constexpr Box directButton{3, 75, 15, 15};
constexpr Box directLamp{5, 77, 10, 10};
constexpr Box targetBox{52, 76, 24, 13};
constexpr Box targetUp{79, 73, 11, 9};
constexpr Box targetDown{79, 83, 11, 9};
constexpr Box previewWell{2, 93, 165, 12};

constexpr Box at(Point corner, const Box& box) {
    return {corner.x + box.x, corner.y + box.y, box.width, box.height};
}

constexpr Spot at(Point corner, Spot spot) {
    return {corner.x + spot.x, corner.y + spot.y};
}

Spot around(Spot centre, double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {centre.x + radius * std::sin(angle), centre.y - radius * std::cos(angle)};
}

void drawDial(Svg& svg, Point corner) {
    const Spot middle = at(corner, dialMiddle);
    svg.circle(middle, dialRadius + 2.4, "fill=\"url(#rim)\"");
    svg.circle(middle, dialRadius + 0.9, "fill=\"#14181a\"");
    svg.circle(middle, dialRadius, "fill=\"url(#glass)\"");
    for (int degrees = 0; degrees < 360; degrees += 15) {
        const bool isHeading = degrees % 45 == 0;
        svg.line(around(middle, dialRadius - (isHeading ? 4.5 : 2.5), degrees),
                 around(middle, dialRadius - 0.6, degrees),
                 isHeading ? "stroke=\"#ffb066\" stroke-width=\"1.3\""
                           : "stroke=\"#c9c4b2\" stroke-width=\".8\" opacity=\".65\"");
    }
    svg.circle(middle, 2.6, "fill=\"url(#screw)\"");
    for (std::size_t i = 0; i < dialNumbers.size(); ++i) {
        const double degrees = 45.0 * static_cast<double>(i);
        const double radius = degrees == 180 ? lowestNumberRadius : dialNumberRadius;
        const Spot place = around(middle, radius, degrees);
        drawPrinted(svg, {place.x, place.y + 2.6}, dialNumbers[i], 7.6, 0.1, ivory);
    }
}

void drawSpeedLamps(Svg& svg, Point corner) {
    for (const SpeedLamp& lamp : speedLamps) {
        const Box socket = at(corner, lamp.socket);
        svg.rect(socket.grownBy(0.4), 2, "fill=\"url(#lip)\"");
        svg.rect(socket.grownBy(-0.7), 1.4, "fill=\"#0b0908\"");
        svg.ellipse({socket.x + 2, socket.y + 2, 6, 5}, "fill=\"#3a2412\"");
        drawPrinted(svg, {socket.middle().x, socket.bottom() + 7.6}, lamp.label, 7.2, 0.2, ivory);
    }
}

void drawAltitudeScale(Svg& svg, Point corner) {
    const Box well = at(corner, altitudeWell);
    drawWell(svg, well);
    for (int altitude = 1; altitude <= 10; ++altitude) {
        const double y = corner.y + altitudeMiddle - altitudeRow * altitude;
        svg.line({well.x, y}, {well.right(), y}, "stroke=\"#272d30\" stroke-width=\"3\"");
        svg.line({well.right() + 0.6, y}, {well.right() + 2.4, y}, "stroke=\"#ffb066\" stroke-width=\"1\"");
        drawPrinted(svg, {corner.x + altitudeNumberX, y + 2.7}, std::to_string(altitude), 7.6, 0, ivory);
    }
}

void drawSelector(Svg& svg, Point corner) {
    const Box button = at(corner, directButton);
    svg.rect(button.grownBy(0.8), 1.5, "fill=\"#0c0f11\"");
    svg.rect(button, 1, "fill=\"url(#key)\"");
    svg.rect(button.grownBy(-0.5), 1, "fill=\"none\" stroke=\"url(#rim)\" stroke-width=\"1\"");
    svg.ellipse(at(corner, directLamp).grownBy(0.7), "fill=\"#0b0908\"");
    svg.ellipse(at(corner, directLamp).grownBy(-0.3), "fill=\"#3a2412\"");
    drawPrinted(svg, at(corner, Spot{34.5, 85.4}), "DIRECT", 7.6, 0.5, ivory);
    drawWell(svg, at(corner, targetBox), "#000");
    drawArrowKey(svg, at(corner, targetUp), true);
    drawArrowKey(svg, at(corner, targetDown), false);
}

} // namespace

void drawControls(Svg& svg, Point corner) {
    drawDial(svg, corner);
    drawSpeedLamps(svg, corner);
    drawAltitudeScale(svg, corner);
    drawSelector(svg, corner);
    drawWell(svg, at(corner, previewWell), "#000");
}

} // namespace ventrel::art
