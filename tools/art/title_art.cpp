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

constexpr Size picture{799, 577};
constexpr double frameWidth = 11;
constexpr double deskTop = 476;

constexpr double horizon = 306;
constexpr double sunset = 96; // the column where the sun went down
constexpr Camera camera{.at = {300, -95, 18}, .bearing = 282.6, .focal = 2450, .middle = {400, horizon}};
constexpr Attitude landing{.at = {-14, 0, 21}, .bearing = 90, .pitch = 3.6, .bank = -1.2};

void drawOutside(Svg& svg) {
    drawSky(svg, {.size = picture, .horizon = horizon, .sun = sunset, .reach = horizon * 1.04, .clouds = 7});
    drawHills(svg, camera, picture.width);
    svg.define(airfieldMaterials(picture.height - horizon));
    drawAirfield(svg, camera, picture);
    drawAirfieldLamps(svg, camera, 0.2);
    drawAirliner(svg, camera, landing, evening);
    drawBeacons(svg, camera, landing, {.landing = true, .strobe = false, .beacon = false}, 1.0);
    drawGrain(svg, picture);
}

constexpr Box scope{picture.width / 2.0 - 190, deskTop + 22, 380, 380};

struct Blip {
    double bearing;
    double inside; ///< pixels inside the scope's edge
    std::string_view callsign;
    std::string_view altitude;
};
constexpr std::array<Blip, 3> blips{{
    {-25, 38, "DL905", "3"},
    {-6, 46, "KL17", "5"},
    {16, 38, "VT48", "7"},
}};

void drawTraffic(Svg& svg) {
    for (const Blip& blip : blips) {
        const auto [x, y] = onScopeRim(scope, -blip.inside, blip.bearing);
        svg.rect({x - 2.5, y - 2.5, 5, 5}, 0, "fill=\"none\" stroke=\"#7dffb0\"");
        svg.line({x + 2.5, y - 2.5}, {x + 7.5, y - 7.5}, "stroke=\"#7dffb0\" opacity=\".8\"");
        svg.text({x + 21, y - 7}, blip.callsign, 8.72, 0.3, "fill=\"#7dffb0\"");
        svg.text({x + 12, y + 2}, blip.altitude, 8.72, 0.3, "fill=\"#7dffb0\"");
    }
}

void drawScope(Svg& svg) {
    drawScopeBezel(svg, scope);
    drawScopeTube(svg, scope);
    svg.open("clip-path=\"url(#scopeEdge)\"");
    drawSweep(svg, scope.middle(), scope.width / 2, {.direction = 37, .trail = 80});
    drawTraffic(svg);
    svg.close();
    drawScopeReflections(svg, scope);
    drawScopeLip(svg, scope);
}

void drawLamps(Svg& svg) {
    constexpr double y = 528;
    constexpr double pitch = 28;
    constexpr double middle = 112;
    svg.rect({middle - 45, y - 16, 90, 32}, 16, "fill=\"url(#lip)\"");
    svg.rect({middle - 44, y - 15, 88, 30}, 15, "fill=\"#171c1f\"");
    drawLampAt(svg, {middle - pitch, y}, LampColour::green, true);
    drawLampAt(svg, {middle, y}, LampColour::yellow, false);
    drawLampAt(svg, {middle + pitch, y}, LampColour::red, false);
}

void drawDesk(Svg& svg) {
    const double width = picture.width;
    const double height = picture.height - deskTop;
    const Box front(0, deskTop, width, height);
    svg.define("<radialGradient id=\"spill\" gradientUnits=\"userSpaceOnUse\" cx=\"" +
               number(scope.middle().x) + "\" cy=\"" + number(scope.middle().y) +
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
    drawScope(svg);
    drawLamps(svg);
    drawKnob(svg, {.place = {{660, 520}, -38}, .label = "BRILLIANCE"});
    drawKnob(svg, {.place = {{734, 520}, 35}, .label = "RANGE"});
}

/// The steel around the window, which ends the picture.
void drawFrame(Svg& svg) {
    const Box whole(0, 0, picture.width, picture.height);
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
    drawSheet(svg, picture);
    drawLight(svg, picture);
    svg.close();
    svg.rect(inside.grownBy(0.5), 0, "fill=\"none\" stroke=\"#07090a\" stroke-width=\"1.6\"");
    svg.rect(inside.grownBy(1.6), 0, "fill=\"none\" stroke=\"url(#lip)\" stroke-width=\".8\" opacity=\".8\"");
    constexpr double corner = frameWidth / 2;
    for (const Spot at :
         {Spot{corner, corner}, Spot{picture.width - corner, corner}, Spot{corner, picture.height - corner},
          Spot{picture.width - corner, picture.height - corner}}) {
        svg.use("smallScrew", at, at.x + 2 * at.y);
    }
}

} // namespace

std::string drawTitle(std::string_view materials) {
    Svg svg(picture);
    svg.define(materials);
    svg.define(glowMaterials());
    drawOutside(svg);
    drawDesk(svg);
    drawName(svg, {.base = {picture.width / 2.0, 126}, .size = 112, .spacing = 2});
    drawFrame(svg);
    return svg.text();
}

} // namespace ventrel::art
