#include "tools/art/lettering.h"

#include <cmath>

#include "tools/art/console_parts.h"

namespace ventrel::art {

void drawPolished(Svg& svg, const NameLook& look, std::string_view words) {
    const auto [base, size, spacing] = look;
    const double grow = size / 68;
    svg.define("<linearGradient id=\"letters\" gradientUnits=\"userSpaceOnUse\" x1=\"0\" y1=\"" +
               number(base.y - 50 * grow) + "\" x2=\"0\" y2=\"" + number(base.y + 2 * grow) +
               "\"><stop offset=\"0\" stop-color=\"#ffffff\"/><stop offset=\".5\" "
               "stop-color=\"#d6dee0\"/><stop offset=\".52\" stop-color=\"#9aa6aa\"/><stop offset=\"1\" "
               "stop-color=\"#eef2f2\"/></linearGradient>\n");
    svg.text({base.x + 3 * grow, base.y + std::round(4 * grow)}, words, size, spacing,
             "fill=\"#000\" opacity=\".55\" filter=\"url(#soften)\"");
    svg.text({base.x + 1, base.y + 1}, words, size, spacing, "fill=\"#14191b\"");
    svg.text(base, words, size, spacing, "fill=\"url(#letters)\"");
}

void drawName(Svg& svg, const NameLook& look) {
    const auto [base, size, spacing] = look;
    const double grow = size / 68;
    const double half = std::round(98 * grow);
    const double rule = base.y + std::round(17 * grow);
    drawPolished(svg, look, "Ventrel");
    svg.line({base.x - half, rule - 0.5}, {base.x + half, rule - 0.5}, "stroke=\"#0c0f10\" opacity=\".7\"");
    svg.line({base.x - half, rule + 0.5}, {base.x + half, rule + 0.5}, "stroke=\"#ffb066\"");
    drawPrinted(svg, {base.x, base.y + std::round(34 * grow)}, "APPROACH CONTROL SIMULATOR", 11.6 * grow,
                1.25 * grow, ivory);
}

} // namespace ventrel::art
