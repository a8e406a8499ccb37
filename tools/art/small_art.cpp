#include "tools/art/small_art.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <span>

#include "tools/art/scope_art.h"
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

std::string stops(std::string_view id, const LampGlass& glass) {
    return "<radialGradient id=\"" + std::string(id) +
           "\" cx=\".44\" cy=\".4\" r=\".62\"><stop offset=\"0\" stop-color=\"" + std::string(glass.middle) +
           "\"/><stop offset=\".45\" stop-color=\"" + std::string(glass.body) +
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

// The pointers are drawn pixel by pixel: '#' black, 'o' white, the rest clear.
// clang-format off
constexpr std::array<std::string_view, 21> handRows{
    "      ##",
    "     #oo#",
    "     #oo#",
    "     #oo#",
    "     #oo#",
    "     #oo###",
    "     #oo#oo###",
    "     #oo#oo#oo##",
    " ##  #oo#oo#oo#o#",
    "#oo# #oo#oo#oo#oo#",
    "#ooo##oooooooo#oo#",
    " #ooo#ooooooooooo#",
    "  #oo#ooooooooooo#",
    "  #oooooooooooooo#",
    "   #ooooooooooooo#",
    "   #oooooooooooo#",
    "    #ooooooooooo#",
    "    #oooooooooo#",
    "     #ooooooooo#",
    "     #ooooooooo#",
    "     ###########",
};
constexpr std::array<std::string_view, 18> arrowRows{
    "#",
    "##",
    "#o#",
    "#oo#",
    "#ooo#",
    "#oooo#",
    "#ooooo#",
    "#oooooo#",
    "#ooooooo#",
    "#oooooooo#",
    "#oooooo####",
    "#ooo#oo#",
    "#oo##oo#",
    "#o#  #oo#",
    "##   #oo#",
    "#     #oo#",
    "      #oo#",
    "       ##",
};
// clang-format on
constexpr Point handCorner{0, 0};
constexpr Point arrowCorner{7, 9};

std::string drawPixels(std::span<const std::string_view> rows, Point corner) {
    Svg svg(pointerPicture);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t column = 0; column < rows[row].size(); ++column) {
            const char mark = rows[row][column];
            if (mark != ' ') {
                svg.rect({corner.x + double(column), corner.y + double(row), 1, 1}, 0,
                         mark == '#' ? "fill=\"#000\"" : "fill=\"#fff\"");
            }
        }
    }
    return svg.text();
}

/// An airliner from above, flying towards the upper right from (0, 0) as its middle.
constexpr std::string_view airliner =
    "M13,-13 c-1.6,-1.6 -4.2,-.4 -6,1.4 L3.6,-8.2 L-9.5,-11.6 L-12,-9.2 L-1.8,-2.8 L-6.6,2.2 L-10.6,1.6 "
    "L-12.4,3.4 L-7.4,6 L-6,7.4 L-3.4,12.4 L-1.6,10.6 L-2.2,6.6 L2.8,1.8 L9.2,12 L11.6,9.5 L8.2,-3.6 "
    "L11.6,-7 c1.8,-1.8 3,-4.4 1.4,-6 z";

} // namespace

void drawLampAt(Svg& svg, Spot middle, LampColour colour, bool bright) {
    constexpr std::array<std::string_view, 3> ids{"greenGlass", "yellowGlass", "redGlass"};
    const auto index = static_cast<std::size_t>(colour);
    const auto [x, y] = middle;
    svg.define(stops(ids[index], lampGlasses[index][bright ? 1 : 0]));
    svg.circle(middle, 13, "fill=\"url(#rim)\"");
    svg.circle(middle, 11.6, "fill=\"#0a0d0e\"");
    svg.circle(middle, 10.8, "fill=\"url(#" + std::string(ids[index]) + ")\"");
    for (const double rib : {-6.0, -2.0, 2.0, 6.0}) {
        const double half = std::sqrt(10.2 * 10.2 - rib * rib);
        svg.line({x - half, y + rib}, {x + half, y + rib},
                 "stroke=\"#000\" stroke-width=\".6\" opacity=\".22\"");
    }
    svg.ellipse({x - 6.8, y - 8.8, 9.2, 5.6},
                bright ? "fill=\"#fff\" opacity=\".62\"" : "fill=\"#fff\" opacity=\".28\"");
    svg.path('M' + number(x + 6.6) + ',' + number(y + 4.4) + " A8.4,8.4 0 0 1 " + number(x + 0.8) + ',' +
                 number(y + 8.4),
             bright ? "fill=\"none\" stroke=\"#fff\" stroke-width=\"1\" opacity=\".5\""
                    : "fill=\"none\" stroke=\"#fff\" stroke-width=\"1\" opacity=\".16\"");
}

void drawAlertLamps(Svg& svg, Spot middle) {
    constexpr double pitch = 28;
    const auto [x, y] = middle;
    svg.rect({x - 45, y - 16, 90, 32}, 16, "fill=\"url(#lip)\"");
    svg.rect({x - 44, y - 15, 88, 30}, 15, "fill=\"#171c1f\"");
    drawLampAt(svg, {x - pitch, y}, LampColour::green, true);
    drawLampAt(svg, middle, LampColour::yellow, false);
    drawLampAt(svg, {x + pitch, y}, LampColour::red, false);
}

std::string drawLamp(LampColour colour, bool bright) {
    Svg svg(lampPicture);
    svg.define(lampMetal);
    svg.rect({0, 0, 28, 28}, 0, "fill=\"#171c1f\"");
    drawLampAt(svg, {14, 14}, colour, bright);
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
    return drawPixels(handRows, handCorner);
}

std::string drawArrowPointer() {
    return drawPixels(arrowRows, arrowCorner);
}

std::string drawIcon() {
    Svg svg(iconPicture);
    svg.define(lampMetal);
    svg.define("<radialGradient id=\"tube\" cx=\".42\" cy=\".36\" r=\".75\"><stop offset=\"0\" "
               "stop-color=\"#1f5a38\"/><stop offset=\"1\" stop-color=\"#04120a\"/></radialGradient>\n");
    constexpr Spot middle{32, 32};
    constexpr double tube = 25.5;
    svg.circle(middle, 31, "fill=\"#14181a\"");
    svg.circle(middle, 30.2, "fill=\"url(#rim)\"");
    svg.circle(middle, 27, "fill=\"#0a0d0e\"");
    svg.circle(middle, tube, "fill=\"url(#tube)\"");
    for (const double radius : {8.5, 17.0, 25.0}) {
        svg.circle(middle, radius, "fill=\"none\" stroke=\"#4fd684\" stroke-width=\"1\" opacity=\".5\"");
    }
    drawSweep(svg, middle, tube, {.direction = 62, .trail = 70});
    svg.open("transform=\"translate(27 37) scale(1.05)\"");
    svg.path(airliner, "fill=\"#fff6e0\" stroke=\"#08170d\" stroke-width=\"1.6\" stroke-linejoin=\"round\" "
                       "paint-order=\"stroke\"");
    svg.close();
    svg.path("M11,27 A21.8,21.8 0 0 1 26,11.2 A25,25 0 0 0 11,27 z", "fill=\"#fff\" opacity=\".25\"");
    return svg.text();
}

} // namespace ventrel::art
