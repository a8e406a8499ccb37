#include "tools/art/emblem.h"

#include "tools/art/scope_art.h"

namespace ventrel::art {

namespace {

/// 100 long, around its middle.
constexpr std::string_view silhouette =
    "M0,-50 C2.6,-49 4.6,-43.5 4.6,-36 V-16.5 L12.4,-11.2 V-16 Q12.4,-18 15,-18 Q17.6,-18 17.6,-16 V-7.6 "
    "L46,11.6 Q47.4,12.8 47.4,17.4 L17,7.4 L4.6,5.6 C4.6,14 4,23 3.2,30 L16,38.2 Q17,39 17,42.4 L2,39.2 "
    "Q1.2,46 0,48.6 Q-1.2,46 -2,39.2 L-17,42.4 Q-17,39 -16,38.2 L-3.2,30 C-4,23 -4.6,14 -4.6,5.6 L-17,7.4 "
    "L-47.4,17.4 Q-47.4,12.8 -46,11.6 L-17.6,-7.6 V-16 Q-17.6,-18 -15,-18 Q-12.4,-18 -12.4,-16 V-11.2 "
    "L-4.6,-16.5 V-36 C-4.6,-43.5 -2.6,-49 0,-50 z";

std::string stroke(std::string_view colour, double width) {
    return "fill=\"none\" stroke=\"" + std::string(colour) + "\" stroke-width=\"" + number(width) + '"';
}

} // namespace

void drawAirlinerFromAbove(Svg& svg, Spot middle, double length, std::string_view look) {
    svg.open("transform=\"translate(" + number(middle.x) + ' ' + number(middle.y) + ") scale(" +
             number(length / 100) + ")\"");
    svg.path(silhouette, look);
    svg.close();
}

void drawEmblem(Svg& svg, const EmblemLook& look) {
    const auto& [middle, radius, ink, accent] = look;
    const Box centre(middle.x, middle.y, 0, 0);
    svg.circle(middle, radius, stroke(ink, radius * 0.045));
    svg.circle(middle, radius * 0.80, stroke(ink, radius * 0.016));
    std::string tens;
    std::string thirties;
    for (int degrees = 0; degrees < 360; degrees += 10) {
        const bool isThirty = degrees % 30 == 0;
        (isThirty ? thirties : tens) += moved(onScopeRim(centre, radius * (isThirty ? 0.84 : 0.90), degrees),
                                              onScopeRim(centre, radius * 0.96, degrees));
    }
    svg.path(tens, stroke(ink, radius * 0.017));
    svg.path(thirties, stroke(accent, radius * 0.034));
    drawAirlinerFromAbove(svg, {middle.x, middle.y + radius * 0.02}, radius * 1.36,
                          "fill=\"" + std::string(ink) + '"');
}

} // namespace ventrel::art
