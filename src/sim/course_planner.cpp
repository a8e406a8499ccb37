#include "sim/course_planner.h"

#include <array>

namespace ventrel {

namespace {

constexpr int headingCount = fullCircle / headingStep;
constexpr int here = -1;
constexpr int holdMoves = 8;
// What the steps of a hold circle carry as their target; no map point is meant.
constexpr PointIndex holdMark{1};

/// The heading that points from one cell to where another lies, or `here`.
constexpr int directionTo(Cell from, Cell to) {
    constexpr std::array<std::array<int, 3>, 3> directions{{
        {315, 0, 45},
        {270, here, 90},
        {225, 180, 135},
    }};
    const auto sign = [](int value) { return (value > 0) - (value < 0); };
    const int row = sign(to.y - from.y) + 1;
    const int column = sign(to.x - from.x) + 1;
    return directions[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

/// The heading of the next step for a flight that steers toward a target lying in that direction.
/// A target straight behind makes it turn right, except from 270.
constexpr int steeredHeading(int heading, int direction) {
    if (direction == here || !isHeading(heading)) {
        return heading;
    }
    constexpr std::array<int, headingCount> turns{0, +1, +1, +1, +1, -1, -1, -1}; // by eighths to the right
    constexpr int straightBehind = headingCount / 2;
    const int eighths = turned(direction, -heading) / headingStep;
    if (eighths == straightBehind && heading == 270) {
        return turned(heading, -headingStep);
    }
    return turned(heading, turns[static_cast<std::size_t>(eighths)] * headingStep);
}

/// One thousand feet toward the target altitude.
constexpr int steppedAltitude(int altitude, int target) {
    return altitude + (altitude < target) - (altitude > target);
}

/// Makes the present step the only one.
PlanStep& restartPlan(Flight& flight) {
    flight.plan.restartFrom(flight.planIndex);
    flight.planIndex = 0;
    return flight.plan[0];
}

/// Appends a copy of the last step, or nothing when the plan is full. The result is the new step.
PlanStep* appendStep(Flight& flight) {
    return flight.plan.extend() ? &flight.plan.last() : nullptr;
}

/// Steers from the last step to the target until it is reached at the altitude or the plan is full.
void steerTo(Flight& flight, PointIndex target, Cell targetCell, int altitude) {
    while (flight.lastStep().altitude != altitude || flight.lastStep().cell != targetCell) {
        PlanStep* const step = appendStep(flight);
        if (step == nullptr) {
            break;
        }
        PlanStep& previous = flight.plan[flight.plan.length() - 2];
        previous.directTarget = target;
        step->directTarget = target;
        step->heading = steeredHeading(previous.heading, directionTo(previous.cell, targetCell));
        step->cell = stepCell(previous.cell, step->heading);
        step->altitude = steppedAltitude(previous.altitude, altitude);
    }
    flight.plan.last().directTarget = DirectTarget::none();
}

/// The turn of 45 degrees with which the flight starts toward the heading: the shorter way, left for a
/// reversal.
constexpr int turnToward(int from, int to) {
    for (int leftTurns = 1; leftTurns <= headingCount / 2; ++leftTurns) {
        if (turned(from, -leftTurns * headingStep) == to) {
            return -headingStep;
        }
    }
    return headingStep;
}

} // namespace

bool buildCourse(Flight& flight, std::span<const Vor> vors, PointIndex target, int altitude) {
    const Cell targetCell = vors[target.place()].cell;
    if (areNeighbours(flight.current().cell, targetCell)) {
        return false;
    }
    restartPlan(flight);
    steerTo(flight, target, targetCell, altitude);
    return true;
}

void planDirect(Flight& flight, std::span<const Vor> vors, PointIndex target, int altitude, Speed speed) {
    PlanStep& first = restartPlan(flight);
    first.speed = speed;
    first.hold = false;
    steerTo(flight, target, vors[target.place()].cell, altitude);
}

void planTurn(Flight& flight, int heading, int altitude, Speed speed) {
    PlanStep& first = restartPlan(flight);
    first.directTarget = DirectTarget::none();
    first.hold = false;
    first.speed = speed;
    const int turn = turnToward(first.heading, heading);
    while (flight.lastStep().heading != heading || flight.lastStep().altitude != altitude) {
        PlanStep* const step = appendStep(flight);
        if (step == nullptr) {
            return;
        }
        step->cell = {};
        step->altitude = steppedAltitude(step->altitude, altitude);
        if (step->heading != heading) {
            step->heading = turned(step->heading, turn);
        }
    }
}

void planHold(Flight& flight, int altitude) {
    PlanStep& first = restartPlan(flight);
    first.directTarget = holdMark;
    first.hold = true;
    for (int move = 0; move < holdMoves; ++move) {
        PlanStep& step = *appendStep(flight);
        step.heading = turned(step.heading, headingStep);
        step.cell = stepCell(step.cell, step.heading);
        step.altitude = steppedAltitude(step.altitude, altitude);
    }
    flight.plan.last().directTarget = DirectTarget::none();
    flight.plan.last().hold = false;
}

} // namespace ventrel
