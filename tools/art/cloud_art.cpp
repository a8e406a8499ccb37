#include "tools/art/cloud_art.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "base/random.h"
#include "tools/art/svg.h"

namespace ventrel::art {

namespace {

/// The seed scatters the puffs and chooses the noise that makes their billows.
struct Cloud {
    Size size;
    int puffs = 0;
    unsigned seed = 0;
    double slant = 0; ///< how far the bank of puffs leans, as a part of the height: -0.3 to 0.3
};

constexpr std::array<Cloud, cloudCount> clouds{{
    {{96, 64}, 7, 3, 0.1},
    {{60, 40}, 5, 8, -0.1},
    {{140, 84}, 10, 15, 0.2},
    {{120, 96}, 9, 27, -0.25},
    {{180, 120}, 14, 4, 0.05},
    {{72, 56}, 6, 62, 0.15},
    {{160, 72}, 12, 19, -0.15},
    {{110, 76}, 8, 71, 0.25},
    {{84, 48}, 7, 33, -0.2},
    {{172, 104}, 12, 56, 0.3},
    {{128, 64}, 9, 90, -0.05},
    {{66, 44}, 5, 41, 0.2},
    {{150, 110}, 11, 12, -0.3},
    {{104, 88}, 8, 77, 0},
    {{176, 88}, 13, 38, -0.2},
    {{90, 60}, 7, 99, 0},
}};

double drawn(RandomGenerator& random, double from, double to) {
    constexpr int steps = 1000;
    return from + (to - from) * Random(random, steps) / (steps - 1);
}

/// Shape, billows, light: the blurred shape times cloudy noise is the cloud's thickness. Thin parts are dark
/// and let the hard edge sink into the map below; what is thinner still is clear.
std::string softness(const Cloud& cloud) {
    const double height = cloud.size.height;
    const std::string area = "x=\"0\" y=\"0\" width=\"" + std::to_string(cloud.size.width) + "\" height=\"" +
                             std::to_string(cloud.size.height) + '"';
    return "<filter id=\"cloud\" filterUnits=\"userSpaceOnUse\" " + area +
           " color-interpolation-filters=\"sRGB\">\n"
           "<feGaussianBlur in=\"SourceAlpha\" stdDeviation=\"" +
           number(height * 0.055 + 1.5) +
           "\" result=\"mass\"/>\n"
           "<feTurbulence type=\"fractalNoise\" baseFrequency=\"" +
           number(1 / (height * 0.16 + 7)) + "\" numOctaves=\"4\" seed=\"" + std::to_string(cloud.seed) +
           "\" result=\"noise\"/>\n"
           "<feDisplacementMap in=\"mass\" in2=\"noise\" scale=\"" +
           number(6 + height * 0.12) +
           "\" xChannelSelector=\"R\" yChannelSelector=\"G\" result=\"torn\"/>\n"
           "<feColorMatrix in=\"noise\" values=\"0 0 0 0 0  0 0 0 0 0  0 0 0 0 0  1.5 1 0 0 -.74\" "
           "result=\"billows\"/>\n"
           "<feComposite in=\"torn\" in2=\"billows\" operator=\"arithmetic\" k1=\".95\" k2=\".40\" k3=\"0\" "
           "k4=\"0\" result=\"thickness\"/>\n"
           "<feGaussianBlur in=\"thickness\" stdDeviation=\"2.3\" result=\"smooth\"/>\n"
           "<feDiffuseLighting in=\"smooth\" surfaceScale=\"" +
           number(4 + height * 0.03) +
           "\" diffuseConstant=\"1.24\" lighting-color=\"#fffdf6\" result=\"lit\">"
           "<feDistantLight azimuth=\"225\" elevation=\"52\"/></feDiffuseLighting>\n"
           "<feColorMatrix in=\"thickness\" values=\"0 0 0 1 0  0 0 0 1 0  0 0 0 1 0  0 0 0 0 1\"/>\n"
           "<feComponentTransfer result=\"shade\">"
           "<feFuncR type=\"table\" tableValues=\".12 .24 .40 .60 .78 .93\"/>"
           "<feFuncG type=\"table\" tableValues=\".15 .28 .44 .64 .81 .94\"/>"
           "<feFuncB type=\"table\" tableValues=\".19 .33 .50 .70 .85 .96\"/></feComponentTransfer>\n"
           "<feComposite in=\"lit\" in2=\"shade\" operator=\"arithmetic\" k1=\".62\" k2=\"0\" k3=\".42\" "
           "k4=\"0\" "
           "result=\"shaded\"/>\n"
           "<feComponentTransfer in=\"thickness\" result=\"cut\">"
           "<feFuncA type=\"linear\" slope=\"14\" intercept=\"-2.6\"/></feComponentTransfer>\n"
           "<feComposite in=\"shaded\" in2=\"cut\" operator=\"in\"/></filter>\n";
}

} // namespace

std::string drawCloud(int index) {
    const Cloud& cloud = clouds[static_cast<std::size_t>(index)];
    const double width = cloud.size.width;
    const double height = cloud.size.height;
    RandomGenerator random{cloud.seed};
    Svg svg(cloud.size);
    svg.define(softness(cloud));
    svg.open("filter=\"url(#cloud)\"");
    for (int i = 0; i < cloud.puffs; ++i) {
        // Along the bank from end to end, thickest in its middle.
        const double along = (i + drawn(random, 0.2, 0.8)) / cloud.puffs;
        const double girth = 1 - std::abs(2 * along - 1);
        const double radius = height * (0.13 + 0.15 * girth * drawn(random, 0.6, 1.0));
        const double reach = 0.5 - 0.09 - radius / height;
        const double x = width * 0.07 + radius + (width * 0.86 - 2 * radius) * along;
        const double bend = cloud.slant * (2 * along - 1) + drawn(random, -0.14, 0.14);
        const double y = height * (0.5 + std::clamp(bend, -reach, reach));
        svg.circle({x, y}, radius, "fill=\"#000\"");
    }
    svg.close();
    return svg.text();
}

} // namespace ventrel::art
