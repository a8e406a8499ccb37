// A round scope: its glass with the graticule, and the bezel with the bearings around it.

#pragma once

#include "tools/art/svg.h"

namespace ventrel::art {

/// The dark tube that fills exactly `scope`, with its graticule. From here on the drawing can be clipped to
/// the tube by its path "scopeEdge".
void drawScopeTube(Svg& svg, const Box& scope);

/// What lies over the picture on the tube: the bezel's shadow, and the room's light in the glass.
void drawScopeReflections(Svg& svg, const Box& scope);

/// The beam at one moment: where it points, and how many degrees its afterglow reaches back.
struct Sweep {
    int direction = 0;
    int trail = 0;
};
void drawSweep(Svg& svg, Spot middle, double radius, const Sweep& sweep);

/// A flight on the tube, with its tag to its upper right.
struct Blip {
    Spot at;
    std::string_view callsign;
    std::string_view altitude;
};
/// Its letters are of that size; clear letters have capitals of whole pixels (console_parts.h).
void drawBlip(Svg& svg, const Blip& blip, double letters);

/// The bezel around it, with a mark every two degrees.
void drawScopeBezel(Svg& svg, const Box& scope);

/// The dark lip that closes the glass, so that whatever picture it shows ends at a clean edge.
void drawScopeLip(Svg& svg, const Box& scope);

/// The numbers of the bearings every ten degrees: outside the bezel where they fall inside `area`, else on
/// it.
void drawBearingNumbers(Svg& svg, const Box& scope, const Box& area);

/// The point `outward` pixels outside the scope's edge; 0 degrees is up.
Spot onScopeRim(const Box& scope, double outward, double degrees);

} // namespace ventrel::art
