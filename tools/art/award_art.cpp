#include "tools/art/award_art.h"

#include <array>

#include "tools/art/console_parts.h"
#include "tools/art/film.h"
#include "tools/art/lettering.h"
#include "tools/art/scope_art.h"
#include "tools/art/sky.h"
#include "tools/art/svg.h"

namespace ventrel::art {

namespace {

constexpr Size awardPicture{600, 240};
constexpr int plateWidth = awardPicture.width - filmSize.width;
constexpr double plateMiddle = plateWidth / 2.0;
constexpr Spot badge{plateMiddle, 84};
constexpr double stillMoment = 3.85; // of the film: smoke behind the wheels

constexpr std::string_view gold =
    "<linearGradient id=\"feather\" x1=\"0\" y1=\"0\" x2=\".2\" y2=\"1\"><stop offset=\"0\" "
    "stop-color=\"#fff1c4\"/><stop offset=\".35\" stop-color=\"#e9b75e\"/><stop offset=\"1\" "
    "stop-color=\"#7c4e14\"/></linearGradient>\n"
    "<linearGradient id=\"goldRim\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"1\"><stop offset=\"0\" "
    "stop-color=\"#fff6d8\"/><stop offset=\".4\" stop-color=\"#dca34a\"/><stop offset=\".75\" "
    "stop-color=\"#7d4f16\"/><stop offset=\"1\" stop-color=\"#d9a95c\"/></linearGradient>\n";

struct Feather {
    double length;
    double degrees; ///< downwards
    double drop;    ///< of its root
};
constexpr std::array<Feather, 7> longFeathers{{
    {106, -15, -15},
    {103, -9, -10},
    {96, -3, -5},
    {86, 4, 0},
    {74, 11, 5},
    {60, 19, 10},
    {45, 28, 14},
}};
constexpr std::array<Feather, 5> shortFeathers{{
    {62, -14, -14},
    {58, -6, -8},
    {52, 3, -2},
    {44, 13, 4},
    {35, 24, 9},
}};

void drawFeather(Svg& svg, const Feather& feather) {
    const double length = feather.length;
    svg.open("transform=\"translate(16 " + number(feather.drop) + ") rotate(" + number(feather.degrees) +
             ")\"");
    svg.path("M0,-4.2 C" + number(length * 0.35) + ",-6.4 " + number(length * 0.85) + ",-5.6 " +
                 number(length) + ",.6 C" + number(length * 0.8) + ",4.6 " + number(length * 0.35) +
                 ",5.2 0,4.6 z",
             "fill=\"url(#feather)\" stroke=\"#3a2408\" stroke-width=\".7\"");
    svg.path("M6,.4 Q" + number(length * 0.6) + ",-1.4 " + number(length * 0.93) + ",.3",
             "fill=\"none\" stroke=\"#6d4512\" stroke-width=\".7\" opacity=\".8\"");
    svg.close();
}

void drawWing(Svg& svg, bool isRight) {
    svg.open("transform=\"translate(" + number(badge.x) + ' ' + number(badge.y) +
             (isRight ? ")\"" : ") scale(-1 1)\""));
    for (std::size_t i = longFeathers.size(); i-- > 0;) {
        drawFeather(svg, longFeathers[i]);
    }
    for (std::size_t i = shortFeathers.size(); i-- > 0;) {
        drawFeather(svg, shortFeathers[i]);
    }
    svg.close();
}

/// A controller's wings: gold, with a scope in their plateMiddle.
void drawBadge(Svg& svg) {
    constexpr double rim = 34;
    constexpr double tube = 26;
    const Box scope(badge.x - tube, badge.y - tube, 2 * tube, 2 * tube);
    svg.open("filter=\"url(#shadow)\"");
    drawWing(svg, false);
    drawWing(svg, true);
    svg.circle(badge, rim, "fill=\"url(#goldRim)\" stroke=\"#3a2408\" stroke-width=\".8\"");
    svg.close();
    svg.circle(badge, tube + 3.4, "fill=\"#4a2f0c\"");
    svg.circle(badge, tube + 2.4, "fill=\"#0a0d0e\"");
    drawScopeTube(svg, scope);
    drawSweep(svg, badge, tube, {.direction = 52, .trail = 100});
    for (const Spot blip : {Spot{-9, -12}, Spot{11, 7}, Spot{-13, 8}}) {
        svg.circle({badge.x + blip.x, badge.y + blip.y}, 1.5, "fill=\"#b4ffd2\"");
    }
    drawScopeReflections(svg, scope);
}

void drawPlateWords(Svg& svg) {
    drawPolished(svg, {.base = {plateMiddle, 168}, .size = 44, .spacing = 2}, "WELL DONE");
    svg.line({plateMiddle - 98, 180.5}, {plateMiddle + 98, 180.5}, "stroke=\"#0c0f10\" opacity=\".7\"");
    svg.line({plateMiddle - 98, 181.5}, {plateMiddle + 98, 181.5}, "stroke=\"#ffb066\"");
    drawPrinted(svg, {plateMiddle, 200}, "A PLACE AMONG THE TEN BEST", 13, 1.15, ivory);
}

/// In the frame that closes the plate towards the film.
void drawStill(Svg& svg) {
    defineFilm(svg);
    svg.openPicture({plateWidth, 0}, filmSize);
    drawFilmPicture(svg, stillMoment);
    drawGrain(svg, filmSize);
    svg.closePicture();
    svg.rect({plateWidth - 4.0, 0, 4, double(awardPicture.height)}, 0, "fill=\"#07090a\"");
    svg.rect({plateWidth - 5.0, 0, 1, double(awardPicture.height)}, 0, "fill=\"#b4c0c4\" opacity=\".5\"");
}

} // namespace

std::string drawAward(std::string_view materials) {
    Svg svg(awardPicture);
    svg.define(materials);
    svg.define(gold);
    drawSheet(svg, awardPicture);
    drawLight(svg, {plateWidth, awardPicture.height});
    for (const Spot at :
         {Spot{13, 13}, Spot{plateWidth - 17.0, 13}, Spot{13, 227}, Spot{plateWidth - 17.0, 227}}) {
        svg.use("screwHead", at, at.x * 2 + at.y);
    }
    drawBadge(svg);
    drawPlateWords(svg);
    drawStill(svg);
    return svg.text();
}

} // namespace ventrel::art
