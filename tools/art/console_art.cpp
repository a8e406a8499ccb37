#include "tools/art/console_art.h"

#include <string>

#include "tools/art/console_parts.h"
#include "tools/art/control_art.h"
#include "tools/art/scope_art.h"

namespace ventrel::art {

namespace {

constexpr double topBarBottom = 49;
constexpr double topBarLabels = 14; // what the labels over its wells stand on
/// A number of a bearing that would come nearer to the top bar or an edge is left out.
constexpr double underTopBar = 14;
constexpr double numberMargin = 9;

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
    for (const Rect& button : menuButtons) {
        drawWell(svg, Box(button), "#14191b");
    }
    drawEngraved(svg, {Box(menuButtons[1]).middle().x, topBarLabels}, "COMMAND", 2.2);
    drawRoundWell(svg, Box(smallScopeFace));
    drawWell(svg, Box(clockWindow), "#000");
    drawEngraved(svg, {Box(clockWindow).middle().x, topBarLabels}, "SHIFT TIME", 0.6);
    svg.rect({317, 14, 90, 32}, 16, "fill=\"url(#lip)\"");
    svg.rect({318, 15, 88, 30}, 15, "fill=\"#171c1f\"");
    for (const Point corner : lampCorners) {
        svg.ellipse({corner.x + 0.2, corner.y + 0.2, lampSize - 0.4, lampSize - 0.4}, "fill=\"url(#rim)\"");
        svg.ellipse({corner.x + 2.0, corner.y + 2.0, lampSize - 4.0, lampSize - 4.0}, "fill=\"#0d1012\"");
    }
    drawWell(svg, Box(layout.messageStrip), "#000");
    drawEngraved(svg, {Box(layout.messageStrip).middle().x, topBarLabels}, "MESSAGES", 2.2);
    svg.use("screwHead", {18.5, 28.5}, 20);
    svg.use("screwHead", {424, 28.5}, 60);
}

/// The scope's numbers keep clear of the top bar, the edges and the modules.
Box sheetAroundScope(const ConsoleLayout& layout) {
    const double top = topBarBottom + underTopBar;
    return {numberMargin, top, layout.stripModule.left - 2 * numberMargin,
            layout.size.height - numberMargin - top};
}

void drawScope(Svg& svg, const ConsoleLayout& layout) {
    const Box scope(layout.scope);
    drawScopeBezel(svg, scope);
    drawScopeTube(svg, scope);
    drawScopeReflections(svg, scope);
    drawBearingNumbers(svg, scope, sheetAroundScope(layout));
}

void drawStrips(Svg& svg, const ConsoleLayout& layout) {
    const double left = layout.size.width - stripButtonFromRight;
    drawWell(svg, Box(layout.stripPanel));
    drawEngraved(svg, {Box(layout.stripPanel).middle().x, 65}, "FLIGHT PROGRESS", 1.6);
    drawEngraved(svg, {left + stripButton.width / 2.0, 65}, "SEL", 1);
    for (int i = 0; i < layout.strips; ++i) {
        const Box button(left, stripButtonTop + stripPitch * i, stripButton.width, stripButton.height);
        drawWell(svg, button, "#14191b");
        const double y = button.middle().y;
        svg.line({button.right() + 4, y + 0.5}, {Box(layout.stripPanel).x - 4, y + 0.5},
                 "stroke=\"#ffb066\" opacity=\".8\"");
        drawNumber(svg, {left - 10, y}, std::to_string(i + 1), ivory);
    }
    const Box up(layout.size.width - scrollFromRight, scrollUpTop, scrollArrow.width, scrollArrow.height);
    drawArrowKey(svg, up, true);
    drawArrowKey(svg, Box(layout.scrollDown), false);
}

void drawControlModule(Svg& svg, const ConsoleLayout& layout) {
    constexpr double inset = 7.5;
    drawControls(svg, layout.controlPanel);
    drawWell(svg, Box(layout.execButton), "#14191b");
    const Box screws = Box(layout.controlModule).grownBy(-inset);
    svg.use("smallScrew", {screws.x, screws.y}, 70);
    svg.use("smallScrew", {screws.right(), screws.y}, 30);
    svg.use("smallScrew", {screws.x, screws.bottom()}, 10);
    svg.use("smallScrew", {screws.right(), screws.bottom()}, -20);
}

} // namespace

std::string drawConsole(const ConsoleLayout& layout, std::string_view materials) {
    Svg svg(layout.size);
    svg.define(materials);
    drawSheet(svg, layout.size);
    drawSystemSquare(svg, layout);
    drawModule(svg, {8, 7, layout.size.width - 16.0, 42}, "url(#bar)");
    drawModule(svg, Box(layout.stripModule), "url(#module)");
    drawModule(svg, Box(layout.controlModule), "url(#module)");
    drawLight(svg, layout.size);
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
