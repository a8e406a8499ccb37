// One map point of an airspace: a VOR fix through which flights leave, an airport with its one runway, or
// both.
//
// Decoded from an airport file (airport_file.h). Its cell and its runway in use are settled when the airport
// is loaded for a shift; everything else stays as the file has it.

#pragma once

#include <string>

#include "base/colour.h"
#include "base/geometry.h"

namespace ventrel {

struct Vor {
    std::string ident;       ///< short name, at most 3 characters when written by the airspace tool
    std::string description; ///< long name
    Cell cell;               ///< computed from `pixel` for the cell size in use
    Point pixel;             ///< position on the radar picture
    bool isExit = false;     ///< flights may be routed out of the airspace here
    bool isAirport = false;  ///< flights depart from and land here
    bool isMajor = false;    ///< a favoured destination; only the traffic of major airports may be heavy
    int runwayHeading = 0;   ///< degrees; a landing flight must fly it, a departing flight takes off on it
    Colour labelColour;
    Colour symbolColour;
    Colour runwayColour;
    /// Where the label stands. A VOR: 0 above, 1 left, 2 right, else below the symbol.
    /// An airport: 0 upper left, 1 upper right, 2 lower left, else lower right.
    int labelPlace = 0;
    int reverseChance = 0; ///< percent chance that a shift uses the runway in the opposite direction

    friend bool operator==(const Vor&, const Vor&) = default;
};

} // namespace ventrel
