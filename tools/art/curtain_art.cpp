#include "tools/art/curtain_art.h"

#include <array>
#include <cmath>

#include "tools/art/console_parts.h"
#include "tools/art/emblem.h"
#include "tools/art/small_art.h"
#include "tools/art/svg.h"

namespace ventrel::art {

namespace {

constexpr double slatHeight = 32;
constexpr double railHeight = 46;
constexpr double stripesTop = 27; // of the rail's warning band
constexpr double stripesHeight = 12;
constexpr double guideShadow = 26; // that the guides at both sides throw

constexpr double slotPitch = 22; // of the holes along a slat
constexpr double slotWidth = 13;
constexpr double slotHeight = 3.2;

/// Everything that is measured from the emblem in the shutter's middle.
struct Emblem {
    Spot middle;
    double radius = 0;

    double wordsLine() const { return middle.y + radius * 1.46; }
    /// Whether a hole there would break the paint.
    bool isNear(Spot spot) const {
        const double margin = 28;
        const bool isOnRose = std::hypot(spot.x - middle.x, spot.y - middle.y) < radius + margin;
        const bool isOnWords = std::abs(spot.x - middle.x) < radius * 1.62 && spot.y > middle.y &&
                               spot.y < wordsLine() + radius * 0.40;
        return isOnRose || isOnWords;
    }
};

Emblem emblemOf(Size screen) {
    const double radius = screen.height * 0.20;
    return {{screen.width / 2.0, railHeight + (screen.height - railHeight) * 0.42}, radius};
}

/// How a slat's belly takes the light, and the dark gap under it; and the paint, which is worn where its
/// noise is high.
constexpr std::string_view shutterMaterials =
    "<linearGradient id=\"slat\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"1\">"
    "<stop offset=\"0\" stop-color=\"#fff\" stop-opacity=\".30\"/>"
    "<stop offset=\".10\" stop-color=\"#fff\" stop-opacity=\".22\"/>"
    "<stop offset=\".34\" stop-color=\"#fff\" stop-opacity=\".05\"/>"
    "<stop offset=\".55\" stop-color=\"#000\" stop-opacity=\".08\"/>"
    "<stop offset=\".86\" stop-color=\"#000\" stop-opacity=\".46\"/>"
    "<stop offset=\"1\" stop-color=\"#000\" stop-opacity=\".62\"/></linearGradient>\n"
    "<linearGradient id=\"fromLeft\"><stop offset=\"0\" stop-color=\"#000\" stop-opacity=\".85\"/>"
    "<stop offset=\".35\" stop-color=\"#000\" stop-opacity=\".38\"/>"
    "<stop offset=\"1\" stop-color=\"#000\" stop-opacity=\"0\"/></linearGradient>\n"
    "<linearGradient id=\"fromRight\" x1=\"1\" x2=\"0\"><stop offset=\"0\" stop-color=\"#000\" "
    "stop-opacity=\".85\"/><stop offset=\".35\" stop-color=\"#000\" stop-opacity=\".38\"/>"
    "<stop offset=\"1\" stop-color=\"#000\" stop-opacity=\"0\"/></linearGradient>\n"
    "<pattern id=\"warning\" width=\"28\" height=\"12\" patternUnits=\"userSpaceOnUse\" y=\"27\">"
    "<rect width=\"28\" height=\"12\" fill=\"#d98a2e\"/>"
    "<path d=\"M-2,12 L10,0 H24 L12,12 z M26,12 L38,0 H52 z M-30,12 L-18,0 H-4 L-16,12 z\" "
    "fill=\"#15181a\"/></pattern>\n"
    "<radialGradient id=\"night\" cx=\".42\" cy=\".36\" r=\".8\"><stop offset=\"0\" stop-color=\"#04090f\" "
    "stop-opacity=\".12\"/><stop offset=\".5\" stop-color=\"#04080e\" stop-opacity=\".34\"/>"
    "<stop offset=\"1\" stop-color=\"#020408\" stop-opacity=\".70\"/></radialGradient>\n"
    "<filter id=\"worn\" x=\"-5%\" y=\"-5%\" width=\"110%\" height=\"110%\" "
    "color-interpolation-filters=\"sRGB\">\n"
    "<feTurbulence type=\"fractalNoise\" baseFrequency=\"0.045 0.32\" numOctaves=\"4\" seed=\"17\"/>\n"
    "<feColorMatrix values=\"0 0 0 0 0  0 0 0 0 0  0 0 0 0 0  -3.4 -2.4 0 0 4.05\" result=\"kept\"/>\n"
    "<feComposite in=\"SourceGraphic\" in2=\"kept\" operator=\"in\"/></filter>\n"
    "<filter id=\"halo\" x=\"-60%\" y=\"-300%\" width=\"220%\" height=\"700%\">"
    "<feGaussianBlur stdDeviation=\"3.2\"/></filter>\n";

constexpr std::string_view warmPaint = "fill=\"#ffab58\"";
constexpr std::string_view palePaint = "fill=\"#f0ebda\"";

/// The line nearest to `y` on which letters of that size stand in the middle of a slat, clear of its gap.
double onSlat(double y, double size) {
    constexpr double capitals = 0.729; // of the face, as a part of its size
    constexpr double gap = 2.4;
    const double foot = (slatHeight - gap + size * capitals) / 2;
    return railHeight + foot + slatHeight * std::round((y - railHeight - foot) / slatHeight);
}

void paintWords(Svg& svg, const Emblem& emblem) {
    const auto [middle, radius] = emblem;
    svg.text({middle.x, emblem.wordsLine()}, "VENTREL", radius * 0.43, radius * 0.085, palePaint);
    const double size = radius * 0.15;
    svg.text({middle.x, onSlat(emblem.wordsLine() + radius * 0.2, size)}, "APPROACH CONTROL", size,
             radius * 0.057, warmPaint);
}

/// What is written on a shutter's foot for those who look after it.
void paintMarks(Svg& svg, Size screen) {
    const double foot = screen.height - 40.0;
    const double right = screen.width - 120.0;
    svg.text({92, onSlat(foot, 17)}, "04", 74, 2, palePaint);
    svg.text({right, onSlat(foot - slatHeight, 17)}, "STORM SHUTTER", 17, 1.6, palePaint);
    svg.text({right, onSlat(foot, 17)}, "WEST WINDOW", 17, 2.7, warmPaint);
}

/// The evening outside, as a hole at that height shows it.
std::string_view skyAt(double part) {
    constexpr std::array<std::string_view, 8> colours{"#5a97cf", "#74b0d8", "#9cc6cf", "#f0c48c",
                                                      "#ffbe68", "#ff9c48", "#e8763a", "#b4562e"};
    return colours[static_cast<std::size_t>(part * (colours.size() - 1))];
}

void drawSlots(Svg& svg, Size screen, double y, const Emblem& emblem) {
    constexpr double clearOfGuides = 34;
    const std::string_view sky = skyAt(y / screen.height);
    const int count = static_cast<int>((screen.width - 2 * clearOfGuides) / slotPitch);
    const double first = (screen.width - (count - 1) * slotPitch) / 2;
    std::string holes;
    for (int i = 0; i < count; ++i) {
        const Spot middle{first + i * slotPitch, y};
        if (!emblem.isNear(middle)) {
            holes +=
                'M' + number(middle.x - slotWidth / 2) + ',' + number(y) + " h" + number(slotWidth) + ' ';
        }
    }
    const std::string round = "fill=\"none\" stroke-linecap=\"round\" stroke-width=\"";
    svg.path(holes, round + number(slotHeight + 2.6) + "\" stroke=\"#07090a\"");
    svg.path(holes, "transform=\"translate(0.5 1.2)\" " + round + number(slotHeight + 1.4) +
                        "\" stroke=\"#c4ced1\" opacity=\".35\"");
    svg.path(holes, round + number(slotHeight) + "\" stroke=\"#05070a\"");
    svg.path(holes, round + number(slotHeight - 0.6) + "\" stroke=\"" + std::string(sky) + '"');
    svg.path(holes, round + number(slotHeight) + "\" stroke=\"" + std::string(sky) +
                        "\" opacity=\".75\" filter=\"url(#halo)\"");
}

void drawSlats(Svg& svg, Size screen, const Emblem& emblem) {
    const double width = screen.width;
    int row = 0;
    for (double y = railHeight; y < screen.height; y += slatHeight, ++row) {
        svg.rect({0, y, width, slatHeight}, 0, "fill=\"url(#slat)\"");
        svg.rect({0, y, width, 1}, 0, "fill=\"#e4ecee\" opacity=\".34\"");
        svg.rect({0, y + slatHeight - 2.4, width, 2.4}, 0, "fill=\"#050708\" opacity=\".92\"");
    }
    constexpr double footHeight = 130; // without holes
    for (double y = railHeight + slatHeight * 1.5; y < screen.height - footHeight; y += slatHeight * 2) {
        drawSlots(svg, screen, y, emblem);
    }
}

void drawRail(Svg& svg, Size screen) {
    const double width = screen.width;
    svg.rect({0, railHeight, width, 16}, 0, "fill=\"#000\" opacity=\".5\" filter=\"url(#softer)\"");
    svg.rect({0, 0, width, railHeight}, 0, "fill=\"url(#bar)\"");
    svg.rect({0, 0, width, railHeight}, 0, "filter=\"url(#brush)\"");
    svg.rect({0, 0, width, 3}, 0, "fill=\"#0b0e0f\""); // the rubber that seals it
    svg.rect({0, 3, width, 1}, 0, "fill=\"#dfe7e9\" opacity=\".7\"");
    svg.rect({0, stripesTop - 1, width, stripesHeight + 2}, 0, "fill=\"#0b0e0f\"");
    svg.rect({0, stripesTop, width, stripesHeight}, 0, "fill=\"url(#warning)\"");
    svg.rect({0, stripesTop, width, stripesHeight}, 0, "filter=\"url(#brushDark)\"");
    svg.rect({0, railHeight - 1.5, width, 1.5}, 0, "fill=\"#07090a\"");
}

void drawRailFittings(Svg& svg, Size screen) {
    constexpr double middle = 15;
    const double width = screen.width;
    for (const double x : {30.0, width * 0.25, width * 0.75, width - 30}) {
        svg.use("screwHead", {x, middle}, x);
    }
    drawEngraved(svg, {width * 0.375, middle + 3}, "MOTOR DRIVE  -  KEEP CLEAR", 1.6);
    drawEngraved(svg, {width * 0.625, middle + 3}, "LOWER TO OPEN", 1.6);
    svg.open("transform=\"translate(" + number(width / 2) + ' ' + number(middle) + ") scale(.72)\"");
    drawLampAt(svg, {0, 0}, LampColour::yellow, true);
    svg.close();
}

} // namespace

std::string drawCurtain(Size screen, std::string_view materials) {
    const Emblem emblem = emblemOf(screen);
    const double width = screen.width;
    const double height = screen.height;
    Svg svg(screen);
    svg.define(materials);
    svg.define(shutterMaterials);
    drawSheet(svg, screen);
    svg.open("opacity=\".88\" filter=\"url(#worn)\"");
    drawEmblem(svg, {emblem.middle, emblem.radius, ivory, "#e59a4a"});
    paintWords(svg, emblem);
    paintMarks(svg, screen);
    svg.close();
    drawLight(svg, screen);
    svg.rect({0, 0, width, height}, 0, "fill=\"url(#night)\"");
    drawSlats(svg, screen, emblem);
    drawRail(svg, screen);
    drawRailFittings(svg, screen);
    svg.rect({0, 0, guideShadow, height}, 0, "fill=\"url(#fromLeft)\"");
    svg.rect({width - guideShadow, 0, guideShadow, height}, 0, "fill=\"url(#fromRight)\"");
    return svg.text();
}

} // namespace ventrel::art
