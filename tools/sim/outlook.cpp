#include "tools/sim/outlook.h"

#include <algorithm>
#include <cstdlib>

#include "sim/arrival.h"

namespace ventrel {

namespace {

constexpr int collisionCost = 10000;
constexpr int nearMissCost = 1000;
constexpr int missedGoalCost = 800;
constexpr int lostCost = 1500;

} // namespace

Outlook::Outlook(const Game& game) : game_{game} {
    for (const Flight& flight : game.flights) {
        forecasts_.push_back(forecastOf(flight));
    }
}

void Outlook::update(FlightIndex index) {
    forecasts_[index.place()] = forecastOf(game_.flight(index));
}

int Outlook::costOf(FlightIndex index, const Flight& plan) const {
    const Forecast forecast = forecastOf(plan);
    int cost = forecast.cost;
    for (const FlightIndex i : game_.flightPlaces()) {
        if (i != index) {
            cost += conflictCost(forecast, forecasts_[i.place()]);
        }
    }
    return cost;
}

bool Outlook::isClear(Cell airport) const {
    constexpr int radius = 3;
    constexpr int low = 3;
    constexpr int soon = 8;
    return std::ranges::none_of(forecasts_, [&](const Forecast& forecast) {
        return std::any_of(forecast.spots.begin(), forecast.spots.begin() + soon, [&](const Spot& spot) {
            return spot.isThere && spot.altitude <= low && std::abs(spot.cell.x - airport.x) <= radius &&
                   std::abs(spot.cell.y - airport.y) <= radius;
        });
    });
}

Outlook::Forecast Outlook::forecastOf(Flight flight) const {
    Forecast forecast;
    if (!flight.isOnScope()) {
        return forecast;
    }
    ClockSeconds time = game_.clock;
    for (Spot& spot : forecast.spots) {
        time += stepInterval;
        if (isDue(flight, time)) {
            const Arrival arrival = arrivalOf(game_, flight);
            if (isSuccess(arrival)) {
                break;
            }
            if (isOutsideScope(flight.current().cell)) {
                forecast.cost += lostCost;
                break;
            }
            forecast.cost += arrival == Arrival::none ? 0 : missedGoalCost;
            moveAlongPlan(flight);
        }
        spot = {flight.current().cell, flight.current().altitude, true};
    }
    return forecast;
}

/// The sooner two flights come together, the more it counts.
int Outlook::conflictCost(const Forecast& a, const Forecast& b) {
    for (int i = 0; i < lookAhead; ++i) {
        const Spot& here = a.spots[static_cast<std::size_t>(i)];
        const Spot& there = b.spots[static_cast<std::size_t>(i)];
        if (here.isThere && there.isThere && here.altitude == there.altitude &&
            areNeighbours(here.cell, there.cell)) {
            const int cost = here.cell == there.cell ? collisionCost : nearMissCost;
            return cost - cost / (2 * lookAhead) * i;
        }
    }
    return 0;
}

} // namespace ventrel
