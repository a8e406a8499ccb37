#include "tools/art/small_art.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "tools/art/svg.h"

namespace ventrel::art {

namespace {

constexpr Size lampPicture{28, 28};
constexpr Size buttonPicture{20, 12};
constexpr Size pointerPicture{32, 32};
constexpr Size iconPicture{64, 64};

/// A lamp's glass from its hot middle to its rim.
struct LampGlass {
    std::string_view middle;
    std::string_view body;
    std::string_view rim;
};

constexpr std::array<std::array<LampGlass, 2>, 3> lampGlasses{{
    {{{"#2f6b3c", "#153f20", "#07180b"}, {"#eafff0", "#3df06a", "#0e7a2c"}}},
    {{{"#7a6420", "#463808", "#1c1603"}, {"#fffbe0", "#ffd53a", "#a86f00"}}},
    {{{"#7c2a24", "#48100d", "#1d0504"}, {"#ffeae4", "#ff4a36", "#9a0d06"}}},
}};

std::string stops(const LampGlass& glass) {
    return "<radialGradient id=\"glass\" cx=\".44\" cy=\".4\" r=\".62\"><stop offset=\"0\" stop-color=\"" +
           std::string(glass.middle) + "\"/><stop offset=\".45\" stop-color=\"" + std::string(glass.body) +
           "\"/><stop offset=\"1\" stop-color=\"" + std::string(glass.rim) + "\"/></radialGradient>\n";
}

constexpr std::string_view lampMetal = "<linearGradient id=\"rim\" x1=\"0\" y1=\"0\" x2=\"1\" y2=\"1\"><stop "
                                       "offset=\"0\" stop-color=\"#c9d3d7\"/>"
                                       "<stop offset=\".5\" stop-color=\"#66727a\"/><stop offset=\"1\" "
                                       "stop-color=\"#1d2326\"/></linearGradient>\n";

constexpr std::string_view keyPaint = "<linearGradient id=\"up\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\"><stop "
                                      "offset=\"0\" stop-color=\"#a4afb3\"/>"
                                      "<stop offset=\".5\" stop-color=\"#77838a\"/><stop offset=\"1\" "
                                      "stop-color=\"#4d575c\"/></linearGradient>\n"
                                      "<linearGradient id=\"down\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\"><stop "
                                      "offset=\"0\" stop-color=\"#8a5a24\"/>"
                                      "<stop offset=\".5\" stop-color=\"#e89a45\"/><stop offset=\"1\" "
                                      "stop-color=\"#ffc27a\"/></linearGradient>\n";

/// The hand stands upright with its first finger raised.
constexpr std::string_view handShape = "M5.5,1.6 q1.4,-1.6 2.8,0 V9.2 q1.5,-1.1 2.7,.3 q1.6,-1 2.7,.5 "
                                       "q1.9,-.8 2.5,1.2 V16 q0,2.6 -1.7,4.6 V22.5 "
                                       "H7 V20.8 L2.1,14.2 q-.9,-1.8 .7,-2.5 q1.2,-.3 2.7,1.7 z";

constexpr std::string_view arrowShape = "M7.5,9.5 V24.4 L11,21.2 L13.6,27 L16.2,25.9 L13.7,20.3 L18.5,20 z";

std::string drawPointer(std::string_view shape) {
    Svg svg(pointerPicture);
    svg.path(shape, "fill=\"#fff\" stroke=\"#000\" stroke-width=\"1.1\" stroke-linejoin=\"round\" "
                    "shape-rendering=\"crispEdges\"");
    return svg.text();
}

} // namespace

std::string drawLamp(LampColour colour, bool bright) {
    const LampGlass& glass = lampGlasses[static_cast<std::size_t>(colour)][bright ? 1 : 0];
    Svg svg(lampPicture);
    svg.define(stops(glass));
    svg.define(lampMetal);
    svg.rect({0, 0, 28, 28}, 0, "fill=\"#171c1f\"");
    svg.circle({14, 14}, 13, "fill=\"url(#rim)\"");
    svg.circle({14, 14}, 11.6, "fill=\"#0a0d0e\"");
    svg.circle({14, 14}, 10.8, "fill=\"url(#glass)\"");
    for (int i = 0; i < 4; ++i) {
        // The ribs of the lens.
        const double y = 8 + 4.0 * i;
        const double half = std::sqrt(10.2 * 10.2 - (y - 14) * (y - 14));
        svg.line({14 - half, y}, {14 + half, y}, "stroke=\"#000\" stroke-width=\".6\" opacity=\".22\"");
    }
    svg.ellipse({7.2, 5.2, 9.2, 5.6},
                bright ? "fill=\"#fff\" opacity=\".62\"" : "fill=\"#fff\" opacity=\".28\"");
    svg.path("M20.6,18.4 A8.4,8.4 0 0 1 14.8,22.4",
             bright ? "fill=\"none\" stroke=\"#fff\" stroke-width=\"1\" opacity=\".5\""
                    : "fill=\"none\" stroke=\"#fff\" stroke-width=\"1\" opacity=\".16\"");
    return svg.text();
}

std::string drawStripButton(bool pressed) {
    Svg svg(buttonPicture);
    svg.define(keyPaint);
    svg.rect({0, 0, 20, 12}, 0, "fill=\"#0c0f11\"");
    if (pressed) {
        svg.rect({1, 1, 18, 10}, 1.5, "fill=\"url(#down)\"");
        svg.path("M1.5,10.5 V1.5 H18.5", "fill=\"none\" stroke=\"#3a1f06\" stroke-width=\"1\"");
        svg.rect({5, 4.6, 10, 3}, 1.5, "fill=\"#fff3d8\" opacity=\".85\"");
    } else {
        svg.rect({1, 1, 18, 10}, 1.5, "fill=\"url(#up)\"");
        svg.path("M1.5,10.5 V1.5 H18.5",
                 "fill=\"none\" stroke=\"#dfe6e8\" stroke-width=\"1\" opacity=\".8\"");
        svg.path("M1.5,10.5 H18.5 V1.5",
                 "fill=\"none\" stroke=\"#20272a\" stroke-width=\"1\" opacity=\".8\"");
        svg.rect({5, 4.6, 10, 3}, 1.5, "fill=\"#3c4549\"");
    }
    return svg.text();
}

std::string drawHandPointer() {
    return drawPointer(handShape);
}

std::string drawArrowPointer() {
    return drawPointer(arrowShape);
}

std::string drawIcon() {
    Svg svg(iconPicture);
    svg.define(lampMetal);
    svg.define("<radialGradient id=\"tube\" cx=\".42\" cy=\".36\" r=\".75\"><stop offset=\"0\" "
               "stop-color=\"#1f5a38\"/><stop offset=\"1\" stop-color=\"#04120a\"/></radialGradient>\n");
    constexpr Spot middle{32, 32};
    svg.circle(middle, 31, "fill=\"url(#rim)\"");
    svg.circle(middle, 27, "fill=\"#0a0d0e\"");
    svg.circle(middle, 25.5, "fill=\"url(#tube)\"");
    for (const double radius : {9.0, 17.0, 24.5}) {
        svg.circle(middle, radius, "fill=\"none\" stroke=\"#4fd684\" stroke-width=\"1.2\" opacity=\".55\"");
    }
    svg.path("M32,32 L32,6.5 A25.5,25.5 0 0 1 53,17.6 z", "fill=\"#58ff9a\" opacity=\".30\"");
    svg.line(middle, {53, 17.6}, "stroke=\"#9dffc4\" stroke-width=\"2\"");
    svg.path("M24,40 l-7,7 M20.5,43.5 l-5.5,-3 M20.5,43.5 l3,5.5 M17,47 l-3,-1 M17,47 l1,3",
             "stroke=\"#ffd53a\" stroke-width=\"2.4\" stroke-linecap=\"round\"");
    return svg.text();
}

} // namespace ventrel::art
