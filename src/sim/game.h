// A game: one shift in an airspace, from its first second to its end. Everything that it is made of lies in
// one value, which can be copied, kept and played on.
//
//     const AirspacePtr airspace = loadAirport("apt/new_york8.apt").value();
//     Game game{airspace, {.skill = Skill::hard}, RandomGenerator{7}};
//     while (step(game)) {
//         for (const FlightIndex flight : game.flightPlaces()) {
//             PanelOrder order = game.flight(flight).current();
//             order.altitude = exitAltitude;
//             if (judgeOrder(game, flight, order) == OrderVerdict::accepted) {
//                 executeOrder(game, flight, order);
//             }
//         }
//     }

#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "base/random.h"
#include "sim/airspace.h"
#include "sim/alert_lamps.h"
#include "sim/flight.h"
#include "sim/flight_step.h"
#include "sim/message_queue.h"
#include "sim/orders.h"
#include "sim/shift_setup.h"

namespace ventrel {

/// One cloud of the random cloud cover. Clouds only hide what lies under them.
struct Cloud {
    bool visible = true;     ///< until it has drifted off the radar
    bool isShown = false;    ///< it has appeared; drawn while it is visible, too
    ClockSeconds appearAt{}; ///< it is shown once the clock is past this
    Point start{};           ///< radar pixels, may be outside the picture
    Point position{};        ///< where it is now
    Size size{};             ///< of its picture
    int driftHeading = 0;    ///< degrees
    int image = 0;           ///< number of its picture
};

enum class Phase {
    idle,     ///< no shift has begun, or it has been put away
    running,  ///< the clock runs and orders are heard
    rings,    ///< over by a collision, whose rings are still spreading
    lastLine, ///< over, and its last line still on the ticker
};

struct Game {
    /// Idle, without an airspace.
    Game() = default;
    /// Sets a shift up: settles the runways in use, then the schedule, all drawn from `random`. It runs, and
    /// its first step is the one at clock 0.
    Game(AirspacePtr in, const ShiftSetup& setup, RandomGenerator chance);

    AirspacePtr airspace = std::make_shared<const Airspace>();
    ScopeLayout layout = smallLayout;
    /// The map points with cells and runways as in use, the same for all copies of a game.
    std::shared_ptr<const std::vector<Vor>> points = std::make_shared<const std::vector<Vor>>();
    std::vector<Flight> flights; ///< 1 to 99
    std::vector<Cloud> clouds;
    std::string controllerName;
    ClockSeconds shiftLength;
    bool cloudCover = false; ///< clouds are shown and drift
    int bonus = 0;           ///< added when the shift ends normally
    int possibleScore = 0;

    RandomGenerator random; ///< of all chance
    Phase phase = Phase::idle;
    ClockSeconds clock;
    ClockSeconds lastStepTime = beforeFirstStep; ///< of the last step that acted
    LampLevel litLamp = LampLevel::none;
    MessageQueue messages; ///< that wait for the ticker; filled and emptied by whoever shows it
    int score = 0;         ///< a penalty never leaves it below 0
    int freeOrders = 0;    ///< orders that still cost nothing
    int listedCount = 0;   ///< flights in play that are active or announced, as of the last step
    /// The flights of a mid-air collision: the one that stood in the cell, then the one that moved.
    std::array<FlightIndex, 2> collisionFlights{};

    bool isRunning() const { return phase == Phase::running; }

    Flight& flight(FlightIndex index) { return flights[index.place()]; }
    const Flight& flight(FlightIndex index) const { return flights[index.place()]; }
    int planeCount() const { return static_cast<int>(flights.size()); }
    TablePlaces<FlightIndex> flightPlaces() const { return TablePlaces<FlightIndex>{flights.size()}; }

    std::span<const Vor> vors() const { return *points; }
    const Vor& vor(PointIndex index) const { return (*points)[index.place()]; }
    int vorCount() const { return static_cast<int>(points->size()); }
    TablePlaces<PointIndex> vorPlaces() const { return TablePlaces<PointIndex>{points->size()}; }
};

/// The map point by value; an empty one for none.
Vor copyVor(const Game& game, std::optional<PointIndex> index);

/// When the first of the flights in play becomes active; 30000 when none is left.
ClockSeconds firstScheduledTime(const Game& game);

} // namespace ventrel
