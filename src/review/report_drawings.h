// The drawings of a shift's report: the score over time, the map of near misses, and earlier shifts as bars.

#pragma once

#include "review/report_page.h"

namespace ventrel {

namespace report_look {

inline constexpr Colour paper = Colour::rgb(0xFF, 0xFF, 0xFF);
inline constexpr Colour ink = Colour::rgb(0x18, 0x1C, 0x20);
inline constexpr Colour faint = Colour::rgb(0x70, 0x76, 0x7C);
inline constexpr Colour rule = Colour::rgb(0xC4, 0xC8, 0xCC);
inline constexpr Colour stripe = Colour::rgb(0xF1, 0xF4, 0xF4);
inline constexpr Colour scope = Colour::rgb(0x0C, 0x24, 0x1C);
inline constexpr Colour scopeRing = Colour::rgb(0x2C, 0x54, 0x44);
inline constexpr Colour amber = Colour::rgb(0xF0, 0x98, 0x30);
inline constexpr Colour good = Colour::rgb(0x18, 0x70, 0x38);
inline constexpr Colour goodArea = Colour::rgb(0xD4, 0xE8, 0xDA);
inline constexpr Colour bad = Colour::rgb(0xB8, 0x18, 0x18);

} // namespace report_look

inline TextStyle reportInk(Colour colour) {
    return {colour, {}};
}

/// A line of text that ends at the point's x.
void drawRightText(Canvas& canvas, const Font& font, Point topRight, std::string_view text, Colour colour);

void paintScoreChart(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts, const Rect& place);
void paintNearMissMap(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts, const Rect& place);
void paintHistory(Canvas& canvas, const ReportFonts& fonts, const ReportFacts& facts, const Rect& place);

} // namespace ventrel
