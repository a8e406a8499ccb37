#include "tools/art/score_art.h"

#include <array>

#include "tools/art/airfield.h"
#include "tools/art/airliner.h"
#include "tools/art/console_parts.h"
#include "tools/art/lettering.h"
#include "tools/art/sky.h"
#include "tools/art/svg.h"

namespace ventrel::art {

namespace {

constexpr Size scorePicture{689, 600};

// The scoreRows that the table writes: letters of 21 pixels from 50 down, 24 apart.
constexpr int scoreRows = 10;
constexpr double firstRow = 48.5;
constexpr double rowPitch = 24;
constexpr double bayTop = 47;
constexpr double bayBottom = firstRow + scoreRows * rowPitch + 1.5;
constexpr double nameColumn = 5;
constexpr double scoreColumn = 120;
constexpr double airspaceColumn = 165;
constexpr double rankColumn = 668;

constexpr double windowBottom = 563;
constexpr double scoreHorizon = 452;
constexpr Camera scoreCamera{
    .at = {850, -92, 10}, .bearing = 302.4, .focal = 1420, .middle = {345, scoreHorizon}};
constexpr Attitude departing{.at = {702, 0, 17}, .bearing = 90, .pitch = 11, .bank = -4, .bend = 1.5};

constexpr std::array<Box, 2> scoreButtons{{{280, 575, 75, 19}, {365, 575, 75, 19}}};

void drawWindow(Svg& svg) {
    drawSky(svg, {.size = scorePicture, .horizon = scoreHorizon, .sun = 60, .reach = 300, .clouds = 34});
    drawHills(svg, scoreCamera, scorePicture.width);
    svg.define(airfieldMaterials(scorePicture.height - scoreHorizon));
    drawAirfield(svg, scoreCamera, scorePicture);
    drawAirfieldLamps(svg, scoreCamera, 0.2);
    drawAirliner(svg, scoreCamera, departing, evening);
    drawBeacons(svg, scoreCamera, departing, {.landing = true, .strobe = false, .beacon = false}, 1.2);
    drawGrain(svg, scorePicture);
}

void drawStrip(Svg& svg, int row) {
    const double top = firstRow + row * rowPitch;
    const Box paper(1, top, scorePicture.width - 2.0, rowPitch - 1.4);
    svg.rect({paper.x, paper.y + 1.4, paper.width, paper.height}, 1, "fill=\"#000\" opacity=\".55\"");
    svg.rect(paper, 1, row % 2 == 0 ? "fill=\"url(#paper)\"" : "fill=\"url(#paperGreen)\"");
    svg.rect({paper.x, paper.y, paper.width, 1}, 0, "fill=\"#fff\" opacity=\".75\"");
    for (const double x : {scoreColumn - 5.5, airspaceColumn - 2.5, rankColumn - 17.5}) {
        svg.line({x, paper.y + 2}, {x, paper.bottom() - 2}, "stroke=\"#8fa79a\" opacity=\".55\"");
    }
    svg.text({rankColumn, top + 15}, std::to_string(row + 1), 13, 0, "fill=\"#93a398\"");
}

void drawBay(Svg& svg) {
    const Box bay(0, bayTop, scorePicture.width, bayBottom - bayTop);
    svg.define(
        "<linearGradient id=\"paper\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\".05\"><stop offset=\"0\" "
        "stop-color=\"#faf5e4\"/><stop offset=\".6\" stop-color=\"#efe8d2\"/><stop offset=\"1\" "
        "stop-color=\"#dbd3bb\"/></linearGradient>\n"
        "<linearGradient id=\"paperGreen\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\".05\"><stop offset=\"0\" "
        "stop-color=\"#edf2e2\"/><stop offset=\".6\" stop-color=\"#e0e8d4\"/><stop offset=\"1\" "
        "stop-color=\"#cbd4be\"/></linearGradient>\n"
        "<filter id=\"fibres\" x=\"0\" y=\"0\" width=\"100%\" height=\"100%\" "
        "color-interpolation-filters=\"sRGB\"><feTurbulence type=\"fractalNoise\" "
        "baseFrequency=\"0.5 0.7\" numOctaves=\"2\" seed=\"9\"/><feColorMatrix values=\"0 0 0 0 .3  0 0 "
        "0 0 .26  0 0 0 0 .2  .26 .26 0 0 -.16\"/></filter>\n");
    svg.rect(bay, 0, "fill=\"#0a0d0f\"");
    for (int row = 0; row < scoreRows; ++row) {
        drawStrip(svg, row);
    }
    svg.rect(bay, 0, "filter=\"url(#fibres)\"");
}

/// A bar of steel from side to side.
void drawBar(Svg& svg, double top, double height) {
    const Box bar(0, top, scorePicture.width, height);
    svg.rect({bar.x, bar.y + 1, bar.width, bar.height - 2}, 0,
             "fill=\"#000\" opacity=\".6\" filter=\"url(#softer)\"");
    svg.rect(bar, 0, "fill=\"url(#bar)\"");
    svg.rect(bar, 0, "filter=\"url(#brush)\"");
    svg.rect(bar, 0, "filter=\"url(#brushDark)\"");
    svg.rect(bar, 0, "fill=\"url(#light)\"");
    svg.rect({bar.x, bar.y, bar.width, 1}, 0, "fill=\"#dfe7e9\" opacity=\".6\"");
    svg.rect({bar.x, bar.bottom() - 1.4, bar.width, 1.4}, 0, "fill=\"#07090a\"");
}

void drawHeadBar(Svg& svg) {
    constexpr double labels = 43;
    drawBar(svg, 0, bayTop);
    for (const double x : {16.0, scorePicture.width - 16.0}) {
        svg.use("screwHead", {x, 17}, x);
    }
    drawPolished(svg, {.base = {scorePicture.width / 2.0, 29}, .size = 30, .spacing = 5}, "BEST SHIFTS");
    const auto label = [&](double middle, std::string_view words) {
        drawPrinted(svg, {middle, labels}, words, fivePixelCapitals, 1, ivory);
    };
    label(nameColumn + 26, "CONTROLLER");
    label(scoreColumn + 14, "SCORE");
    label(airspaceColumn + 19, "AIRSPACE");
    label(rankColumn, "PLACE");
}

void drawScoreShelf(Svg& svg) {
    drawBar(svg, windowBottom, scorePicture.height - windowBottom);
    for (const Box& button : scoreButtons) {
        drawWell(svg, button.grownBy(1), "#0b0e10", 2);
    }
    drawVent(svg, {.area = {40, 572, 150, 20}, .slots = 3});
    drawVent(svg, {.area = {499, 572, 150, 20}, .slots = 3});
    for (const double x : {16.0, 214.0, 475.0, scorePicture.width - 16.0}) {
        svg.use("screwHead", {x, 582}, x * 3);
    }
}

} // namespace

std::string drawScores(std::string_view materials) {
    Svg svg(scorePicture);
    svg.define(materials);
    svg.define(glowMaterials());
    drawWindow(svg);
    defineLight(svg, scorePicture);
    svg.rect({0, bayBottom - 6, double(scorePicture.width), 12}, 0, "fill=\"#000\" filter=\"url(#softer)\"");
    drawBay(svg);
    drawHeadBar(svg);
    drawBar(svg, bayBottom, 7);
    drawScoreShelf(svg);
    return svg.text();
}

} // namespace ventrel::art
