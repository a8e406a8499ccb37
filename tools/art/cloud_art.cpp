#include "tools/art/cloud_art.h"

#include <array>
#include <cstddef>

#include "base/random.h"
#include "tools/art/svg.h"

namespace ventrel::art {

namespace {

/// The seed scatters the puffs and chooses the noise that frays their edges.
struct Cloud {
    Size size;
    int puffs = 0;
    unsigned seed = 0;
};

constexpr std::array<Cloud, cloudCount> clouds{{
    {{96, 64}, 6, 3},
    {{60, 40}, 4, 8},
    {{140, 84}, 8, 15},
    {{120, 96}, 8, 27},
    {{180, 120}, 11, 4},
    {{72, 56}, 5, 62},
    {{160, 72}, 9, 19},
    {{110, 76}, 7, 71},
    {{84, 48}, 5, 33},
    {{172, 104}, 10, 56},
    {{128, 64}, 8, 90},
    {{66, 44}, 4, 41},
    {{150, 110}, 9, 12},
    {{104, 88}, 7, 77},
    {{176, 88}, 10, 38},
    {{90, 60}, 6, 99},
}};

/// The rim that the puffs keep clear, as a part of each side, so that no edge is cut straight.
constexpr double margin = 0.16;

double drawn(RandomGenerator& random, double from, double to) {
    constexpr int steps = 1000;
    return from + (to - from) * Random(random, steps) / (steps - 1);
}

std::string softness(const Cloud& cloud) {
    const double blur = cloud.size.height * 0.075;
    const double fray = cloud.size.height * 0.32;
    const double grain = 3.4 / cloud.size.height;
    const std::string area = "x=\"0\" y=\"0\" width=\"" + std::to_string(cloud.size.width) + "\" height=\"" +
                             std::to_string(cloud.size.height) + '"';
    return "<filter id=\"cloud\" filterUnits=\"userSpaceOnUse\" " + area +
           " color-interpolation-filters=\"sRGB\">\n"
           "<feGaussianBlur in=\"SourceAlpha\" stdDeviation=\"" +
           number(blur) +
           "\" result=\"blurred\"/>\n"
           "<feTurbulence type=\"fractalNoise\" baseFrequency=\"" +
           number(grain) + "\" numOctaves=\"4\" seed=\"" + std::to_string(cloud.seed) +
           "\" result=\"noise\"/>\n"
           "<feDisplacementMap in=\"blurred\" in2=\"noise\" scale=\"" +
           number(fray) +
           "\" xChannelSelector=\"R\" yChannelSelector=\"G\" result=\"frayed\"/>\n"
           "<feDiffuseLighting in=\"frayed\" surfaceScale=\"" +
           number(cloud.size.height * 0.13) +
           "\" diffuseConstant=\"1.12\" lighting-color=\"#eef1f6\" result=\"lit\">"
           "<feDistantLight azimuth=\"235\" elevation=\"54\"/></feDiffuseLighting>\n"
           "<feComposite in=\"lit\" in2=\"frayed\" operator=\"in\"/></filter>\n";
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
    svg.ellipse({width * margin, height * 0.42, width * (1 - 2 * margin), height * 0.32}, "fill=\"#000\"");
    for (int i = 0; i < cloud.puffs; ++i) {
        const double radius = height * drawn(random, 0.12, 0.2);
        const double x = drawn(random, width * margin + radius / 2, width * (1 - margin) - radius / 2);
        const double y = drawn(random, height * (margin + 0.12), height * (1 - margin - 0.12));
        svg.circle({x, y}, radius, "fill=\"#000\"");
    }
    svg.close();
    return svg.text();
}

} // namespace ventrel::art
