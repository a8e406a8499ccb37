#include "tools/art/console_art.h"

#include <string>

#include "tools/art/console_parts.h"
#include "tools/art/control_art.h"
#include "tools/art/scope_art.h"

namespace ventrel::art {

namespace {

/// That of the strips' window, which leaves a margin of its well free.
constexpr std::string_view columnFloor = "#400800";

constexpr double topBarBottom = 49;
constexpr double topBarLabels = 14; // what the labels over its wells stand on
/// A number of a bearing that would come nearer to the top bar or an edge is left out.
constexpr double underTopBar = 5;
constexpr double numberMargin = 9;

/// The key of the system menu, with the bar that such keys bear.
void drawSystemKey(Svg& svg, const Box& key) {
    svg.rect({0, 0, key.right() + 2, key.bottom() + 2}, 0, "fill=\"#22292d\"");
    svg.rect(key.grownBy(1), 0, "fill=\"#0c0f11\"");
    svg.rect(key, 0, "fill=\"#59646a\"");
    svg.rect({key.x, key.y, key.width - 1, key.height - 1}, 0, "fill=\"#eef3f4\"");
    svg.rect({key.x + 1, key.y + 1, key.width - 2, key.height - 2}, 0, "fill=\"#a9b4b8\"");
    svg.rect({key.x + 1, key.y + 2, key.width - 2, 2}, 0, "fill=\"#14181a\"");
}

void drawDragStrip(Svg& svg, const TopBarLayout& bar) {
    const Box strip(bar.dragStrip);
    svg.rect(strip, 0, "fill=\"#22292d\"");
    for (double y = 1.5; y < strip.bottom(); y += 2) {
        svg.line({12, y}, {strip.right() - 6, y}, "stroke=\"#8d999e\" stroke-width=\".8\" opacity=\".6\"");
    }
    drawSystemKey(svg, Box(bar.systemSquare));
}

/// The pill-shaped tray around the three lamps.
void drawLampTray(Svg& svg, const TopBarLayout& bar) {
    const Box first(bar.lamps.front());
    const Box last(bar.lamps.back());
    const Box tray = Box(first.x, first.y, last.right() - first.x, first.height).grownBy(1);
    constexpr double beside = 1; // more room left and right
    const Box wide(tray.x - beside, tray.y, tray.width + 2 * beside, tray.height);
    svg.rect(wide.grownBy(1), wide.height / 2 + 1, "fill=\"url(#lip)\"");
    svg.rect(wide, wide.height / 2, "fill=\"#171c1f\"");
    for (const Rect& place : bar.lamps) {
        const Box lamp(place);
        svg.ellipse(lamp.grownBy(-0.2), "fill=\"url(#rim)\"");
        svg.ellipse(lamp.grownBy(-2), "fill=\"#0d1012\"");
    }
}

void drawTopBar(Svg& svg, const TopBarLayout& bar) {
    for (const Rect& button : {bar.fileButton, bar.optionsButton, bar.helpButton}) {
        drawWell(svg, Box(button), "#14191b");
    }
    drawEngraved(svg, {Box(bar.optionsButton).middle().x, topBarLabels}, "COMMAND", 2.2);
    drawEngraved(svg, {Box(bar.helpButton).middle().x, topBarLabels}, "F1 HELP", 1);
    drawRoundWell(svg, Box(bar.smallScopeFace.movedBy(bar.smallScope.topLeft())));
    drawWell(svg, Box(bar.clock), "#000");
    drawEngraved(svg, {Box(bar.clock).middle().x, topBarLabels}, "SHIFT TIME", 0.6);
    drawLampTray(svg, bar);
    const Box ticker(bar.ticker);
    drawWell(svg, ticker, "#000");
    drawEngraved(svg, {ticker.middle().x, topBarLabels}, "MESSAGES", 2.2);
    svg.use("screwHead", {18.5, 28.5}, 20);
    svg.use("screwHead", {ticker.x - 19, 28.5}, 60);
}

/// The scope's numbers keep clear of the top bar, the edges and the modules.
Box sheetAroundScope(const ConsoleFittings& fittings) {
    const double top = topBarBottom + underTopBar;
    return {numberMargin, top, fittings.stripModule.left - 2 * numberMargin,
            fittings.places.size.height - numberMargin - top};
}

void drawScope(Svg& svg, const ConsoleFittings& fittings) {
    const RadarLayout& radar = fittings.places.radar;
    const Box scope(radar.scopeEllipse.movedBy(radar.corner));
    drawScopeBezel(svg, scope);
    drawScopeTube(svg, scope);
    drawScopeReflections(svg, scope);
    drawScopeLip(svg, scope);
    drawBearingNumbers(svg, scope, sheetAroundScope(fittings));
}

void drawStrips(Svg& svg, const StripsLayout& strips) {
    constexpr double labels = 65; // what the labels over strips and buttons stand on
    const Box well(strips.well());
    drawWell(svg, well, columnFloor);
    drawEngraved(svg, {well.middle().x, labels}, "FLIGHT PROGRESS", 1.6);
    drawEngraved(svg, {Box(strips.firstButton).middle().x, labels}, "SEL", 1);
    for (int i = 0; i < strips.count; ++i) {
        const Box button(strips.button(i));
        drawWell(svg, button, "#14191b", 1);
        const double y = button.middle().y;
        svg.line({button.right() + 4, y + 0.5}, {well.x - 4, y + 0.5}, "stroke=\"#ffb066\" opacity=\".8\"");
        drawNumber(svg, {button.x - 10, y}, std::to_string(i + 1), ivory);
    }
    drawArrowKey(svg, Box(strips.scrollUp), true);
    drawArrowKey(svg, Box(strips.scrollDown), false);
}

void drawControlModule(Svg& svg, const ConsoleFittings& fittings) {
    constexpr double inset = 7.5;
    drawControls(svg, fittings.places.controlPanel.topLeft());
    drawWell(svg, Box(fittings.places.execButton), "#14191b");
    const Box corners = Box(fittings.controlModule).grownBy(-inset);
    svg.use("smallScrew", {corners.x, corners.y}, 70);
    svg.use("smallScrew", {corners.right(), corners.y}, 30);
    svg.use("smallScrew", {corners.x, corners.bottom()}, 10);
    svg.use("smallScrew", {corners.right(), corners.bottom()}, -20);
}

} // namespace

std::string drawConsole(const ConsoleFittings& fittings, std::string_view materials) {
    const ConsoleLayout& places = fittings.places;
    Svg svg(places.size);
    svg.define(materials);
    drawSheet(svg, places.size);
    drawDragStrip(svg, places.topBar);
    drawModule(svg, {8, 7, places.size.width - 16.0, 42}, "url(#bar)");
    drawModule(svg, Box(fittings.stripModule), "url(#module)");
    drawModule(svg, Box(fittings.controlModule), "url(#module)");
    drawLight(svg, places.size);
    for (const Vent& vent : fittings.vents) {
        drawVent(svg, vent);
    }
    for (const Box& handle : fittings.handles) {
        drawHandle(svg, handle);
    }
    for (const Turned& screw : fittings.screws) {
        svg.use("screwHead", screw.at, screw.degrees);
    }
    drawScope(svg, fittings);
    for (const Knob& knob : fittings.knobs) {
        drawKnob(svg, knob);
    }
    for (const Plate& plate : fittings.plates) {
        drawPlate(svg, plate);
    }
    drawTopBar(svg, places.topBar);
    drawStrips(svg, places.strips);
    drawControlModule(svg, fittings);
    return svg.text();
}

} // namespace ventrel::art
