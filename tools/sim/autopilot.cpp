#include "tools/sim/autopilot.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>

#include "sim/course_planner.h"
#include "sim/flight_reports.h"
#include "sim/flight_step.h"

namespace ventrel {

namespace {

constexpr int lookAhead = 24; // steps of 15 clock seconds

// What the autopilot wants to avoid, in units of its own.
constexpr int collisionCost = 10000;
constexpr int nearMissCost = 1000;
constexpr int missedGoalCost = 800;
constexpr int lostCost = 1500;
constexpr int orderCost = 5; // staying with a plan that is not the best one is worth a little

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

Forecast forecastOf(const GameState& game, Flight flight, ClockSeconds now) {
    Forecast forecast;
    if (!flight.isOnScope()) {
        return forecast;
    }
    for (Spot& spot : forecast.spots) {
        now += stepInterval;
        if (isDue(flight, now)) {
            const Arrival arrival = arrivalOf(game, flight);
            if (isSuccess(arrival)) {
                break;
            }
            if (isOutsideScope(flight.current().cell())) {
                forecast.cost += lostCost;
                break;
            }
            forecast.cost += arrival == Arrival::none ? 0 : missedGoalCost;
            moveAlongPlan(flight);
        }
        spot = {flight.current().cell(), flight.current().altitude, true};
    }
    return forecast;
}

/// The sooner two flights come together, the more it counts.
int conflictCost(const Forecast& a, const Forecast& b) {
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

bool isOnCourse(const GameState& game, const Flight& flight) {
    return flight.current().directTarget == flight.destination && flight.current().hold == 0 &&
           flight.lastStep().altitude == exitAltitude &&
           flight.lastStep().cell() == game.vor(flight.destination).cell;
}

/// Turns, circles and other altitudes: what is left when the straight way is blocked.
void addEvasions(std::vector<PanelOrder>& orders, const PlanStep& now, int wantedAltitude) {
    for (const int altitude : {now.altitude, now.altitude - 1, now.altitude + 1, wantedAltitude}) {
        PanelOrder order = now;
        order.altitude = std::clamp(altitude, approachAltitude, exitAltitude);
        order.directTarget = noVor;
        order.hold = 0;
        for (const int turn : {0, -45, 45, -90, 90}) {
            order.heading = turned(now.heading, turn);
            orders.push_back(order);
        }
        order.heading = now.heading;
        order.directTarget = 0;
        order.hold = 1;
        orders.push_back(order);
    }
}

/// Whether a direct course would get there. From close beside it may circle the point for ever.
bool canGoDirect(const GameState& game, Flight flight, const PanelOrder& direct) {
    const Cell exit = game.vor(flight.destination).cell;
    if (areNeighbours(flight.current().cell(), exit)) {
        return false;
    }
    planDirect(flight, game.vors, flight.destination, direct.altitude, direct.speed);
    return flight.lastStep().cell() == exit;
}

/// The orders that would bring the flight to its exit, the best first; straight ahead until there is room to
/// turn.
std::vector<PanelOrder> ordersToExit(const GameState& game, const Flight& flight) {
    std::vector<PanelOrder> orders;
    PanelOrder order = flight.current();
    order.hold = 0;
    for (const int altitude : {exitAltitude, flight.current().altitude}) {
        order.altitude = altitude;
        order.directTarget = canGoDirect(game, flight, order) ? flight.destination : noVor;
        orders.push_back(order);
    }
    addEvasions(orders, flight.current(), exitAltitude);
    return orders;
}

/// The orders that would bring the flight to its runway, the best first.
std::vector<PanelOrder> ordersToRunway(const Approach& approach, const Flight& flight) {
    constexpr int roomToDescend = 10; // moves before the descent has to begin at the latest
    const PlanStep& now = flight.current();
    const int moves = approach.moves(now.cell(), now.heading);
    const bool descends = moves < now.altitude + roomToDescend;
    PlanStep way = now;
    int turn = 0;
    // A reversal in one order would always go left, so a longer turn is ordered in pieces.
    constexpr int mostTurns = fullCircle / headingStep / 2 - 1;
    for (int i = 0; i < mostTurns; ++i) {
        const int heading = approach.nextHeading(way.cell(), way.heading, way.altitude);
        const int nextTurn = heading - way.heading;
        if (i > 0 && nextTurn != turn) {
            break;
        }
        turn = nextTurn;
        way.heading = heading;
        way.setCell(stepCell(way.cell(), heading));
        way.altitude = std::max(way.altitude - 1, approachAltitude);
    }
    PanelOrder order = now;
    order.heading = way.heading;
    order.altitude = descends ? approachAltitude : now.altitude;
    order.directTarget = noVor;
    order.hold = 0;
    std::vector<PanelOrder> orders{order};
    for (const int altitude : {now.altitude, now.altitude + 1, now.altitude - 1}) {
        order.altitude = std::clamp(altitude, approachAltitude, exitAltitude);
        orders.push_back(order);
    }
    addEvasions(orders, now, approachAltitude);
    return orders;
}

/// The best orders at the speeds that the flight may fly, still the best first.
std::vector<PanelOrder> withSpeeds(const std::vector<PanelOrder>& orders, const Flight& flight) {
    if (flight.heavy) {
        return orders;
    }
    std::vector<PanelOrder> result;
    for (const PanelOrder& order : orders) {
        for (const int speed : {normalSpeed, slowSpeed, fastSpeed}) {
            result.push_back(order);
            result.back().speed = speed;
        }
    }
    return result;
}

void planOrder(const GameState& game, Flight& flight, const PanelOrder& order) {
    if (order.directTarget == noVor) {
        planTurn(flight, order.heading, order.altitude, order.speed);
    } else if (order.hold != 0) {
        planHold(flight, order.altitude);
    } else {
        planDirect(flight, game.vors, order.directTarget, order.altitude, order.speed);
    }
}

/// A pilot who is told to do what the flight does already keeps to the plan, whatever it holds.
bool changesNothing(PanelOrder order, const PlanStep& now) {
    order.setCell(now.cell());
    return order == now;
}

/// The next move and the altitude in the end: what two plans must share to count as the same.
bool fliesAlike(const Flight& a, const Flight& b) {
    const auto next = [](const Flight& flight) {
        return flight.plan[static_cast<std::size_t>(std::min(flight.planIndex + 1, flight.planLength - 1))]
            .heading;
    };
    return next(a) == next(b) && a.lastStep().altitude == b.lastStep().altitude &&
           a.current().speed == b.current().speed;
}

/// One look at the traffic: what every flight will do unless it is told otherwise.
class Outlook {
public:
    Outlook(const GameState& game, ClockSeconds now) : game_{game}, now_{now} {
        for (const Flight& flight : game.flights) {
            forecasts_.push_back(forecastOf(game, flight, now));
        }
    }

    void update(FlightIndex index) {
        forecasts_[static_cast<std::size_t>(index)] = forecastOf(game_, game_.flight(index), now_);
    }

    /// What it would cost if the flight of that index flew this plan.
    int costOf(FlightIndex index, const Flight& plan) const {
        const Forecast forecast = forecastOf(game_, plan, now_);
        int cost = forecast.cost;
        for (FlightIndex i = 0; i < game_.planeCount(); ++i) {
            if (i != index) {
                cost += conflictCost(forecast, forecasts_[static_cast<std::size_t>(i)]);
            }
        }
        return cost;
    }

    /// Whether nothing is about to fly low near the airport.
    bool isClear(Cell airport) const {
        constexpr int radius = 3;
        constexpr int low = 3;
        constexpr int soon = 8;
        return std::none_of(forecasts_.begin(), forecasts_.end(), [&](const Forecast& forecast) {
            return std::any_of(forecast.spots.begin(), forecast.spots.begin() + soon, [&](const Spot& spot) {
                return spot.isThere && spot.altitude <= low && std::abs(spot.cell.x - airport.x) <= radius &&
                       std::abs(spot.cell.y - airport.y) <= radius;
            });
        });
    }

private:
    const GameState& game_;
    ClockSeconds now_;
    std::vector<Forecast> forecasts_;
};

bool isRunwayFree(const GameState& game, const Flight& departure) {
    return std::none_of(game.flights.begin(), game.flights.end(), [&](const Flight& other) {
        return other.inPlay && other.origin == departure.origin &&
               (other.groundState == GroundState::cleared || other.groundState == GroundState::rolling);
    });
}

/// The order that serves the flight best, or nothing when it does well enough.
std::optional<PanelOrder> bestOrder(const GameState& game, const Approach& approach, const Outlook& outlook,
                                    FlightIndex index) {
    const Flight& flight = game.flight(index);
    const bool lands = game.vor(flight.destination).isAirport;
    const auto orders =
        withSpeeds(lands ? ordersToRunway(approach, flight) : ordersToExit(game, flight), flight);
    Flight best = flight;
    planOrder(game, best, orders.front());
    const bool doesWell = fliesAlike(flight, best) || (!lands && isOnCourse(game, flight));
    int lowest = outlook.costOf(index, flight) + (doesWell ? 0 : orderCost);
    std::optional<PanelOrder> chosen;
    for (std::size_t i = doesWell ? 1 : 0; i < orders.size() && lowest > 0; ++i) {
        if (changesNothing(orders[i], flight.current())) {
            continue;
        }
        Flight plan = flight;
        planOrder(game, plan, orders[i]);
        const int cost = outlook.costOf(index, plan) + (i == 0 ? 0 : orderCost + static_cast<int>(i));
        if (cost < lowest) {
            lowest = cost;
            chosen = orders[i];
        }
    }
    return chosen;
}

} // namespace

Autopilot::Autopilot(const GameState& game) {
    for (const Vor& vor : game.vors) {
        approaches_.emplace_back(vor);
    }
}

void Autopilot::steer(Simulation& simulation, Recorder& recorder) const {
    const GameState& game = simulation.game;
    Outlook outlook{game, recorder.clock()};
    for (FlightIndex i = 0; i < game.planeCount(); ++i) {
        const Flight& flight = game.flight(i);
        if (!flight.inPlay || !flight.isActive() || isSuccess(arrivalOf(game, flight))) {
            continue;
        }
        if (flight.isAirborne()) {
            const Approach& approach = approaches_[static_cast<std::size_t>(flight.destination)];
            if (const auto order = bestOrder(game, approach, outlook, i)) {
                recorder.send(simulation, i, *order);
                outlook.update(i);
            }
        } else if (flight.groundState == GroundState::waiting && isRunwayFree(game, flight) &&
                   outlook.isClear(game.vor(flight.origin).cell)) {
            recorder.send(simulation, i, flight.current());
        }
    }
}

} // namespace ventrel
