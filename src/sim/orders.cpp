#include "sim/orders.h"

#include "sim/course_planner.h"
#include "sim/game.h"
#include "sim/scoring.h"

namespace ventrel {

namespace {

bool isFlown(const Flight& flight, int heading) {
    return isHeading(heading) || heading == flight.current().heading;
}

bool isSpeed(Speed speed) {
    return speed == Speed::slow || speed == Speed::normal || speed == Speed::fast;
}

bool isDirect(const PanelOrder& order) {
    return order.directTarget.isOn() && !order.hold;
}

bool isTooClose(const Game& game, const Flight& flight, const PanelOrder& order) {
    const auto target = order.directTarget.point();
    return isDirect(order) && target && areNeighbours(flight.current().cell, game.vor(*target).cell);
}

void charge(Game& game, FlightIndex index, SimulationEvents& events) {
    if (game.freeOrders > 0) {
        --game.freeOrders;
    } else {
        addScore(game, events, ScoreCause::order, index, points::order);
    }
}

void clearForTakeoff(Flight& flight, FlightIndex index, SimulationEvents& events) {
    events.pilotSpoke({CallTopic::clearance, index});
    flight.groundState = GroundState::cleared;
    events.panelChanged();
    events.stripsChanged();
}

/// What the pilot says of the plan that has just been made.
RadioCall readBack(const Flight& flight, FlightIndex index, const PanelOrder& order) {
    const PlanStep& first = flight.plan[0];
    const PlanStep& last = flight.lastStep();
    RadioCall call{CallTopic::headingOrder, index};
    if (order.directTarget.isOn()) {
        call.topic = order.hold ? CallTopic::holdOrder : CallTopic::directOrder;
    } else if (last.heading != first.heading) {
        call.heading = last.heading;
    }
    call.altitude = last.altitude;
    call.climb = last.altitude - first.altitude;
    return call;
}

OrderResult steer(Game& game, FlightIndex index, const PanelOrder& order, SimulationEvents& events) {
    Flight& flight = game.flight(index);
    if (changesNothing(game, flight, order)) {
        events.pilotSpoke({CallTopic::noChange, index});
        return OrderResult::acknowledged;
    }
    if (isTooClose(game, flight, order)) {
        events.pilotSpoke({CallTopic::tooCloseForDirect, index});
        events.reported({Topic::tooCloseForDirect, index, order.directTarget.point()});
        return OrderResult::acknowledged;
    }
    planOrder(game, flight, order);
    events.pilotSpoke(readBack(flight, index, order));
    events.panelChanged();
    return OrderResult::carriedOut;
}

} // namespace

OrderVerdict judgeNumbers(const Game& game, const Flight& flight, const PanelOrder& order) {
    const auto target = order.directTarget.point();
    if ((target && target->number() >= game.vorCount()) ||
        (order.directTarget.isHoldPlace() && !order.hold)) {
        return OrderVerdict::unknownTarget;
    }
    if (order.altitude < approachAltitude || order.altitude > exitAltitude) {
        return OrderVerdict::altitudeOutOfRange;
    }
    if (!isFlown(flight, order.heading)) {
        return OrderVerdict::headingOutOfRange;
    }
    return isSpeed(order.speed) ? OrderVerdict::accepted : OrderVerdict::speedOutOfRange;
}

OrderVerdict judgeOrder(const Game& game, FlightIndex index, const PanelOrder& order) {
    if (!game.isRunning()) {
        return OrderVerdict::noGame;
    }
    if (index.number() >= game.planeCount()) {
        return OrderVerdict::unknownFlight;
    }
    const Flight& flight = game.flight(index);
    if (!flight.inPlay) {
        return OrderVerdict::notInPlay;
    }
    if (const auto fault = judgeNumbers(game, flight, order); fault != OrderVerdict::accepted) {
        return fault;
    }
    if (!flight.isActive()) {
        return OrderVerdict::notActive;
    }
    if (!flight.isAirborne()) {
        return OrderVerdict::accepted; // a clearance, whatever the numbers
    }
    if (flight.heavy && order.speed != flight.current().speed) {
        return OrderVerdict::speedOfHeavy;
    }
    return isTooClose(game, flight, order) ? OrderVerdict::tooCloseForDirect : OrderVerdict::accepted;
}

OrderResult executeOrder(Game& game, FlightIndex index, const PanelOrder& order, SimulationEvents& events) {
    if (!isHeard(judgeOrder(game, index, order))) {
        return OrderResult::acknowledged;
    }
    events.orderSent(index, order);
    charge(game, index, events);
    Flight& flight = game.flight(index);
    switch (flight.groundState) {
    case GroundState::rolling:
    case GroundState::cleared: return OrderResult::carriedOut;
    case GroundState::waiting: clearForTakeoff(flight, index, events); return OrderResult::carriedOut;
    case GroundState::airborne: break;
    }
    return steer(game, index, order, events);
}

OrderResult executeOrder(Game& game, FlightIndex index, const PanelOrder& order) {
    SimulationEvents nobody;
    return executeOrder(game, index, order, nobody);
}

void planOrder(const Game& game, Flight& flight, const PanelOrder& order) {
    if (!order.directTarget.isOn()) {
        planTurn(flight, order.heading, order.altitude, order.speed);
    } else if (order.hold) {
        planHold(flight, order.altitude);
    } else if (const auto target = order.directTarget.point()) {
        planDirect(flight, game.vors(), *target, order.altitude, order.speed);
    }
}

bool changesNothing(const Game& game, const Flight& flight, const PanelOrder& order) {
    const PlanStep& now = flight.current();
    // By number: in an airspace of one point the selector's hold is what the steps of a hold carry.
    const auto number = [&](DirectTarget target) { return directTargetNumber(target, game.vorCount()); };
    return order.altitude == now.altitude && order.heading == now.heading && order.speed == now.speed &&
           number(order.directTarget) == number(now.directTarget) && order.hold == now.hold;
}

} // namespace ventrel
