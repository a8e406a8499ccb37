#include "tools/art/letterhead_art.h"

#include <cmath>
#include <numbers>

#include "tools/art/emblem.h"
#include "tools/art/svg.h"

namespace ventrel::art {

namespace {

constexpr Size headPicture{250, 100};
constexpr std::string_view ink = "#1c2b46";
constexpr std::string_view accent = "#a4552a";
constexpr Spot seal{45, 48};
constexpr double headWordsMiddle = 167;

/// A branch of laurel up one side of the seal: left (-1) or right (1).
void drawBranch(Svg& svg, double side) {
    constexpr int pairs = 9;
    constexpr double radius = 37.5;
    for (int i = 0; i < pairs; ++i) {
        const double degrees = 168 - i * 14.5; // from the foot upwards
        const double angle = degrees * std::numbers::pi / 180;
        const Spot at{seal.x + side * radius * std::sin(angle), seal.y - radius * std::cos(angle)};
        const double along = side * (degrees - 90);
        for (const double lean : {-28.0, 28.0}) {
            const double size = 1 - 0.04 * i;
            svg.open("transform=\"translate(" + number(at.x) + ' ' + number(at.y) + ") rotate(" +
                     number(along + lean) + ") scale(" + number(size) + ")\"");
            svg.path("M0,1 C-2.6,-1.6 -1.9,-5 0,-7.4 C1.9,-5 2.6,-1.6 0,1 z",
                     "fill=\"" + std::string(ink) + '"');
            svg.close();
        }
    }
}

void drawSeal(Svg& svg) {
    drawEmblem(svg, {.middle = seal, .radius = 29.5, .ink = ink, .accent = accent});
    drawBranch(svg, -1);
    drawBranch(svg, 1);
    svg.path("M45,4.6 l1.3,3.2 3.5,.2 -2.7,2.2 .9,3.4 -3,-1.9 -3,1.9 .9,-3.4 -2.7,-2.2 3.5,-.2 z",
             "fill=\"" + std::string(accent) + '"');
}

void drawWords(Svg& svg) {
    const std::string serif =
        "font-family=\"Liberation Serif\" text-anchor=\"middle\" fill=\"" + std::string(ink) + "\" ";
    const auto set = [&](double y, std::string_view words, const std::string& look) {
        svg.words({headWordsMiddle, y}, words, serif + look);
    };
    set(32, "BUREAU OF", "font-size=\"17\" font-weight=\"bold\" letter-spacing=\"3.6\"");
    set(52, "AIR SAFETY", "font-size=\"22.5\" font-weight=\"bold\" letter-spacing=\"1.1\"");
    svg.line({95, 60.5}, {239, 60.5}, "stroke=\"" + std::string(ink) + '"');
    svg.line({95, 62.5}, {239, 62.5}, "stroke=\"" + std::string(accent) + '"');
    set(74, "OFFICE OF PUBLIC AFFAIRS", "font-size=\"9\" letter-spacing=\".6\"");
    set(88.5, "Press Release", "font-size=\"12\" font-style=\"italic\"");
}

} // namespace

std::string drawLetterhead() {
    Svg svg(headPicture);
    svg.rect({0, 0, double(headPicture.width), double(headPicture.height)}, 0, "fill=\"#fff\"");
    drawSeal(svg);
    drawWords(svg);
    return svg.text();
}

} // namespace ventrel::art
