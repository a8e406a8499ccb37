#include "tools/art/about_art.h"

#include <array>

#include "tools/art/console_parts.h"
#include "tools/art/lettering.h"
#include "tools/art/scope_art.h"
#include "tools/art/small_art.h"
#include "tools/art/svg.h"

namespace ventrel::art {

namespace {

constexpr Size aboutPicture{480, 320};
constexpr int shelfTop = 256;

constexpr Box aboutScope{32, 30, 196, 196};
constexpr Spot scopeMiddle = aboutScope.middle();
constexpr Sweep sweep{.direction = 76, .trail = 80};

constexpr std::array<Spot, 4> screws{{{14, 14}, {460, 14}, {14, 242}, {460, 242}}};
constexpr double wordsMiddle = 357;

/// A coast across the aboutScope; land lies to its left.
constexpr std::string_view coast =
    "M176,20 l-6,14 4,9 -9,8 3,7 -12,10 -2,12 7,5 -3,9 -11,4 -5,11 6,8 -4,6 5,7 11,2 4,-6 9,-1 5,5 -3,9 "
    "-11,5 -13,-2 -7,6 -4,13 -9,9 2,12 -8,9 1,11 -7,9 -14,22";

constexpr std::array<Blip, 4> aboutBlips{{
    {{182, 100}, "VT48", "7"},
    {{99, 77}, "KL17", "5"},
    {{158, 172}, "CS310", "9"},
    {{72, 140}, "DL905", "3"},
}};

void drawPictureOnTube(Svg& svg) {
    svg.open("clip-path=\"url(#scopeEdge)\"");
    svg.path(std::string(coast) + " H20 V20 z", "fill=\"#3f8a60\" opacity=\".16\"");
    svg.path(coast, "fill=\"none\" stroke=\"#63d396\" stroke-width=\"1.1\" opacity=\".6\"");
    drawSweep(svg, scopeMiddle, aboutScope.width / 2, sweep);
    // The approach to the field in the middle, and two fixes.
    svg.path("M120,150 l-21,35 M120,150 l-8,39", "stroke=\"#ffb066\" opacity=\".7\"");
    svg.line({116.5, 153.5}, {133.5, 124.5}, "stroke=\"#ffe3c0\" stroke-width=\"2.2\"");
    for (const Spot fix : {Spot{188, 130}, Spot{104, 46}}) {
        svg.circle(fix, 4, "fill=\"none\" stroke=\"#ffd98a\" opacity=\".85\"");
        svg.circle(fix, 0.8, "fill=\"#ffd98a\"");
    }
    for (const Blip& blip : aboutBlips) {
        drawBlip(svg, blip, fivePixelCapitals);
    }
    svg.close();
}

/// Plain, so that what the dialog puts there has its own ground.
void drawShelf(Svg& svg) {
    const double width = aboutPicture.width;
    svg.rect({0, shelfTop, width, double(aboutPicture.height - shelfTop)}, 0, "fill=\"#c0c0c0\"");
    svg.line({0, shelfTop - 1.5}, {width, shelfTop - 1.5}, "stroke=\"#0a0d0e\" stroke-width=\"2\"");
    svg.line({0, shelfTop - 0.5}, {width, shelfTop - 0.5}, "stroke=\"#ffffff\"");
}

} // namespace

std::string drawAbout(std::string_view materials) {
    Svg svg(aboutPicture);
    svg.define(materials);
    drawSheet(svg, aboutPicture);
    drawLight(svg, aboutPicture);
    for (const Spot screw : screws) {
        svg.use("screwHead", screw, screw.x + screw.y);
    }
    drawScopeBezel(svg, aboutScope);
    drawScopeTube(svg, aboutScope);
    drawPictureOnTube(svg);
    drawScopeReflections(svg, aboutScope);
    drawName(svg, {.base = {wordsMiddle, 118}, .size = 68, .spacing = 1});
    drawAlertLamps(svg, {wordsMiddle, 196});
    drawShelf(svg);
    return svg.text();
}

} // namespace ventrel::art
