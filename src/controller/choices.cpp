#include "controller/choices.h"

#include <algorithm>
#include <array>
#include <optional>

#include "sim/course_planner.h"

namespace ventrel {

namespace {

// What a choice costs beside its losses, in points.
constexpr int otherAltitude = 6;
constexpr int perThousand = 1;
constexpr int circle = 16;
constexpr int otherSpeed = 3;

struct Turn {
    int degrees;
    int detour;
};
constexpr std::array turns{
    std::to_array<Turn>({{0, 4}, {-45, 10}, {45, 10}, {-90, 14}, {90, 14}, {-135, 18}, {135, 18}})};

PanelOrder straightOn(const PlanStep& now, int altitude) {
    PanelOrder order = now;
    order.altitude = altitude;
    order.directTarget = DirectTarget::none();
    order.hold = false;
    return order;
}

PanelOrder circling(const PlanStep& now, int altitude) {
    PanelOrder order = now;
    order.altitude = altitude;
    order.directTarget = PointIndex{0};
    order.hold = true;
    return order;
}

int altitudeDetour(const PlanStep& now, int altitude, int wanted) {
    return altitude == wanted ? 0 : otherAltitude + perThousand * std::abs(altitude - now.altitude);
}

/// Turns, circles and other altitudes: what is left when the straight way is blocked.
void addEvasions(std::vector<Choice>& choices, const PlanStep& now, int wanted) {
    constexpr int band = 3;
    for (int altitude = now.altitude - band; altitude <= now.altitude + band; ++altitude) {
        if (altitude < approachAltitude || altitude > exitAltitude) {
            continue;
        }
        const int detour = altitudeDetour(now, altitude, wanted);
        for (const Turn& turn : turns) {
            PanelOrder order = straightOn(now, altitude);
            order.heading = turned(now.heading, turn.degrees);
            choices.push_back({order, detour + turn.detour});
        }
        choices.push_back({circling(now, altitude), detour + circle});
    }
}

/// The choices at the speeds that the flight may fly, still the best first.
std::vector<Choice> withSpeeds(const std::vector<Choice>& choices, const Flight& flight) {
    if (flight.heavy) {
        return choices;
    }
    std::vector<Choice> result;
    result.reserve(choices.size() * 3);
    for (const Choice& choice : choices) {
        for (const Speed speed : {Speed::normal, Speed::slow, Speed::fast}) {
            result.push_back(choice);
            result.back().order.speed = speed;
            result.back().detour += speed == Speed::normal ? 0 : otherSpeed;
        }
    }
    return result;
}

/// Altitudes from the present one for which a direct course gets there; none from close beside, where it may
/// circle the point for ever.
std::optional<int> reachOfDirect(const Game& game, const Flight& flight) {
    const Cell exit = game.vor(flight.destination).cell;
    if (areNeighbours(flight.current().cell, exit)) {
        return std::nullopt;
    }
    // The way is the same for every altitude, which changes by one with each move, and ends over the exit as
    // soon as the altitude is reached. So it is flown once to an altitude that never is.
    constexpr int outOfReach = exitAltitude + Plan::capacity;
    Flight way = flight;
    planDirect(way, game.vors(), flight.destination, outOfReach, Speed::normal);
    for (int move = way.plan.length() - 1; move > 0; --move) {
        if (way.plan[move].cell == exit) {
            return move;
        }
    }
    return std::nullopt;
}

PanelOrder wayToExit(const Flight& flight, int altitude, std::optional<int> reach) {
    const PlanStep& now = flight.current();
    PanelOrder order = straightOn(now, altitude);
    // Straight ahead until there is room to turn.
    if (reach && std::abs(altitude - now.altitude) <= *reach) {
        order.directTarget = flight.destination;
    }
    return order;
}

/// As `withSpeeds` does with the first.
PanelOrder atFirstSpeed(PanelOrder order, const Flight& flight) {
    order.speed = flight.heavy ? order.speed : Speed::normal;
    return order;
}

/// The next turn to make toward the runway, as one order: until the way turns the other way.
PanelOrder turnToRunway(const Approach& approach, const PlanStep& now, int altitude) {
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
    PanelOrder order = straightOn(now, altitude);
    order.heading = way.heading;
    return order;
}

/// The altitude at which it does well to come nearer.
int altitudeToRunway(const Approach& approach, const PlanStep& now) {
    constexpr int roomToDescend = 10; // moves before the descent has to begin at the latest
    const bool descends = approach.moves(now.cell, now.heading) < now.altitude + roomToDescend;
    return descends ? approachAltitude : int{now.altitude};
}

} // namespace

PanelOrder bestWayToExit(const Game& game, const Flight& flight) {
    return atFirstSpeed(wayToExit(flight, exitAltitude, reachOfDirect(game, flight)), flight);
}

PanelOrder bestWayToRunway(const Approach& approach, const Flight& flight) {
    const PlanStep& now = flight.current();
    return atFirstSpeed(turnToRunway(approach, now, altitudeToRunway(approach, now)), flight);
}

std::vector<Choice> choicesToExit(const Game& game, const Flight& flight) {
    const PlanStep& now = flight.current();
    const std::optional<int> reach = reachOfDirect(game, flight);
    std::vector<Choice> choices;
    for (int altitude = exitAltitude; altitude >= approachAltitude; --altitude) {
        choices.push_back({wayToExit(flight, altitude, reach), altitudeDetour(now, altitude, exitAltitude)});
    }
    addEvasions(choices, now, exitAltitude);
    return withSpeeds(choices, flight);
}

std::vector<Choice> choicesToRunway(const Approach& approach, const Flight& flight) {
    const PlanStep& now = flight.current();
    const int wanted = altitudeToRunway(approach, now);
    std::vector<Choice> choices{{turnToRunway(approach, now, wanted), 0}};
    for (int altitude = approachAltitude; altitude <= exitAltitude; ++altitude) {
        if (altitude != wanted) {
            choices.push_back({turnToRunway(approach, now, altitude), altitudeDetour(now, altitude, wanted)});
        }
    }
    addEvasions(choices, now, approachAltitude);
    return withSpeeds(choices, flight);
}

} // namespace ventrel
