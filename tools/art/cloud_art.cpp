#include "tools/art/cloud_art.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "tools/art/chance.h"
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

/// Shape, billows, light. The edge is the blurred shape, torn by fine noise, and thins out slowly: it is
/// dithered away when the picture is made. Inside it a core keeps the cloud whole, and its billows only shade
/// it.
std::string softness(const Cloud& cloud) {
    constexpr double rim = 6; // over which the cloud fades where it would reach the picture's edge
    const double height = cloud.size.height;
    const std::string area = "x=\"0\" y=\"0\" width=\"" + std::to_string(cloud.size.width) + "\" height=\"" +
                             std::to_string(cloud.size.height) + '"';
    const std::string noise = "\" numOctaves=\"4\" seed=\"" + std::to_string(cloud.seed);
    return "<filter id=\"cloud\" filterUnits=\"userSpaceOnUse\" " + area +
           " color-interpolation-filters=\"sRGB\">\n"
           "<feGaussianBlur in=\"SourceAlpha\" stdDeviation=\"" +
           number(height * 0.045 + 1.6) +
           "\" result=\"mass\"/>\n"
           "<feTurbulence type=\"fractalNoise\" baseFrequency=\"" +
           number(1 / (height * 0.12 + 5)) + noise +
           "\" result=\"noise\"/>\n"
           "<feDisplacementMap in=\"mass\" in2=\"noise\" scale=\"" +
           number(14 + height * 0.2) +
           "\" xChannelSelector=\"R\" yChannelSelector=\"G\" result=\"torn\"/>\n"
           "<feColorMatrix in=\"noise\" values=\"0 0 0 0 0  0 0 0 0 0  0 0 0 0 0  1.5 1 0 0 -.74\" "
           "result=\"billows\"/>\n"
           "<feComposite in=\"torn\" in2=\"billows\" operator=\"arithmetic\" k1=\".85\" k2=\".30\" k3=\"0\" "
           "k4=\"0\" result=\"thickness\"/>\n"
           "<feGaussianBlur in=\"thickness\" stdDeviation=\"2.8\" result=\"smooth\"/>\n"
           "<feDiffuseLighting in=\"smooth\" surfaceScale=\"" +
           number(3 + height * 0.02) +
           "\" diffuseConstant=\"1.1\" lighting-color=\"#eef1f4\" result=\"lit\">"
           "<feDistantLight azimuth=\"225\" elevation=\"58\"/></feDiffuseLighting>\n"
           "<feColorMatrix in=\"thickness\" values=\"0 0 0 1 0  0 0 0 1 0  0 0 0 1 0  0 0 0 0 1\"/>\n"
           "<feComponentTransfer result=\"shade\">"
           "<feFuncR type=\"table\" tableValues=\".14 .20 .28 .36 .44 .52\"/>"
           "<feFuncG type=\"table\" tableValues=\".17 .23 .31 .39 .47 .55\"/>"
           "<feFuncB type=\"table\" tableValues=\".20 .27 .35 .44 .52 .60\"/></feComponentTransfer>\n"
           "<feComposite in=\"lit\" in2=\"shade\" operator=\"arithmetic\" k1=\".80\" k2=\"0\" k3=\".24\" "
           "k4=\"0\" "
           "result=\"shaded\"/>\n"
           "<feComponentTransfer in=\"torn\" result=\"edge\">"
           "<feFuncA type=\"linear\" slope=\"1.7\" intercept=\"-.17\"/></feComponentTransfer>\n"
           "<feComponentTransfer in=\"mass\" result=\"core\">"
           "<feFuncA type=\"linear\" slope=\"4\" intercept=\"-2\"/></feComponentTransfer>\n"
           "<feMerge result=\"cut\"><feMergeNode in=\"edge\"/><feMergeNode in=\"core\"/></feMerge>\n"
           "<feFlood x=\"" +
           number(rim) + "\" y=\"" + number(rim) + "\" width=\"" + number(cloud.size.width - 2 * rim) +
           "\" height=\"" + number(height - 2 * rim) +
           "\" result=\"sheet\"/>\n"
           "<feGaussianBlur in=\"sheet\" stdDeviation=\"2\" result=\"frame\"/>\n"
           "<feComposite in=\"cut\" in2=\"frame\" operator=\"in\" result=\"faded\"/>\n"
           "<feComposite in=\"shaded\" in2=\"faded\" operator=\"in\"/></filter>\n";
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
