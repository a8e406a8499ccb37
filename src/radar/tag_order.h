// Which of its places each tag stands at, so that tags neither cover each other nor leave the scope: an aid.
//
// A tag stays where it is for as long as that is not much worse than another place, and nothing changes while
// no flight moves; what is chosen depends on nothing but the flights and the places before.

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "radar/flight_tags.h"
#include "sim/table_index.h"

namespace ventrel {

struct TaggedFlight {
    FlightIndex flight;
    Point at; ///< its radar point
    TagMeasures tag;
    bool hasBracket = false; ///< under its symbol, which tags leave alone

    friend bool operator==(const TaggedFlight&, const TaggedFlight&) = default;
};

/// What tags give way to besides each other.
struct TagSurroundings {
    Rect scope;                  ///< the box around its ellipse
    std::vector<Rect> landmarks; ///< texts and marks of the map
};

struct TagOrder {
    std::vector<TaggedFlight> flights; ///< as they were arranged, in table order
    std::vector<std::uint8_t> places;  ///< by the number of the flight
};

/// The flight's place; the usual one where none has been chosen.
std::size_t tagPlaceOf(const TagOrder& order, FlightIndex flight);

/// Finds places for the tags of these flights, which come in table order.
void arrangeTags(TagOrder& order, std::vector<TaggedFlight> flights, const TagSurroundings& around);

} // namespace ventrel
