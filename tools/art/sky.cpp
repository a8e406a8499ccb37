#include "tools/art/sky.h"

#include <array>
#include <cmath>
#include <numbers>

#include "tools/art/chance.h"

namespace ventrel::art {

namespace {

std::string userSpace(double x1, double y1, double x2, double y2) {
    return "gradientUnits=\"userSpaceOnUse\" x1=\"" + number(x1) + "\" y1=\"" + number(y1) + "\" x2=\"" +
           number(x2) + "\" y2=\"" + number(y2) + '"';
}

std::string skyMaterials(const SkyLook& look) {
    const double top = look.horizon - look.reach;
    return "<linearGradient id=\"sky\" " + userSpace(0, top, 0, look.horizon) +
           "><stop offset=\"0\" stop-color=\"#0a1424\"/><stop offset=\".28\" stop-color=\"#15294a\"/><stop "
           "offset=\".52\" stop-color=\"#304f7c\"/><stop offset=\".70\" stop-color=\"#64718f\"/><stop "
           "offset=\".83\" stop-color=\"#ad8a86\"/><stop offset=\".93\" stop-color=\"#e8a468\"/><stop "
           "offset=\"1\" stop-color=\"#ffc37a\"/></linearGradient>\n"
           "<radialGradient id=\"sunset\" gradientUnits=\"userSpaceOnUse\" cx=\"" +
           number(look.sun) + "\" cy=\"" + number(look.horizon) + "\" r=\"" + number(look.reach * 1.25) +
           "\"><stop offset=\"0\" stop-color=\"#ffe9b0\" stop-opacity=\".95\"/><stop offset=\".12\" "
           "stop-color=\"#ffce80\" stop-opacity=\".70\"/><stop offset=\".38\" stop-color=\"#ff9a50\" "
           "stop-opacity=\".30\"/><stop offset=\"1\" stop-color=\"#ff8040\" "
           "stop-opacity=\"0\"/></radialGradient>\n"
           "<radialGradient id=\"farFromSun\" gradientUnits=\"userSpaceOnUse\" cx=\"" +
           number(look.sun) + "\" cy=\"" + number(look.horizon) + "\" r=\"" + number(look.reach * 3.2) +
           "\"><stop offset=\".3\" stop-color=\"#0a1222\" stop-opacity=\"0\"/><stop offset=\"1\" "
           "stop-color=\"#0a1222\" stop-opacity=\".62\"/></radialGradient>\n";
}

/// Banks of cloud, flat and long, dark above and lit from the sun below.
std::string cloudMaterials(const SkyLook& look) {
    const double top = look.horizon - look.reach;
    const double grow = look.reach / 300;
    return "<linearGradient id=\"cloudsFade\" " + userSpace(0, top, 0, look.horizon) +
           "><stop offset=\".05\" stop-color=\"#fff\" stop-opacity=\"0\"/><stop offset=\".40\" "
           "stop-color=\"#fff\" stop-opacity=\".55\"/><stop offset=\".75\" stop-color=\"#fff\"/><stop "
           "offset=\".97\" stop-color=\"#fff\" stop-opacity=\".8\"/></linearGradient>\n"
           "<mask id=\"cloudsHere\" maskUnits=\"userSpaceOnUse\" x=\"0\" y=\"" +
           number(top) + "\" width=\"" + number(look.size.width) + "\" height=\"" + number(look.reach) +
           "\"><rect x=\"0\" y=\"" + number(top) + "\" width=\"" + number(look.size.width) + "\" height=\"" +
           number(look.reach) +
           "\" fill=\"url(#cloudsFade)\"/></mask>\n"
           "<filter id=\"clouds\" x=\"0\" y=\"0\" width=\"100%\" height=\"100%\" "
           "color-interpolation-filters=\"sRGB\">\n"
           "<feTurbulence type=\"fractalNoise\" baseFrequency=\"" +
           fineNumber(0.0042 / grow) + ' ' + fineNumber(0.030 / grow) + "\" numOctaves=\"5\" seed=\"" +
           std::to_string(look.clouds) +
           "\"/>\n<feColorMatrix values=\"0 0 0 0 0  0 0 0 0 0  0 0 0 0 0  3.6 1.6 0 0 -2.62\" "
           "result=\"mass\"/>\n"
           "<feOffset in=\"mass\" dx=\"" +
           number(1.5 * grow) + "\" dy=\"" + number(-4.5 * grow) +
           "\" result=\"higher\"/>\n<feComposite in=\"mass\" in2=\"higher\" operator=\"out\"/>\n"
           "<feGaussianBlur stdDeviation=\"" +
           number(1.1 * grow) +
           "\" result=\"belly\"/>\n"
           "<feFlood flood-color=\"#2b3450\" flood-opacity=\".72\"/>\n"
           "<feComposite in2=\"mass\" operator=\"in\" result=\"body\"/>\n"
           "<feFlood flood-color=\"#ffb27a\"/>\n"
           "<feComposite in2=\"belly\" operator=\"in\" result=\"glow\"/>\n"
           "<feMerge><feMergeNode in=\"body\"/><feMergeNode in=\"glow\"/></feMerge></filter>\n";
}

void drawStars(Svg& svg, const SkyLook& look) {
    constexpr int count = 70;
    RandomGenerator random{5};
    for (int i = 0; i < count; ++i) {
        const double height = drawn(random, 0.45, 1.6); // above the horizon, of the sky's reach
        const Spot at{drawn(random, 0, look.size.width), look.horizon - height * look.reach};
        const double brightness = drawn(random, 0.1, 0.75) * std::min(1.0, (height - 0.4) * 2);
        svg.circle(at, drawn(random, 0.4, 0.9), "fill=\"#e8f0ff\" opacity=\"" + number(brightness) + '"');
    }
}

struct Range {
    double height; ///< of its hills, as a part of the distance
    double seed;
    std::string_view look;
};
constexpr std::array<Range, 3> ranges{{
    {0.030, 1.7, "fill=\"#5c5568\" opacity=\".75\""},
    {0.019, 4.1, "fill=\"#3a3a4a\" opacity=\".9\""},
    {0.009, 8.8, "fill=\"#20262e\""},
}};

/// The outline of a range of hills at a bearing: 0 to 1.
double hillAt(double bearing, double seed) {
    const double angle = bearing * std::numbers::pi / 180;
    const double sum = std::sin(angle * 3 + seed) + 0.6 * std::sin(angle * 11 + seed * 2.3) +
                       0.34 * std::sin(angle * 27 + seed * 5.1) + 0.2 * std::sin(angle * 61 + seed * 3.7) +
                       0.08 * std::sin(angle * 171 + seed * 1.9);
    return 0.5 + 0.22 * sum;
}

} // namespace

void drawSky(Svg& svg, const SkyLook& look) {
    const Box sky(0, 0, look.size.width, look.horizon);
    svg.define(skyMaterials(look));
    svg.define(cloudMaterials(look));
    svg.rect(sky, 0, "fill=\"url(#sky)\"");
    svg.rect(sky, 0, "fill=\"url(#farFromSun)\"");
    drawStars(svg, look);
    svg.open("mask=\"url(#cloudsHere)\"");
    svg.rect({0, look.horizon - look.reach, sky.width, look.reach}, 0, "filter=\"url(#clouds)\"");
    svg.close();
    svg.rect(sky, 0, "fill=\"url(#sunset)\"");
}

void drawHills(Svg& svg, const Camera& camera, double width) {
    constexpr double step = 2; // pixels
    for (const Range& range : ranges) {
        std::string data = "M-2," + number(camera.middle.y + 1);
        for (double x = -step; x <= width + step; x += step) {
            const double bearing =
                camera.bearing + std::atan((x - camera.middle.x) / camera.focal) * 180 / std::numbers::pi;
            const double height = camera.focal * range.height * hillAt(bearing, range.seed);
            data += " L" + number(x) + ',' + number(camera.middle.y - height);
        }
        svg.path(data + " L" + number(width + 2) + ',' + number(camera.middle.y + 1) + " z", range.look);
    }
}

void drawGrain(Svg& svg, Size size) {
    svg.define(
        "<filter id=\"filmGrain\" x=\"0\" y=\"0\" width=\"100%\" height=\"100%\" "
        "color-interpolation-filters=\"sRGB\"><feTurbulence type=\"fractalNoise\" "
        "baseFrequency=\"0.83\" numOctaves=\"2\" seed=\"3\"/><feColorMatrix values=\"0.6 0.5 0 0 -.05  "
        "0.6 0.5 0 0 -.05  0.6 0.5 0 0 -.05  0 0 0 0 1\"/></filter>\n");
    svg.open("opacity=\".11\" style=\"mix-blend-mode:soft-light\"");
    svg.rect({0, 0, double(size.width), double(size.height)}, 0, "filter=\"url(#filmGrain)\"");
    svg.close();
}

} // namespace ventrel::art
