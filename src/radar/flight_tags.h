// The tag of a flight on the scope: what it says, and the places around the symbol at which it can stand.
//
// Usually the callsign stands above the symbol and the altitude right of it. At any other place both lines
// make one block beside the symbol, to which a thin line leads.

#pragma once

#include <span>
#include <string>

#include "platform/canvas/canvas.h"
#include "platform/text/font.h"
#include "sim/flight.h"
#include "sim/vor.h"

namespace ventrel {

/// The letters of tags, and how high above a flight's radar point a tag of them begins.
struct TagFont {
    FontRequest request;
    int rise;
};
inline constexpr TagFont usualTagFont{{Face::smallFonts, 10, false}, 13};
inline constexpr TagFont largeTagFont{{Face::arial, -13, false}, 17};

struct TagTexts {
    std::string callsign;
    std::string data; ///< the altitude and what else is wanted
};

enum class TagContents { altitude, speedAndDestination };

TagTexts tagTexts(const Flight& flight, std::span<const Vor> vors, TagContents contents);

/// What a tag takes, in pixels.
struct TagMeasures {
    int callsign = 0; ///< width of the first line
    int data = 0;     ///< and of the second
    int rise = 0;     ///< of its letters

    friend bool operator==(const TagMeasures&, const TagMeasures&) = default;
};

TagMeasures measureTag(const TagTexts& texts, const Font& font, const TagFont& letters);

/// The places by number: the usual one, and others, the better ones first.
inline constexpr std::size_t usualTagPlace = 0;
inline constexpr std::size_t tagPlaces = 17;

/// A tag in place.
struct TagStand {
    Point callsign; ///< where the first line begins
    Point data;     ///< and the second
    Rect box;       ///< around both
};

/// `at` is the flight's radar point.
TagStand tagStand(const TagMeasures& tag, Point at, std::size_t place);

/// So far from its flight such a tag reaches at most, whatever its place.
Size tagReach(const TagMeasures& tag);

/// The box that the symbol takes.
constexpr Rect symbolBox(Point at) {
    constexpr Rect around{-4, -4, 4, 4};
    return around.movedBy(at);
}

/// Both lines, and at another than the usual place the line that leads there.
void drawTag(Canvas& canvas, const Font& font, const TagTexts& texts, const TagStand& stand, Colour colour);
void drawTagLeader(Canvas& canvas, Point at, const Rect& box, Colour colour);

} // namespace ventrel
