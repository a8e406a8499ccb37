#include "tools/art/scope_art.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "base/format.h"
#include "tools/art/console_parts.h"

namespace ventrel::art {

namespace {

constexpr double bezelOuter = 9.5; // pixels outside the scope
constexpr double bezelFace = 8;
constexpr double bezelInner = 3.2;

Box ringAt(const Box& scope, double part) {
    const Spot middle = scope.middle();
    return {middle.x - scope.width * part / 2, middle.y - scope.height * part / 2, scope.width * part,
            scope.height * part};
}

void drawGraticule(Svg& svg, const Box& scope) {
    constexpr int rings = 4;
    svg.open("fill=\"none\" stroke=\"#8ff0b8\" opacity=\".13\"");
    for (int i = 1; i < rings; ++i) {
        svg.ellipse(ringAt(scope, double(i) / rings), "");
    }
    const Spot middle = scope.middle();
    svg.line({scope.x, middle.y}, {scope.right(), middle.y}, "stroke-dasharray=\"2 4\"");
    svg.line({middle.x, scope.y}, {middle.x, scope.bottom()}, "stroke-dasharray=\"2 4\"");
    for (int degrees = 0; degrees < 360; degrees += 10) {
        const double length = degrees % 30 == 0 ? 12 : 6;
        svg.line(onScopeRim(scope, -2, degrees), onScopeRim(scope, -2 - length, degrees), "");
    }
    svg.close();
}

bool contains(const Box& area, Spot spot) {
    return spot.x > area.x && spot.x < area.right() && spot.y > area.y && spot.y < area.bottom();
}

} // namespace

Spot onScopeRim(const Box& scope, double outward, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    const Spot middle = scope.middle();
    return {middle.x + (scope.width / 2 + outward) * std::sin(angle),
            middle.y - (scope.height / 2 + outward) * std::cos(angle)};
}

void drawScopeTube(Svg& svg, const Box& scope) {
    const Spot middle = scope.middle();
    svg.define("<clipPath id=\"scopeEdge\"><ellipse cx=\"" + number(middle.x) + "\" cy=\"" +
               number(middle.y) + "\" rx=\"" + number(scope.width / 2) + "\" ry=\"" +
               number(scope.height / 2) + "\"/></clipPath>\n");
    svg.ellipse(scope, "fill=\"url(#tube)\"");
    drawGraticule(svg, scope);
}

void drawScopeReflections(Svg& svg, const Box& scope) {
    const double depth = scope.width / 45;
    svg.open("clip-path=\"url(#scopeEdge)\"");
    svg.ellipse(Box(scope.x + depth / 3, scope.y + depth / 2, scope.width, scope.height).grownBy(depth / 2),
                "fill=\"none\" stroke=\"#000\" stroke-width=\"" + number(depth * 1.6) +
                    "\" opacity=\".75\" filter=\"url(#softer)\"");
    svg.close();
    const double inset = -scope.width / 28;
    const Spot from = onScopeRim(scope, inset, 276);
    const Spot to = onScopeRim(scope, inset, 354);
    const auto arc = [](double radius, const char* sweep, Spot end) {
        return " A" + number(radius) + ',' + number(radius) + " 0 0 " + sweep + ' ' + number(end.x) + ',' +
               number(end.y);
    };
    const double radius = scope.width / 2 + inset;
    const double flatter = 1.22;
    svg.path('M' + number(from.x) + ',' + number(from.y) + arc(radius, "1", to) +
                 arc(radius * flatter, "0", from) + " z",
             "fill=\"url(#glare)\" filter=\"url(#soften)\"");
}

/// A slice of the tube: its outline as a path.
std::string wedge(Spot middle, double radius, Spot first, Spot last) {
    const auto at = [](Spot spot) { return number(spot.x) + ',' + number(spot.y); };
    return 'M' + at(middle) + " L" + at(first) + " A" + at({radius, radius}) + " 0 0 1 " + at(last) + " z";
}

void drawSweep(Svg& svg, Spot middle, double radius, const Sweep& sweep) {
    constexpr int slice = 2; // degrees
    constexpr double brightest = 0.42;
    const Box tube(middle.x - radius, middle.y - radius, 2 * radius, 2 * radius);
    for (int behind = 0; behind < sweep.trail; behind += slice) {
        const double fade = 1 - double(behind) / sweep.trail;
        const Spot first = onScopeRim(tube, 0, sweep.direction - behind - slice);
        const Spot last = onScopeRim(tube, 0, sweep.direction - behind);
        svg.path(wedge(middle, radius, first, last),
                 "fill=\"#58ff9a\" opacity=\"" + number(brightest * fade * fade) + '"');
    }
    svg.line(middle, onScopeRim(tube, 0, sweep.direction), "stroke=\"#a8ffcb\" stroke-width=\"1.6\"");
}

void drawBlip(Svg& svg, const Blip& blip, double letters) {
    const auto [x, y] = blip.at;
    const double grow = letters / fivePixelCapitals;
    svg.rect({x - 2.5, y - 2.5, 5, 5}, 0, "fill=\"none\" stroke=\"#7dffb0\"");
    svg.line({x + 2.5, y - 2.5}, {x + 7.5, y - 7.5}, "stroke=\"#7dffb0\" opacity=\".8\"");
    svg.text({x + 19 * grow, y - 8}, blip.callsign, letters, 0.3, "fill=\"#7dffb0\"");
    svg.text({x + 12 * grow, y - 9 + 8 * grow}, blip.altitude, letters, 0.3, "fill=\"#7dffb0\"");
}

void drawScopeBezel(Svg& svg, const Box& scope) {
    const Box shadow(scope.x + 3, scope.y + 4, scope.width, scope.height);
    svg.ellipse(shadow.grownBy(bezelOuter + 2),
                "fill=\"none\" stroke=\"#000\" stroke-width=\"8\" opacity=\".55\" filter=\"url(#soft)\"");
    svg.ellipse(scope.grownBy(bezelOuter), "fill=\"url(#ringOut)\"");
    svg.ellipse(scope.grownBy(bezelFace), "fill=\"url(#ringFace)\"");
    svg.ellipse(scope.grownBy(bezelInner), "fill=\"url(#ringIn)\"");
    for (int degrees = 0; degrees < 360; degrees += 2) {
        const bool isTen = degrees % 10 == 0;
        const bool isThirty = degrees % 30 == 0;
        svg.line(onScopeRim(scope, 3, degrees), onScopeRim(scope, isTen ? 7.4 : 5.6, degrees),
                 isThirty ? "stroke=\"#ffb066\" stroke-width=\"1.6\""
                 : isTen  ? "stroke=\"#e6e1ce\" stroke-width=\"1.2\""
                          : "stroke=\"#d9d5c4\" stroke-width=\".8\" opacity=\".7\"");
    }
}

void drawScopeLip(Svg& svg, const Box& scope) {
    constexpr double inside = 1; // hides where the picture's round edge has steps
    constexpr double width = inside + bezelInner - 0.4;
    svg.ellipse(scope.grownBy(width / 2 - inside),
                "fill=\"none\" stroke=\"#07090a\" stroke-width=\"" + number(width) + '"');
}

namespace {

std::string_view bearingColour(int degrees) {
    return degrees % 30 == 0 ? amber : "#d5d1c0";
}

/// On the bezel's face, in place of its marks.
void drawBearingOnFace(Svg& svg, const Box& scope, int degrees, std::string_view figures) {
    constexpr double clearOfLip = 6.6;
    constexpr double halfWidth = 9;
    constexpr double halfHeight = 3.6;
    const Spot place = onScopeRim(scope, clearOfLip, degrees);
    svg.rect({place.x - halfWidth, place.y - halfHeight, 2 * halfWidth, 2 * halfHeight}, 2,
             "fill=\"#1d2225\"");
    drawSmallNumber(svg, place, figures, bearingColour(degrees));
}

} // namespace

void drawBearingNumbers(Svg& svg, const Box& scope, const Box& area) {
    constexpr std::array distances{20.0, 15.0}; // the nearer one where the sheet ends
    for (int degrees = 10; degrees <= 360; degrees += 10) {
        const std::string figures = FormatText("%03d", {long{degrees}});
        const auto* const distance = std::ranges::find_if(
            distances, [&](double outward) { return contains(area, onScopeRim(scope, outward, degrees)); });
        if (distance == distances.end()) {
            drawBearingOnFace(svg, scope, degrees, figures);
        } else {
            drawNumber(svg, onScopeRim(scope, *distance, degrees), figures, bearingColour(degrees));
        }
    }
}

} // namespace ventrel::art
