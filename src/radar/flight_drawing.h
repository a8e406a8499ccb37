// The flights on the scope: symbol, callsign, altitude, alert circle, and the line of the queued path.

#pragma once

#include <optional>
#include <span>

#include "console/radar_layout.h"
#include "console/signal_colours.h"
#include "options/options.h"
#include "platform/canvas/canvas.h"
#include "platform/text/font.h"
#include "radar/flight_tags.h"
#include "sim/airspace.h"
#include "sim/flight.h"

namespace ventrel {

struct FlightColours {
    Colour flight;
    Colour selected;
    Colour route;
    const SignalColours& signals;
};

/// Those that the airport file chooses, or the player.
FlightColours flightColours(const Airspace& airspace, const Options& options);

/// A part of a colour on the way from black.
constexpr Colour dimmed(Colour colour, unsigned part, unsigned whole) {
    return Colour::rgb(colour.red() * part / whole, colour.green() * part / whole,
                       colour.blue() * part / whole);
}

/// The colour of a flight's symbol and tags: an alert's before the selection's.
Colour tagColour(const Flight& flight, const FlightColours& colours);

/// The box that holds a flight's symbol and tags, redrawn while a new flight blinks.
Rect blinkBox(Point radarPoint);

/// Where a click hits the flight.
Rect hitBox(Point radarPoint);

/// How a flight's tag is drawn.
struct TagLook {
    const Font& font;
    TagFont letters = usualTagFont; ///< those of the font
    TagContents contents = TagContents::altitude;
    std::span<const Vor> vors = {}; ///< among which its destination is, where the contents ask for it
    std::size_t place = usualTagPlace;
};

/// Symbol and tag.
void drawFlight(Canvas& canvas, const RadarLayout& layout, const Flight& flight, const FlightColours& colours,
                const TagLook& look);

/// The whole queued path of every flight on the scope that steers for a map point.
void drawRoutes(Canvas& canvas, const RadarLayout& layout, std::span<const Flight> flights, Colour colour);

/// The first flight, in table order, at a radar pixel: active ones, and announced ones at the cell where they
/// will appear. `listPlace` is its place among those, from 1.
struct FlightHit {
    FlightIndex flight;
    int listPlace = 0;
};
std::optional<FlightHit> flightAt(const RadarLayout& layout, std::span<const Flight> flights, Point point);

} // namespace ventrel
