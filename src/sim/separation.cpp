#include "sim/separation.h"

#include <cstdlib>

#include "sim/scoring.h"

namespace ventrel {

namespace {

constexpr int deadAheadAbove = 50;

/// Which of its two wordings the call takes is drawn when it is made.
void callMayday(Game& game, SimulationEvents& events, FlightIndex flight) {
    const bool isAhead = RandomPercent(game.random) > deadAheadAbove;
    events.pilotSpoke({isAhead ? CallTopic::nearMissAhead : CallTopic::nearMissVector, flight});
}

void reportNearMiss(Game& game, SimulationEvents& events, FlightIndex mover, FlightIndex other) {
    events.reported({Topic::nearMiss, mover, std::nullopt, other});
    if (!isLampLit(game, LampLevel::red)) {
        callMayday(game, events, mover);
        callMayday(game, events, other);
    }
    addScore(game, events, ScoreCause::nearMiss, mover, points::nearMiss);
    game.flight(mover).alert = Alert::nearMiss;
}

} // namespace

bool checkSeparation(Game& game, SimulationEvents& events, const Crowd& crowd, FlightIndex mover) {
    const PlanStep here = game.flight(mover).current();
    for (auto near = crowd.nextNear(here, FlightIndex{0}); near;
         near = crowd.nextNear(here, FlightIndex{near->number() + 1})) {
        const PlanStep& there = game.flight(*near).current();
        if (*near == mover || there.altitude != here.altitude || !areNeighbours(there.cell, here.cell)) {
            continue;
        }
        if (there.cell == here.cell) {
            game.collisionFlights = {*near, mover};
            return true;
        }
        reportNearMiss(game, events, mover, *near);
    }
    return false;
}

void separateOnEntry(Game& game, Flight& entering) {
    PlanStep& step = entering.current();
    for (const Flight& other : game.flights) {
        if (&other == &entering || !other.inPlay || !other.isActive()) {
            continue;
        }
        const PlanStep& there = other.current();
        const bool isClose =
            std::abs(there.cell.x - step.cell.x) <= 1 || std::abs(there.cell.y - step.cell.y) <= 1;
        if (isClose && there.altitude == step.altitude) {
            --step.altitude;
            return;
        }
    }
}

} // namespace ventrel
