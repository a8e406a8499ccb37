// The parts that the console is built from. Each is drawn with the materials of assets/art/materials.svgpart.

#pragma once

#include "tools/art/console_layout.h"
#include "tools/art/svg.h"

namespace ventrel::art {

/// A sheet of painted metal that stands proud of the console.
void drawModule(Svg& svg, const Box& area, std::string_view paint);

/// A dark recess with a lip; its floor is exactly `area`.
void drawWell(Svg& svg, const Box& area, std::string_view floor = "url(#well)");

/// A round recess whose floor is exactly `face`.
void drawRoundWell(Svg& svg, const Box& face);

void drawKnob(Svg& svg, const Knob& knob);
void drawVent(Svg& svg, const Vent& vent);
void drawPlate(Svg& svg, const Plate& plate);
void drawHandle(Svg& svg, const Box& area);

/// A raised key with a triangle that points up or down.
void drawArrowKey(Svg& svg, const Box& area, bool up);

/// Words engraved into metal: dark, with a light lower edge.
void drawEngraved(Svg& svg, Spot middle, std::string_view words, double size, double spacing);

/// Words printed on metal: light or coloured, with a dark upper edge.
void drawPrinted(Svg& svg, Spot middle, std::string_view words, double size, double spacing,
                 std::string_view colour);

inline constexpr std::string_view ivory = "#e9e4d2";
inline constexpr std::string_view amber = "#ffb570";

} // namespace ventrel::art
