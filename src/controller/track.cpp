#include "controller/track.h"

#include "sim/arrival.h"
#include "sim/course_planner.h"
#include "sim/scoring.h"

namespace ventrel {

namespace {

constexpr int collisionCost = 50000;

/// What is far ahead may still change by itself: at the end of the look ahead it counts for half.
int weighed(int cost, int step) {
    return cost - cost * step / (2 * stepsAhead);
}

/// In steps: what lies further off than this a turn can still prevent.
constexpr int roomToTurn = 8;
constexpr int roomToTurnBack = 16;

int lossOf(Arrival arrival, int step) {
    switch (arrival) {
    case Arrival::tooHigh: return -points::missedApproach;
    case Arrival::wrongHeading: return step > roomToTurn ? 0 : -points::missedApproach;
    case Arrival::tooLowToExit: return -points::missedExit;
    default: return 0;
    }
}

Spot spotOf(const Flight& flight) {
    return flight.isAirborne() ? Spot{flight.current().cell, flight.current().altitude} : Spot{};
}

/// Nobody flies at the altitude of an empty spot.
PlaceMark markOf(const Spot& spot) {
    return placeMark(spot.cell, spot.altitude);
}

/// One due move. False when the flight leaves the game with it.
bool moveOn(const Game& game, Flight& flight, Track& track, int step) {
    switch (flight.groundState) {
    case GroundState::waiting: return true;
    case GroundState::cleared: flight.groundState = GroundState::rolling; return true;
    case GroundState::rolling: liftOff(game, flight); return true;
    case GroundState::airborne: break;
    }
    if (isOutsideScope(flight.current().cell)) {
        track.lostPoints += step > roomToTurnBack ? 0 : -points::lostFlight + points::landing;
        return false;
    }
    const Arrival arrival = arrivalOf(game, flight);
    if (isSuccess(arrival)) {
        return false;
    }
    track.lostPoints += weighed(lossOf(arrival, step), step);
    moveAlongPlan(flight);
    return true;
}

/// What the mover finds when it looks round before it moves.
int closeness(const Spot& mover, const Spot& other, int step) {
    if (!other.isThere() || other.altitude != mover.altitude || !areNeighbours(other.cell, mover.cell)) {
        return 0;
    }
    return weighed(other.cell == mover.cell ? collisionCost : -points::nearMiss, step);
}

/// Whether one of them may find the other: a glance at all steps, without a branch.
bool mayMeet(const Track& earlier, const Track& later) {
    std::uint32_t meetings = 0;
    for (std::size_t step = 1; step <= std::size_t{stepsAhead}; ++step) {
        meetings += mayTouch(earlier.looks[step], later.marks[step - 1]) ? 1U : 0U;
        meetings += mayTouch(later.looks[step], earlier.marks[step]) ? 1U : 0U;
    }
    return meetings != 0;
}

} // namespace

Track trackOf(const Game& game, Flight flight, int steps) {
    Track track;
    if (!flight.inPlay || !flight.isActive()) {
        return track;
    }
    track.spots[0] = spotOf(flight);
    track.marks[0] = markOf(track.spots[0]);
    ClockSeconds time = timeOfNextStep(game) - stepInterval; // of the last one, wherever the clock is by now
    for (int step = 1; step <= steps; ++step) {
        time += stepInterval;
        const bool due = isDue(flight, time);
        const bool checks = due && flight.isAirborne();
        if (due && !moveOn(game, flight, track, step)) {
            break;
        }
        const auto place = static_cast<std::size_t>(step);
        Spot& spot = track.spots[place];
        spot = spotOf(flight);
        spot.checks = checks;
        track.marks[place] = markOf(spot);
        track.looks[place] = checks ? track.marks[place - 1] : looksNowhere;
    }
    return track;
}

int conflictCost(const Track& earlier, const Track& later) {
    int cost = 0;
    if (!mayMeet(earlier, later)) {
        return cost;
    }
    for (std::size_t step = 1; step <= std::size_t{stepsAhead}; ++step) {
        const auto number = static_cast<int>(step);
        if (earlier.spots[step].checks) {
            cost += closeness(earlier.spots[step - 1], later.spots[step - 1], number);
        }
        if (later.spots[step].checks) {
            cost += closeness(later.spots[step - 1], earlier.spots[step], number);
        }
    }
    return cost;
}

} // namespace ventrel
