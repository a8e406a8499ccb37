#include "tools/sim/autopilot.h"

#include <algorithm>
#include <optional>

#include "sim/arrival.h"
#include "tools/sim/outlook.h"

namespace ventrel {

namespace {

/// In the units of the outlook's costs: staying with a plan that is not the best one is worth a little.
constexpr int orderCost = 5;

bool isOnCourse(const Game& game, const Flight& flight) {
    return flight.current().directTarget == flight.destination && !flight.current().hold &&
           flight.lastStep().altitude == exitAltitude &&
           flight.lastStep().cell == game.vor(flight.destination).cell;
}

/// Turns, circles and other altitudes: what is left when the straight way is blocked.
void addEvasions(std::vector<PanelOrder>& orders, const PlanStep& now, int wantedAltitude) {
    for (const int altitude : {now.altitude, now.altitude - 1, now.altitude + 1, wantedAltitude}) {
        PanelOrder order = now;
        order.altitude = std::clamp(altitude, approachAltitude, exitAltitude);
        order.directTarget = DirectTarget::none();
        order.hold = false;
        for (const int turn : {0, -45, 45, -90, 90}) {
            order.heading = turned(now.heading, turn);
            orders.push_back(order);
        }
        order.heading = now.heading;
        order.directTarget = PointIndex{0};
        order.hold = true;
        orders.push_back(order);
    }
}

/// Whether a direct course would get there. From close beside it may circle the point for ever.
bool canGoDirect(const Game& game, Flight flight, const PanelOrder& direct) {
    const Cell exit = game.vor(flight.destination).cell;
    if (areNeighbours(flight.current().cell, exit)) {
        return false;
    }
    PanelOrder there = direct;
    there.directTarget = flight.destination;
    planOrder(game, flight, there);
    return flight.lastStep().cell == exit;
}

/// The orders that would bring the flight to its exit, the best first; straight ahead until there is room to
/// turn.
std::vector<PanelOrder> ordersToExit(const Game& game, const Flight& flight) {
    std::vector<PanelOrder> orders;
    PanelOrder order = flight.current();
    order.hold = false;
    for (const int altitude : {exitAltitude, flight.current().altitude}) {
        order.altitude = altitude;
        order.directTarget = canGoDirect(game, flight, order) ? flight.destination : DirectTarget{};
        orders.push_back(order);
    }
    addEvasions(orders, flight.current(), exitAltitude);
    return orders;
}

/// The orders that would bring the flight to its runway, the best first.
std::vector<PanelOrder> ordersToRunway(const Approach& approach, const Flight& flight) {
    constexpr int roomToDescend = 10; // moves before the descent has to begin at the latest
    const PlanStep& now = flight.current();
    const int moves = approach.moves(now.cell, now.heading);
    const bool descends = moves < now.altitude + roomToDescend;
    PlanStep way = now;
    int turn = 0;
    // A reversal in one order would always go left, so a longer turn is ordered in pieces.
    constexpr int mostTurns = fullCircle / headingStep / 2 - 1;
    for (int i = 0; i < mostTurns; ++i) {
        const int heading = approach.nextHeading(way.cell, way.heading, way.altitude);
        const int nextTurn = heading - way.heading;
        if (i > 0 && nextTurn != turn) {
            break;
        }
        turn = nextTurn;
        way.heading = heading;
        way.cell = stepCell(way.cell, heading);
        way.altitude = std::max(way.altitude - 1, approachAltitude);
    }
    PanelOrder order = now;
    order.heading = way.heading;
    order.altitude = descends ? approachAltitude : now.altitude;
    order.directTarget = DirectTarget::none();
    order.hold = false;
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
        for (const Speed speed : {Speed::normal, Speed::slow, Speed::fast}) {
            result.push_back(order);
            result.back().speed = speed;
        }
    }
    return result;
}

/// The next move and the altitude in the end: what two plans must share to count as the same.
bool fliesAlike(const Flight& a, const Flight& b) {
    const auto next = [](const Flight& flight) {
        return flight.plan[std::min(flight.planIndex + 1, flight.plan.length() - 1)].heading;
    };
    return next(a) == next(b) && a.lastStep().altitude == b.lastStep().altitude &&
           a.current().speed == b.current().speed;
}

bool isRunwayFree(const Game& game, const Flight& departure) {
    return std::none_of(game.flights.begin(), game.flights.end(), [&](const Flight& other) {
        return other.inPlay && other.origin == departure.origin &&
               (other.groundState == GroundState::cleared || other.groundState == GroundState::rolling);
    });
}

/// The order that serves the flight best, or nothing when it does well enough.
std::optional<PanelOrder> bestOrder(const Game& game, const Approach& approach, const Outlook& outlook,
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
        if (changesNothing(game, flight, orders[i])) {
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

Autopilot::Autopilot(const Game& game) {
    for (const Vor& vor : game.vors()) {
        approaches_.emplace_back(vor);
    }
}

void Autopilot::steer(Game& game, Recorder& recorder) const {
    Outlook outlook{game};
    for (const FlightIndex i : game.flightPlaces()) {
        const Flight& flight = game.flight(i);
        if (!flight.inPlay || !flight.isActive() || isSuccess(arrivalOf(game, flight))) {
            continue;
        }
        if (flight.isAirborne()) {
            const Approach& approach = approaches_[flight.destination.place()];
            if (const auto order = bestOrder(game, approach, outlook, i)) {
                recorder.send(game, i, *order);
                outlook.update(i);
            }
        } else if (flight.groundState == GroundState::waiting && isRunwayFree(game, flight) &&
                   outlook.isClear(copyVor(game, flight.origin).cell)) {
            recorder.send(game, i, flight.current());
        }
    }
}

} // namespace ventrel
