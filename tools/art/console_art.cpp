#include "tools/art/console_art.h"

#include <cmath>
#include <numbers>

#include "base/format.h"
#include "tools/art/console_parts.h"
#include "tools/art/control_art.h"

namespace ventrel::art {

namespace {

constexpr double topBarBottom = 49;
constexpr double labelMargin = 7; // a number nearer to an edge is left out

void drawSheet(Svg& svg, const ConsoleLayout& layout) {
    const Box whole(0, 0, layout.size.width, layout.size.height);
    svg.rect(whole, 0, "fill=\"url(#base)\"");
    svg.rect(whole, 0, "filter=\"url(#brush)\"");
    svg.rect(whole, 0, "filter=\"url(#brushDark)\"");
    const std::string right = number(whole.width - 1.5);
    const std::string bottom = number(whole.height - 1.5);
    svg.path("M1.5," + bottom + " V1.5 H" + right,
             "fill=\"none\" stroke=\"#c9d3d6\" stroke-width=\"3\" opacity=\".55\"");
    svg.path("M1.5," + bottom + " H" + right + " V1.5",
             "fill=\"none\" stroke=\"#0a0d0e\" stroke-width=\"3\" opacity=\".7\"");
}

/// Light falls from the top left over the metal, under glass and wells.
void drawLight(Svg& svg, const ConsoleLayout& layout) {
    svg.define("<radialGradient id=\"light\" gradientUnits=\"userSpaceOnUse\" cx=\"" +
               number(layout.size.width * 0.235) + "\" cy=\"-60\" r=\"" + number(layout.size.width * 1.12) +
               "\"><stop offset=\"0\" stop-color=\"#fff6e2\" stop-opacity=\".20\"/><stop offset=\".45\" "
               "stop-color=\"#fff6e2\" stop-opacity=\".03\"/><stop offset=\"1\" stop-color=\"#000\" "
               "stop-opacity=\".30\"/></radialGradient>\n");
    svg.rect({0, 0, double(layout.size.width), double(layout.size.height)}, 0, "fill=\"url(#light)\"");
}

void drawSystemSquare(Svg& svg, const ConsoleLayout& layout) {
    svg.rect({0, 0, double(layout.size.width), double(dragStripHeight)}, 0, "fill=\"#22292d\"");
    for (double y = 1.5; y < dragStripHeight; y += 2) {
        svg.line({12, y}, {layout.size.width - 6.0, y},
                 "stroke=\"#8d999e\" stroke-width=\".8\" opacity=\".6\"");
    }
    const Box square(systemSquare);
    svg.rect(square, 0, "fill=\"#c8d0d2\"");
    svg.rect(square.grownBy(-0.5), 0, "fill=\"none\" stroke=\"#0c0f11\" stroke-width=\"1\"");
    svg.line({square.x + 1.5, square.middle().y}, {square.right() - 1.5, square.middle().y},
             "stroke=\"#14181a\" stroke-width=\"1\"");
}

void drawTopBar(Svg& svg, const ConsoleLayout& layout) {
    drawWell(svg, Box(menuButtons).grownBy(1.5), "#1b2124");
    drawEngraved(svg, {119, 15.6}, "COMMAND", 7.5, 2.2);
    drawRoundWell(svg, Box(smallScopeFace));
    drawWell(svg, Box(clockWindow));
    drawEngraved(svg, {286.5, 16.2}, "UTC", 7.5, 1.5);
    svg.rect({317, 14, 90, 32}, 16, "fill=\"url(#lip)\"");
    svg.rect({318.2, 15.2, 87.6, 29.6}, 14.8, "fill=\"#171c1f\"");
    for (const Point corner : lampCorners) {
        svg.ellipse({corner.x + 0.2, corner.y + 0.2, lampSize - 0.4, lampSize - 0.4}, "fill=\"url(#rim)\"");
        svg.ellipse({corner.x + 2.0, corner.y + 2.0, lampSize - 4.0, lampSize - 4.0}, "fill=\"#0d1012\"");
    }
    drawWell(svg, Box(layout.messageStrip), "#000");
    drawEngraved(svg, {Box(layout.messageStrip).middle().x, 15.2}, "MESSAGES", 7.5, 2.2);
    svg.use("screwHead", {19, 29}, 20);
    svg.use("screwHead", {425, 29}, 60);
}

Spot onRim(const Box& scope, double outward, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    const Spot middle = scope.middle();
    return {middle.x + (scope.width / 2 + outward) * std::sin(angle),
            middle.y - (scope.height / 2 + outward) * std::cos(angle)};
}

void drawBearingMarks(Svg& svg, const Box& scope) {
    for (int degrees = 0; degrees < 360; degrees += 2) {
        const bool isTen = degrees % 10 == 0;
        const bool isThirty = degrees % 30 == 0;
        svg.line(onRim(scope, 3.6, degrees), onRim(scope, isTen ? 8.2 : 6.2, degrees),
                 isThirty ? "stroke=\"#ffb066\" stroke-width=\"1.5\""
                 : isTen  ? "stroke=\"#e6e1ce\" stroke-width=\"1.1\""
                          : "stroke=\"#d9d5c4\" stroke-width=\".8\" opacity=\".7\"");
    }
}

void drawBearingNumbers(Svg& svg, const ConsoleLayout& layout, const Box& scope) {
    constexpr double distance = 20;
    for (int degrees = layout.labelStep; degrees < 360; degrees += layout.labelStep) {
        const Spot place = onRim(scope, distance, degrees);
        const bool isInside = place.y > topBarBottom + labelMargin + 8 &&
                              place.y < layout.size.height - labelMargin && place.x > labelMargin + 2;
        if (!isInside) {
            continue;
        }
        const std::string words = FormatText("%03d", {long{degrees}});
        const bool isThirty = degrees % 30 == 0;
        drawPrinted(svg, {place.x, place.y + 3}, words, isThirty ? 9 : 8, 0.2, isThirty ? amber : "#d5d1c0");
    }
}

void drawScope(Svg& svg, const ConsoleLayout& layout) {
    const Box scope(layout.scope);
    const Box shadow(scope.x + 3, scope.y + 4, scope.width, scope.height);
    svg.ellipse(shadow.grownBy(13),
                "fill=\"none\" stroke=\"#000\" stroke-width=\"8\" opacity=\".55\" filter=\"url(#soft)\"");
    svg.ellipse(scope.grownBy(10.5), "fill=\"url(#ringOut)\"");
    svg.ellipse(scope.grownBy(8.6), "fill=\"url(#ringFace)\"");
    svg.ellipse(scope.grownBy(2.6), "fill=\"url(#ringIn)\"");
    svg.ellipse(scope, "fill=\"url(#glass)\"");
    drawBearingMarks(svg, scope);
    drawBearingNumbers(svg, layout, scope);
}

void drawStrips(Svg& svg, const ConsoleLayout& layout) {
    const double left = layout.size.width - stripButtonFromRight;
    drawWell(svg, Box(layout.stripPanel));
    drawEngraved(svg, {Box(layout.stripPanel).middle().x, 65.2}, "FLIGHT PROGRESS", 8, 1.6);
    drawEngraved(svg, {left + stripButton.width / 2.0, 65.6}, "SEL", 7.5, 1);
    for (int i = 0; i < layout.strips; ++i) {
        const Box button(left, stripButtonTop + stripPitch * i, stripButton.width, stripButton.height);
        drawWell(svg, button, "#1b2124");
        const double y = button.middle().y;
        svg.line({button.right() + 3.4, y}, {Box(layout.stripPanel).x - 3.2, y},
                 "stroke=\"#ffb066\" stroke-width=\"1.1\" opacity=\".75\"");
        drawPrinted(svg, {left - 7.4, y + 2.7}, std::to_string(i + 1), 7.4, 0, ivory);
    }
    const Box up(layout.size.width - scrollFromRight, scrollUpTop, scrollArrow.width, scrollArrow.height);
    drawArrowKey(svg, up, true);
    drawArrowKey(svg, Box(layout.scrollDown), false);
}

void drawControlModule(Svg& svg, const ConsoleLayout& layout) {
    drawControls(svg, layout.controlPanel);
    drawWell(svg, Box(layout.execButton).grownBy(1), "#1b2124");
    const Box module(layout.controlModule);
    svg.use("smallScrew", {module.right() - 7.5, module.y + 8}, 30);
    svg.use("smallScrew", {module.right() - 7.5, module.bottom() - 8}, -20);
}

} // namespace

std::string drawConsole(const ConsoleLayout& layout, std::string_view materials) {
    Svg svg(layout.size);
    svg.define(materials);
    drawSheet(svg, layout);
    drawSystemSquare(svg, layout);
    drawModule(svg, {8, 7, layout.size.width - 16.0, 42}, "url(#bar)");
    drawModule(svg, Box(layout.stripModule), "url(#module)");
    drawModule(svg, Box(layout.controlModule), "url(#module)");
    drawLight(svg, layout);
    for (const Vent& vent : layout.vents) {
        drawVent(svg, vent);
    }
    for (const Box& handle : layout.handles) {
        drawHandle(svg, handle);
    }
    for (const Turned& screw : layout.screws) {
        svg.use("screwHead", screw.at, screw.degrees);
    }
    drawScope(svg, layout);
    for (const Knob& knob : layout.knobs) {
        drawKnob(svg, knob);
    }
    for (const Plate& plate : layout.plates) {
        drawPlate(svg, plate);
    }
    drawTopBar(svg, layout);
    drawStrips(svg, layout);
    drawControlModule(svg, layout);
    return svg.text();
}

} // namespace ventrel::art
