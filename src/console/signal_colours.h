// The colours that tell something on the console: what a flight is, and what has happened to it. Read by the
// scope, the strips and the ticker.
//
// There are two sets of them. The second one is for the one man in twelve who has little or no sense of red
// or of green, and for those without one of blue: whatever must be told apart looks apart to all eyes.

#pragma once

#include <optional>

#include "base/colour.h"

namespace ventrel {

struct SignalColours {
    /// Of symbols, tags and strips; none: those that the airspace chooses.
    std::optional<Colour> flight;
    std::optional<Colour> selected;
    Colour nearMiss;
    Colour success;
    Colour announced; ///< of strips alone

    /// Of the rings around flights.
    Colour nearMissRing;
    Colour successRing;
    Colour failureRing;
    Colour conflictRing; ///< of those that will come too close

    /// Of the ticker's lines.
    Colour successLine;
    Colour troubleLine;
    Colour emergencyLine;
    Colour informationLine;
};

inline constexpr SignalColours usualSignals{
    .flight = {},
    .selected = {},
    .nearMiss = Colour::rgb(255, 0, 0),
    .success = Colour::rgb(0, 220, 0),
    .announced = Colour::rgb(164, 164, 164),
    .nearMissRing = Colour::rgb(255, 0, 0),
    .successRing = Colour::rgb(0, 255, 0),
    .failureRing = Colour::rgb(255, 255, 0),
    .conflictRing = Colour::rgb(0xE0, 0xFB, 0xFF),
    .successLine = Colour::rgb(0, 200, 0),
    .troubleLine = Colour::rgb(220, 220, 0),
    .emergencyLine = Colour::rgb(220, 0, 0),
    .informationLine = Colour::rgb(36, 190, 188),
};

namespace clear {

inline constexpr Colour mint = Colour::rgb(0x40, 0xFF, 0x9F);
inline constexpr Colour amber = Colour::rgb(0xFF, 0xD4, 0x00);
inline constexpr Colour coral = Colour::rgb(0xE8, 0x48, 0x4C);
inline constexpr Colour azure = Colour::rgb(0x5A, 0x94, 0xF0);
inline constexpr Colour ochre = Colour::rgb(0xCB, 0x7B, 0x00);
inline constexpr Colour ice = Colour::rgb(0xE0, 0xFB, 0xFF);
inline constexpr Colour grey = Colour::rgb(164, 164, 164);

} // namespace clear

inline constexpr SignalColours clearSignals{
    .flight = clear::mint,
    .selected = clear::amber,
    .nearMiss = clear::coral,
    .success = clear::azure,
    .announced = clear::grey,
    .nearMissRing = clear::coral,
    .successRing = clear::azure,
    .failureRing = clear::ochre,
    .conflictRing = clear::ice,
    .successLine = clear::azure,
    .troubleLine = clear::ochre,
    .emergencyLine = clear::coral,
    .informationLine = clear::ice,
};

/// Those of the option, whose value this is.
constexpr const SignalColours& signalColours(int aidColours) {
    return aidColours != 0 ? clearSignals : usualSignals;
}

} // namespace ventrel
