// The parts that the console is built from. Each is drawn with the materials of assets/art/materials.svgpart.

#pragma once

#include "tools/art/console_fittings.h"
#include "tools/art/svg.h"

namespace ventrel::art {

/// The brushed metal of the whole picture, with its edges.
void drawSheet(Svg& svg, Size size);

/// Light that falls from the top left over the metal. Wells and glass are drawn after it.
void drawLight(Svg& svg, Size size);
/// Only makes it known as "light", for parts that are drawn one by one.
void defineLight(Svg& svg, Size size);

/// A sheet of painted metal that stands proud of the console.
void drawModule(Svg& svg, const Box& area, std::string_view paint);

/// A dark recess with a lip of `lip` pixels around it; its floor is exactly `area`.
void drawWell(Svg& svg, const Box& area, std::string_view floor = "url(#well)", double lip = 2);

/// A round recess whose floor is exactly `face`.
void drawRoundWell(Svg& svg, const Box& face);

void drawKnob(Svg& svg, const Knob& knob);
void drawVent(Svg& svg, const Vent& vent);
void drawPlate(Svg& svg, const Plate& plate);
void drawHandle(Svg& svg, const Box& area);

/// A raised key that takes exactly `area`.
void drawKey(Svg& svg, const Box& area);
/// The same a pixel smaller on every side, in a dark gap, with a triangle that points up or down.
void drawArrowKey(Svg& svg, const Box& area, bool up);

/// Sizes of letters whose capitals are exactly five and six pixels tall.
inline constexpr double fivePixelCapitals = 7.27;
inline constexpr double sixPixelCapitals = 8.72;

/// Words engraved into metal: dark, with a light lower edge.
void drawEngraved(Svg& svg, Spot middle, std::string_view words, double spacing);

/// Words printed on metal: light or coloured, with a dark upper edge.
void drawPrinted(Svg& svg, Spot middle, std::string_view words, double size, double spacing,
                 std::string_view colour);

/// A printed number whose figures all stand on whole pixels. `middle` is that of its figures.
void drawNumber(Svg& svg, Spot middle, std::string_view figures, std::string_view colour);
/// The same a pixel lower, for places where there is no more room.
void drawSmallNumber(Svg& svg, Spot middle, std::string_view figures, std::string_view colour);

inline constexpr std::string_view ivory = "#f0ebda";
inline constexpr std::string_view amber = "#ffb570";

} // namespace ventrel::art
