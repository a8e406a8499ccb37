#include "tools/art/title_art.h"

#include <array>

#include "tools/art/airfield.h"
#include "tools/art/airliner.h"
#include "tools/art/console_parts.h"
#include "tools/art/lettering.h"
#include "tools/art/scope_art.h"
#include "tools/art/sky.h"
#include "tools/art/small_art.h"
#include "tools/art/svg.h"

namespace ventrel::art {

namespace {

constexpr Size titlePicture{799, 577};
constexpr double frameWidth = 11;
constexpr double deskTop = 476;

constexpr double titleHorizon = 306;
constexpr double sunset = 96; // the column where the sun went down
constexpr Camera titleCamera{
    .at = {300, -95, 18}, .bearing = 282.6, .focal = 2450, .middle = {400, titleHorizon}};
constexpr Attitude titleLanding{.at = {-14, 0, 21}, .bearing = 90, .pitch = 3.6, .bank = -1.2};

void drawOutside(Svg& svg) {
    drawSky(svg, {.size = titlePicture,
                  .horizon = titleHorizon,
                  .sun = sunset,
                  .reach = titleHorizon * 1.04,
                  .clouds = 7});
    drawHills(svg, titleCamera, titlePicture.width);
    svg.define(airfieldMaterials(titlePicture.height - titleHorizon));
    drawAirfield(svg, titleCamera, titlePicture);
    drawAirfieldLamps(svg, titleCamera, 0.2);
    drawAirliner(svg, titleCamera, titleLanding, evening);
    drawBeacons(svg, titleCamera, titleLanding, {.landing = true, .strobe = false, .beacon = false}, 1.0);
    drawGrain(svg, titlePicture);
}

constexpr Box titleScope{titlePicture.width / 2.0 - 190, deskTop + 22, 380, 380};

void drawTitleScope(Svg& svg) {
    drawScopeBezel(svg, titleScope);
    drawScopeTube(svg, titleScope);
    svg.open("clip-path=\"url(#scopeEdge)\"");
    drawSweep(svg, titleScope.middle(), titleScope.width / 2, {.direction = 37, .trail = 80});
    // On the dome of the scope that the picture shows.
    for (const Blip& blip : {Blip{onScopeRim(titleScope, -38, -25), "DL905", "3"},
                             Blip{onScopeRim(titleScope, -46, -6), "KL17", "5"},
                             Blip{onScopeRim(titleScope, -38, 16), "VT48", "7"}}) {
        drawBlip(svg, blip, sixPixelCapitals);
    }
    svg.close();
    drawScopeReflections(svg, titleScope);
    drawScopeLip(svg, titleScope);
}

void drawDesk(Svg& svg) {
    const double width = titlePicture.width;
    const double height = titlePicture.height - deskTop;
    const Box front(0, deskTop, width, height);
    svg.define("<radialGradient id=\"spill\" gradientUnits=\"userSpaceOnUse\" cx=\"" +
               number(titleScope.middle().x) + "\" cy=\"" + number(titleScope.middle().y) +
               "\" r=\"330\"><stop offset=\".55\" stop-color=\"#58ff9a\" stop-opacity=\".12\"/><stop "
               "offset=\"1\" stop-color=\"#58ff9a\" stop-opacity=\"0\"/></radialGradient>\n"
               "<linearGradient id=\"duskOnDesk\"><stop offset=\"0\" stop-color=\"#ffb877\" "
               "stop-opacity=\".16\"/><stop offset=\".45\" stop-color=\"#20252c\" "
               "stop-opacity=\".20\"/><stop offset=\"1\" stop-color=\"#05080c\" "
               "stop-opacity=\".52\"/></linearGradient>\n"
               "<linearGradient id=\"sill\"><stop offset=\"0\" stop-color=\"#ffd9a6\"/><stop offset=\".5\" "
               "stop-color=\"#b9a795\"/><stop offset=\"1\" stop-color=\"#55636c\"/></linearGradient>\n");
    svg.rect({0, deskTop - 7, width, 14}, 0, "fill=\"#000\" opacity=\".55\" filter=\"url(#softer)\"");
    svg.rect(front, 0, "fill=\"url(#module)\"");
    svg.rect(front, 0, "filter=\"url(#brush)\"");
    svg.rect(front, 0, "filter=\"url(#brushDark)\"");
    svg.rect(front, 0, "fill=\"url(#duskOnDesk)\"");
    svg.rect(front, 0, "fill=\"url(#spill)\"");
    svg.rect({0, deskTop, width, 1.6}, 0, "fill=\"url(#sill)\" opacity=\".85\"");
    svg.rect({0, deskTop + 1.6, width, 5}, 0, "fill=\"#000\" opacity=\".22\"");
    drawTitleScope(svg);
    drawAlertLamps(svg, {112, 528});
    drawKnob(svg, {.place = {{660, 520}, -38}, .label = "BRILLIANCE"});
    drawKnob(svg, {.place = {{734, 520}, 35}, .label = "RANGE"});
}

/// The steel around the window, which ends the titlePicture.
void drawFrame(Svg& svg) {
    const Box whole(0, 0, titlePicture.width, titlePicture.height);
    const Box inside = whole.grownBy(-frameWidth);
    const auto ring = [](const Box& outer, const Box& inner) {
        const auto around = [](const Box& box) {
            return 'M' + number(box.x) + ',' + number(box.y) + " H" + number(box.right()) + " V" +
                   number(box.bottom()) + " H" + number(box.x) + " z ";
        };
        return around(outer) + around(inner);
    };
    svg.rect(inside.grownBy(3), 0,
             "fill=\"none\" stroke=\"#000\" stroke-width=\"12\" opacity=\".6\" filter=\"url(#softer)\"");
    svg.define("<clipPath id=\"steel\"><path clip-rule=\"evenodd\" d=\"" + ring(whole, inside) +
               "\"/></clipPath>\n");
    svg.open("clip-path=\"url(#steel)\"");
    drawSheet(svg, titlePicture);
    drawLight(svg, titlePicture);
    svg.close();
    svg.rect(inside.grownBy(0.5), 0, "fill=\"none\" stroke=\"#07090a\" stroke-width=\"1.6\"");
    svg.rect(inside.grownBy(1.6), 0, "fill=\"none\" stroke=\"url(#lip)\" stroke-width=\".8\" opacity=\".8\"");
    constexpr double corner = frameWidth / 2;
    for (const Spot at : {Spot{corner, corner}, Spot{titlePicture.width - corner, corner},
                          Spot{corner, titlePicture.height - corner},
                          Spot{titlePicture.width - corner, titlePicture.height - corner}}) {
        svg.use("smallScrew", at, at.x + 2 * at.y);
    }
}

} // namespace

std::string drawTitle(std::string_view materials) {
    Svg svg(titlePicture);
    svg.define(materials);
    svg.define(glowMaterials());
    drawOutside(svg);
    drawDesk(svg);
    drawName(svg, {.base = {titlePicture.width / 2.0, 126}, .size = 112, .spacing = 2});
    drawFrame(svg);
    return svg.text();
}

} // namespace ventrel::art
