#include "tools/sim/careless.h"

namespace ventrel {

namespace {

/// In percent of the steps.
constexpr int sendsAnOrder = 40;

/// One in three turns, one holds, one is sent to any point of the map.
PanelOrder anyOrder(const Game& game, const Flight& flight, RandomGenerator& chance) {
    PanelOrder order = flight.current();
    order.altitude = Random(chance, approachAltitude, exitAltitude);
    order.heading = headingStep * Random(chance, fullCircle / headingStep);
    order.speed = flight.heavy ? order.speed : static_cast<Speed>(Random(chance, 0, 2) - 1);
    order.hold = false;
    order.directTarget = DirectTarget::none();
    constexpr int kinds = 3;
    const int kind = Random(chance, kinds);
    if (kind != 0) {
        order.directTarget = PointIndex{Random(chance, game.vorCount())};
        order.hold = kind == 1;
    }
    return order;
}

void sendAnyOrder(Game& game, Recorder& recorder, RandomGenerator& chance) {
    std::vector<FlightIndex> hearing;
    for (const FlightIndex i : game.flightPlaces()) {
        if (game.flight(i).inPlay && game.flight(i).isActive()) {
            hearing.push_back(i);
        }
    }
    if (hearing.empty() || RandomPercent(chance) >= sendsAnOrder) {
        return;
    }
    const auto place = static_cast<std::size_t>(Random(chance, static_cast<int>(hearing.size())));
    const FlightIndex flight = hearing[place];
    const PanelOrder order = anyOrder(game, game.flight(flight), chance);
    if (judgeOrder(game, flight, order) == OrderVerdict::accepted) {
        recorder.send(game, flight, order);
    }
}

} // namespace

Steering carelessSteering(RandomGenerator chance) {
    return [chance](Game& game, Recorder& recorder) mutable { sendAnyOrder(game, recorder, chance); };
}

} // namespace ventrel
