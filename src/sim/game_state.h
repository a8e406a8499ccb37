// The state of the running game: the loaded airport, the shift's flights and clouds, and the score.
//
// The shell owns one; a tool or a test makes its own. Loading an airport fills the first part, setting up a
// shift the rest; from then on only the flight step and the orders change it.

#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "base/file_buffer.h"
#include "sim/airport_file.h"
#include "sim/flight.h"

namespace ventrel {

/// One cloud of the random cloud cover. Clouds only hide what lies under them.
struct Cloud {
    bool visible = true;       ///< until it has drifted off the radar
    ClockSeconds appearAt = 0; ///< when it is first drawn
    Point start;               ///< radar pixels, may be outside the picture
    Point position;            ///< where it is now
    int driftHeading = 0;      ///< degrees
    int image = 0;             ///< number of its picture
};

struct GameState {
    FileBuffer file;       ///< the airport file, while an airport is loaded
    AirportHeader airport; ///< its name and colours
    std::vector<Vor> vors; ///< its map points, with cells and runways as in use
    ScopeLayout layout = smallLayout;

    std::vector<Flight> flights; ///< 1 to 99 once a shift is set up
    std::vector<Cloud> clouds;
    ClockSeconds shiftLength = 0;
    int score = 0; ///< a penalty never leaves it below 0
    int bonus = 0; ///< added when the shift ends normally
    int possibleScore = 0;
    int freeOrders = 0; ///< orders that still cost nothing
    std::string controllerName;

    bool gameRunning = false;
    ClockSeconds lastStepTime = 0; ///< of the last step that acted; not reset between games
    int listedCount = 0;           ///< flights in play that are active or announced, as of that step
    /// The flights of a mid-air collision: the one that stood in the cell, then the one that moved.
    std::array<FlightIndex, 2> collisionFlights{};

    Flight& flight(FlightIndex index) { return flights[static_cast<std::size_t>(index)]; }
    const Flight& flight(FlightIndex index) const { return flights[static_cast<std::size_t>(index)]; }
    const Vor& vor(VorIndex index) const { return vors[static_cast<std::size_t>(index)]; }
    int planeCount() const { return static_cast<int>(flights.size()); }
    int vorCount() const { return static_cast<int>(vors.size()); }
    /// The picture embedded in the airport file, for the radar to decode.
    std::span<const std::byte> mapPicture() const;
};

/// The map point by value; an empty one for `noVor`.
Vor copyVor(const GameState& game, VorIndex index);

/// When the first of the flights in play becomes active; 30000 when none is left.
ClockSeconds firstScheduledTime(const GameState& game);

} // namespace ventrel
