#include "controller/controller.h"

#include <algorithm>
#include <functional>
#include <optional>

#include "controller/choices.h"
#include "controller/traffic.h"
#include "sim/arrival.h"

namespace ventrel {

namespace {

/// In points: a plan is kept while another is not better by more than this.
constexpr int orderCost = 5;
/// What a plan that does not lead home loses by that alone.
constexpr int offCourse = 12;
/// Free orders for each flight of the shift that is still to be handled; with fewer, each one missing makes
/// an order dearer.
constexpr int plentyPerFlight = 4;
constexpr int scarcity = 8;
/// With less than this to lose a departure may go; it can be told more once it is in the air.
constexpr int acceptableDeparture = 50;

bool isOnCourse(const Game& game, const Flight& flight) {
    return flight.current().directTarget == flight.destination && !flight.current().hold &&
           flight.lastStep().altitude == exitAltitude &&
           flight.lastStep().cell == game.vor(flight.destination).cell;
}

int costOfOrder(const Game& game) {
    const auto left = static_cast<int>(std::ranges::count_if(game.flights, &Flight::inPlay));
    return orderCost + scarcity * std::max(plentyPerFlight - game.freeOrders / std::max(left, 1), 0);
}

/// Whether two plans will be flown alike, move by move.
bool isSameWay(const Flight& a, const Flight& b) {
    const auto rest = [](const Flight& flight) {
        return flight.plan.steps().subspan(static_cast<std::size_t>(flight.planIndex));
    };
    return std::ranges::equal(rest(a), rest(b), [](const PlanStep& x, const PlanStep& y) {
        return x.heading == y.heading && x.altitude == y.altitude && x.speed == y.speed;
    });
}

/// The next move, the altitude in the end and the speed: what two plans must share to count as the same.
bool fliesAlike(const Flight& a, const Flight& b) {
    const auto next = [](const Flight& flight) {
        return flight.plan[std::min(flight.planIndex + 1, flight.plan.length() - 1)].heading;
    };
    return next(a) == next(b) && a.lastStep().altitude == b.lastStep().altitude &&
           a.current().speed == b.current().speed;
}

Flight planned(const Game& game, Flight flight, const PanelOrder& order) {
    planOrder(game, flight, order);
    return flight;
}

/// Whether the flight is on its best way, or on one that is as good.
bool doesWell(const Game& game, const Flight& flight, const Approach& approach) {
    if (game.vor(flight.destination).isAirport) {
        return fliesAlike(flight, planned(game, flight, bestWayToRunway(approach, flight)));
    }
    return isOnCourse(game, flight) || fliesAlike(flight, planned(game, flight, bestWayToExit(game, flight)));
}

/// The order that serves the flight best, or nothing when it does well enough. `loss` is what it will lose
/// without one.
std::optional<PanelOrder> bestOrder(const Game& game, const Approach& approach, const Traffic& traffic,
                                    FlightIndex index, int loss) {
    const Flight& flight = game.flight(index);
    int lowest = loss + (doesWell(game, flight, approach) ? 0 : offCourse);
    if (lowest <= orderCost) {
        return std::nullopt; // no order costs less
    }
    const int perOrder = costOfOrder(game);
    const std::vector<Choice> choices = game.vor(flight.destination).isAirport
                                            ? choicesToRunway(approach, flight)
                                            : choicesToExit(game, flight);
    std::optional<PanelOrder> chosen;
    for (const Choice& choice : choices) {
        const int floor = choice.detour == 0 ? orderCost : choice.detour + perOrder;
        if (floor >= lowest || changesNothing(game, flight, choice.order) ||
            judgeOrder(game, index, choice.order) != OrderVerdict::accepted) {
            continue;
        }
        const Flight other = planned(game, flight, choice.order);
        if (isSameWay(flight, other)) {
            continue;
        }
        const int cost = floor + traffic.lossOf(index, other);
        if (cost < lowest) {
            lowest = cost;
            chosen = choice.order;
        }
    }
    return chosen;
}

bool mayTakeOff(const Game& game, const Traffic& traffic, FlightIndex index) {
    Flight cleared = game.flight(index);
    cleared.groundState = GroundState::cleared;
    return traffic.conflictsOf(index, cleared) < acceptableDeparture;
}

struct Loss {
    int points = 0;
    FlightIndex flight;
};

/// Those that can be told something, the ones with most to lose first.
std::vector<Loss> worstFirst(const Game& game, const Traffic& traffic) {
    const std::vector<int> losses = traffic.losses();
    std::vector<Loss> list;
    for (const FlightIndex i : game.flightPlaces()) {
        const Flight& flight = game.flight(i);
        const bool hears = flight.isAirborne() || flight.groundState == GroundState::waiting;
        if (flight.inPlay && flight.isActive() && hears && !isSuccess(arrivalOf(game, flight))) {
            list.push_back({losses[i.place()], i});
        }
    }
    std::ranges::stable_sort(list, std::ranges::greater{}, &Loss::points);
    return list;
}

} // namespace

Controller::Controller(const Game& game, int lookAhead) : lookAhead_{lookAhead} {
    for (const Vor& vor : game.vors()) {
        approaches_.emplace_back(vor);
    }
}

std::vector<ControllerOrder> Controller::decide(Game game) const {
    std::vector<ControllerOrder> orders;
    Traffic traffic{game, lookAhead_};
    for (const auto& [points, index] : worstFirst(game, traffic)) {
        const Flight& flight = game.flight(index);
        std::optional<PanelOrder> order;
        if (flight.isAirborne()) {
            // An order to another flight may have changed what this one loses.
            const int loss = orders.empty() ? points : traffic.lossOf(index);
            order = bestOrder(game, approaches_[flight.destination.place()], traffic, index, loss);
        } else if (mayTakeOff(game, traffic, index)) {
            order = flight.current();
        }
        if (order) {
            orders.push_back({index, *order});
            executeOrder(game, index, *order);
            traffic.update(index);
        }
    }
    return orders;
}

} // namespace ventrel
