#include "sim/separation.h"

#include <cstdlib>

#include "base/string_table.h"
#include "sim/phrase.h"
#include "sim/scoring.h"

namespace ventrel {

namespace {

constexpr int deadAheadAbove = 50;

void callMayday(Simulation& simulation, const Flight& flight) {
    const bool deadAhead = RandomPercent(simulation.random) > deadAheadAbove;
    callOnRadio(simulation.events, flight,
                {snippet::mayday, deadAhead ? snippet::deadAhead : snippet::airVector});
}

void reportNearMiss(Simulation& simulation, Flight& mover, const Flight& other) {
    simulation.events.messagePosted(FormatStringId(TextId::nearMiss, {mover.callsign, other.callsign}),
                                    MessageClass::emergency);
    if (!isLampLit(simulation.lamps, LampLevel::red)) {
        callMayday(simulation, mover);
        callMayday(simulation, other);
    }
    addScore(simulation.game, simulation.events, points::nearMiss);
    mover.alert = Alert::nearMiss;
}

} // namespace

bool checkSeparation(Simulation& simulation, FlightIndex mover) {
    GameState& game = simulation.game;
    Flight& flight = game.flight(mover);
    const PlanStep here = flight.current();
    for (FlightIndex i = 0; i < game.planeCount(); ++i) {
        const Flight& other = game.flight(i);
        if (i == mover || !other.isOnScope() || other.current().altitude != here.altitude ||
            !areNeighbours(other.current().cell(), here.cell())) {
            continue;
        }
        if (other.current().cell() == here.cell()) {
            game.collisionFlights = {i, mover};
            return true;
        }
        reportNearMiss(simulation, flight, other);
    }
    return false;
}

void separateOnEntry(GameState& game, Flight& entering) {
    PlanStep& step = entering.current();
    for (const Flight& other : game.flights) {
        if (&other == &entering || !other.inPlay || !other.isActive()) {
            continue;
        }
        const PlanStep& there = other.current();
        const bool isClose = std::abs(there.x - step.x) <= 1 || std::abs(there.y - step.y) <= 1;
        if (isClose && there.altitude == step.altitude) {
            --step.altitude;
            return;
        }
    }
}

} // namespace ventrel
