// A look a little ahead at the traffic: where every flight will be unless it is told otherwise, and what
// another plan of one of them would cost.

#pragma once

#include <array>
#include <vector>

#include "sim/game.h"

namespace ventrel {

/// The cost of a plan counts what should not happen, in units of its own: a collision about 10000, a lost
/// flight 1500, a near miss about 1000, a wrong arrival 800.
class Outlook {
public:
    /// As of the game's last step. The game outlives the outlook.
    explicit Outlook(const Game& game);

    /// Looks again at a flight that has been given another plan.
    void update(FlightIndex index);

    /// What it would cost if the flight of that index flew this plan.
    int costOf(FlightIndex index, const Flight& plan) const;

    /// Whether nothing is about to fly low near the airport.
    bool isClear(Cell airport) const;

private:
    static constexpr int lookAhead = 24; // steps of 15 clock seconds

    /// Where a flight will be after one of the coming steps.
    struct Spot {
        Cell cell;
        int altitude = 0;
        bool isThere = false; ///< airborne and not yet finished
    };

    struct Forecast {
        std::array<Spot, lookAhead> spots{};
        int cost = 0; ///< of what the flight does wrong by itself
    };

    Forecast forecastOf(Flight flight) const;
    static int conflictCost(const Forecast& a, const Forecast& b);

    const Game& game_;
    std::vector<Forecast> forecasts_; // by flight
};

} // namespace ventrel
