#include "tools/art/console_parts.h"

#include <cmath>

namespace ventrel::art {

namespace {

constexpr int knobRidges = 36;
constexpr int knobMarks = 11;
constexpr double knobMarksFrom = -135; // degrees, 0 is up
constexpr double knobMarksTo = 135;

struct Figures {
    double size;
    double height; ///< pixels
};

/// Every figure takes four pixels; its own width is a part of its size.
void drawFigures(Svg& svg, Spot middle, std::string_view text, const Figures& figures,
                 std::string_view colour) {
    constexpr double widthPart = 0.4556;
    constexpr double pitch = 4;
    constexpr double sharpest = 0.6; // where the upright strokes of the figures fall on whole pixels
    const double toPitch = pitch - widthPart * figures.size;
    const Spot base{std::round(middle.x - sharpest) + sharpest, std::round(middle.y + figures.height / 2)};
    svg.text({base.x, base.y - 1}, text, figures.size, toPitch, "fill=\"#0c0f10\" opacity=\".45\"");
    svg.text(base, text, figures.size, toPitch, "fill=\"" + std::string(colour) + '"');
}

} // namespace

void drawSheet(Svg& svg, Size size) {
    const Box whole(0, 0, size.width, size.height);
    svg.rect(whole, 0, "fill=\"url(#base)\"");
    svg.rect(whole, 0, "filter=\"url(#brush)\"");
    svg.rect(whole, 0, "filter=\"url(#brushDark)\"");
    const std::string right = number(whole.width - 1);
    const std::string bottom = number(whole.height - 1);
    svg.path("M1," + bottom + " V1 H" + right,
             "fill=\"none\" stroke=\"#c9d3d6\" stroke-width=\"2\" opacity=\".45\"");
    svg.path("M1," + bottom + " H" + right + " V1",
             "fill=\"none\" stroke=\"#0a0d0e\" stroke-width=\"2\" opacity=\".7\"");
}

void defineLight(Svg& svg, Size size) {
    svg.define("<radialGradient id=\"light\" gradientUnits=\"userSpaceOnUse\" cx=\"" +
               number(size.width * 0.235) + "\" cy=\"-60\" r=\"" + number(size.width * 1.12) +
               "\"><stop offset=\"0\" stop-color=\"#fff6e2\" stop-opacity=\".20\"/><stop offset=\".45\" "
               "stop-color=\"#fff6e2\" stop-opacity=\".03\"/><stop offset=\"1\" stop-color=\"#000\" "
               "stop-opacity=\".30\"/></radialGradient>\n");
}

void drawLight(Svg& svg, Size size) {
    defineLight(svg, size);
    svg.rect({0, 0, double(size.width), double(size.height)}, 0, "fill=\"url(#light)\"");
}

void drawModule(Svg& svg, const Box& area, std::string_view paint) {
    constexpr double corner = 5;
    svg.open("filter=\"url(#shadow)\"");
    svg.rect(area, corner, "fill=\"" + std::string(paint) + '"');
    svg.close();
    svg.open("opacity=\".20\" style=\"mix-blend-mode:overlay\"");
    svg.rect(area.grownBy(-2), corner, "filter=\"url(#grain)\"");
    svg.close();
    svg.rect(area.grownBy(-0.5), corner, "fill=\"none\" stroke=\"url(#rim)\"");
    svg.rect(area.grownBy(-1.5), corner - 1, "fill=\"none\" stroke=\"#fff\" opacity=\".10\"");
}

void drawWell(Svg& svg, const Box& area, std::string_view floor, double lip) {
    svg.rect(area.grownBy(lip), lip, "fill=\"url(#lip)\"");
    svg.rect(area.grownBy(lip / 2), lip / 2, "fill=\"#07090a\"");
    svg.rect(area, 0, "fill=\"" + std::string(floor) + '"');
    const std::string corner = 'M' + number(area.x + 0.5) + ',' + number(area.bottom()) + " V" +
                               number(area.y + 0.5) + " H" + number(area.right());
    svg.path(corner, "fill=\"none\" stroke=\"#000\" opacity=\".6\"");
}

void drawRoundWell(Svg& svg, const Box& face) {
    svg.ellipse(face.grownBy(4.6), "fill=\"url(#rim)\"");
    svg.ellipse(face.grownBy(3.4), "fill=\"#2a3236\"");
    svg.ellipse(face.grownBy(1.6), "fill=\"url(#lip)\"");
    svg.ellipse(face.grownBy(0.3), "fill=\"url(#glass)\"");
}

void drawKnob(Svg& svg, const Knob& knob) {
    const Spot at = knob.place.at;
    for (int i = 0; i < knobMarks; ++i) {
        const double degrees = knobMarksFrom + (knobMarksTo - knobMarksFrom) * i / (knobMarks - 1);
        svg.path(moved(around(at, 29, degrees), around(at, 33, degrees)),
                 "stroke=\"#d9d5c4\" stroke-width=\"1\" opacity=\".75\"");
    }
    svg.circle({at.x + 3, at.y + 5}, 27, "fill=\"#0b0e0f\" opacity=\".55\" filter=\"url(#soft)\"");
    svg.circle(at, 25, "fill=\"url(#knobSide)\"");
    for (int i = 0; i < knobRidges; ++i) {
        const double degrees = 360.0 * i / knobRidges;
        svg.path(moved(around(at, 21, degrees), around(at, 25, degrees)),
                 "stroke=\"#050607\" stroke-width=\"1.6\" opacity=\".75\"");
    }
    svg.circle(at, 20, "fill=\"url(#knobTop)\" stroke=\"#0a0c0d\" stroke-width=\"1\"");
    svg.circle(at, 18.6, "fill=\"none\" stroke=\"#8f9a9f\" stroke-width=\".6\" opacity=\".55\"");
    svg.path(moved(around(at, 8, knob.place.degrees), around(at, 18, knob.place.degrees)),
             "stroke=\"#ffb066\" stroke-width=\"2.4\" stroke-linecap=\"round\"");
    drawPrinted(svg, {at.x, at.y + 43}, knob.label, fivePixelCapitals, 0.9, ivory);
}

void drawVent(Svg& svg, const Vent& vent) {
    constexpr double slotHeight = 4.6;
    const double pitch = (vent.area.height - slotHeight) / (vent.slots - 1);
    for (int i = 0; i < vent.slots; ++i) {
        const Box slot(vent.area.x, vent.area.y + pitch * i, vent.area.width, slotHeight);
        svg.rect(slot, slotHeight / 2, "fill=\"#07090a\"");
        svg.path(moved({slot.x + 2, slot.bottom() + 0.4}, {slot.right() - 2, slot.bottom() + 0.4}),
                 "stroke=\"#aab5b9\" stroke-width=\".9\" opacity=\".55\"");
    }
}

void drawPlate(Svg& svg, const Plate& plate) {
    svg.open("filter=\"url(#shadow)\"");
    svg.rect(plate.area, 2, "fill=\"#15191b\"");
    svg.close();
    svg.rect(plate.area.grownBy(-0.5), 2, "fill=\"none\" stroke=\"url(#rim)\"");
    const Spot middle = plate.area.middle();
    const Spot base{std::round(middle.x + 3), std::round(middle.y)};
    svg.open("transform=\"rotate(-90 " + number(base.x) + ' ' + number(base.y) + ")\"");
    drawPrinted(svg, base, plate.words, sixPixelCapitals, plate.spacing, amber);
    svg.close();
}

void drawHandle(Svg& svg, const Box& area) {
    constexpr double foot = 20;
    svg.open("filter=\"url(#deepShadow)\"");
    svg.rect({area.x, area.y, area.width, foot}, 4, "fill=\"#2a3135\"");
    svg.rect({area.x, area.bottom() - foot, area.width, foot}, 4, "fill=\"#2a3135\"");
    svg.rect({area.x + 3, area.y + 6, area.width - 6, area.height - 12}, 6, "fill=\"url(#handle)\"");
    svg.close();
}

void drawKey(Svg& svg, const Box& area) {
    svg.rect(area.grownBy(1), 1.5, "fill=\"#0c0f11\"");
    svg.rect(area, 1, "fill=\"url(#key)\"");
    svg.rect(area.grownBy(-0.5), 0.5, "fill=\"none\" stroke=\"url(#rim)\"");
}

void drawArrowKey(Svg& svg, const Box& area, bool up) {
    constexpr double half = 2;
    drawKey(svg, area.grownBy(-1));
    const Spot middle = area.middle();
    const double tip = up ? -half : half;
    svg.path('M' + number(middle.x - 3) + ',' + number(middle.y - tip) + " h6 L" + number(middle.x) + ',' +
                 number(middle.y + tip) + " z",
             "fill=\"#ffb066\" stroke=\"#2a1a08\" stroke-width=\".5\"");
}

void drawEngraved(Svg& svg, Spot middle, std::string_view words, double spacing) {
    svg.text({middle.x, middle.y + 1}, words, fivePixelCapitals, spacing, "fill=\"#d5dfe2\" opacity=\".45\"");
    svg.text(middle, words, fivePixelCapitals, spacing, "fill=\"#0b1012\"");
}

void drawPrinted(Svg& svg, Spot middle, std::string_view words, double size, double spacing,
                 std::string_view colour) {
    svg.text({middle.x, middle.y - 1}, words, size, spacing, "fill=\"#0c0f10\" opacity=\".55\"");
    svg.text(middle, words, size, spacing, "fill=\"" + std::string(colour) + '"');
}

void drawNumber(Svg& svg, Spot middle, std::string_view figures, std::string_view colour) {
    drawFigures(svg, middle, figures, {.size = sixPixelCapitals, .height = 6}, colour);
}

void drawSmallNumber(Svg& svg, Spot middle, std::string_view figures, std::string_view colour) {
    drawFigures(svg, middle, figures, {.size = fivePixelCapitals, .height = 5}, colour);
}

} // namespace ventrel::art
