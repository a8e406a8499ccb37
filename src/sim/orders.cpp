#include "sim/orders.h"

#include "base/string_table.h"
#include "sim/course_planner.h"
#include "sim/phrase.h"
#include "sim/scoring.h"

namespace ventrel {

namespace {

void charge(Simulation& simulation) {
    if (simulation.game.freeOrders > 0) {
        --simulation.game.freeOrders;
    } else {
        addScore(simulation.game, simulation.events, points::order);
    }
}

void clearForTakeoff(Simulation& simulation, Flight& flight) {
    callOnRadio(simulation.events, flight, {snippet::roger});
    flight.groundState = GroundState::cleared;
    simulation.events.panelChanged();
    simulation.events.stripsChanged();
}

bool changesNothing(const PanelOrder& order, const PlanStep& current) {
    PanelOrder pending = order;
    pending.setCell(current.cell());
    return pending == current;
}

/// Words about the way from the first to a later step: the altitude, or `level` when that stays.
void appendAltitude(std::string& phrase, const PlanStep& from, const PlanStep& to, std::string_view level) {
    if (to.altitude == from.altitude) {
        phrase += level;
        return;
    }
    VoiceAppend(phrase, to.altitude > from.altitude ? snippet::climbing : snippet::descending);
    VoiceAppend(phrase, VoiceAltitudeCode(to.altitude));
}

void turn(Flight& flight, const PanelOrder& order, std::string& readBack) {
    planTurn(flight, order.heading, order.altitude, order.speed);
    const PlanStep& first = flight.plan[0];
    const PlanStep& last = flight.lastStep();
    if (last.heading != first.heading) {
        VoiceAppend(readBack, VoiceHeadingCode(last.heading));
    }
    appendAltitude(readBack, first, last, {});
}

void circle(Flight& flight, const PanelOrder& order, std::string& readBack) {
    planHold(flight, order.altitude);
    appendAltitude(readBack, flight.plan[0], flight.lastStep(), {&snippet::roger, 1});
}

void goDirect(const GameState& game, Flight& flight, const PanelOrder& order, std::string& readBack) {
    planDirect(flight, game.vors, order.directTarget, order.altitude, order.speed);
    appendAltitude(readBack, flight.plan[0], flight.lastStep(), {});
    VoiceAppend(readBack, snippet::directVor);
}

void refuseDirect(Simulation& simulation, const Flight& flight, const Vor& target) {
    callOnRadio(simulation.events, flight, {snippet::repeat, snippet::requestVor});
    simulation.events.messagePosted(
        FormatStringId(TextId::tooCloseForDirect, {flight.callsign, target.ident}),
        MessageClass::information);
}

void speak(Simulation& simulation, const Flight& flight, std::string_view phrase, bool noise) {
    simulation.events.pilotSpoke(
        {.phrase = phrase, .voice = flight.pilotVoice, .tag = flight.radioId, .noise = noise});
}

OrderResult steer(Simulation& simulation, Flight& flight, const PanelOrder& order) {
    if (changesNothing(order, flight.current())) {
        speak(simulation, flight, {&snippet::roger, 1}, false);
        return OrderResult::acknowledged;
    }
    std::string readBack = flight.callsignPhrase;
    if (order.directTarget == noVor) {
        turn(flight, order, readBack);
    } else if (order.hold != 0) {
        circle(flight, order, readBack);
    } else {
        const Vor& target = simulation.game.vor(order.directTarget);
        if (areNeighbours(flight.current().cell(), target.cell)) {
            refuseDirect(simulation, flight, target);
            return OrderResult::acknowledged;
        }
        goDirect(simulation.game, flight, order, readBack);
    }
    speak(simulation, flight, readBack, true);
    simulation.events.panelChanged();
    return OrderResult::carriedOut;
}

} // namespace

OrderResult executeOrder(Simulation& simulation, FlightIndex index, const PanelOrder& order) {
    Flight& flight = simulation.game.flight(index);
    if (!simulation.game.gameRunning || !flight.inPlay) {
        return OrderResult::acknowledged;
    }
    simulation.events.orderSent(index);
    charge(simulation);
    switch (flight.groundState) {
    case GroundState::rolling:
    case GroundState::cleared: return OrderResult::carriedOut;
    case GroundState::waiting: clearForTakeoff(simulation, flight); return OrderResult::carriedOut;
    case GroundState::airborne: break;
    }
    return steer(simulation, flight, order);
}

} // namespace ventrel
