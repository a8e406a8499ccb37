#include "sim/flight_step.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <vector>

#include "sim/arrival.h"
#include "sim/cloud_cover.h"
#include "sim/course_planner.h"
#include "sim/scoring.h"
#include "sim/separation.h"

namespace ventrel {

namespace {

constexpr ClockSeconds normalMoveInterval = 30_s;
constexpr ClockSeconds slowMoveInterval = 60_s;
constexpr ClockSeconds announcedAhead = 120_s;
constexpr ClockSeconds complaintInterval = 300_s;

constexpr int towerComplaintBelow = 30;
constexpr int plainComplaintBelow = 60;
constexpr int repeatedAbove = 50;

/// What follows from standing at the destination: told at once, scored at the next move.
struct ArrivalRow {
    Arrival arrival;
    Topic topic;
    CallTopic call;
    LampLevel lamp; ///< lit, it silences the call
    Alert alert;
    ScoreCause cause;
    int points;
};

constexpr std::array arrivalRows{std::to_array<ArrivalRow>({
    {Arrival::landing, Topic::landing, CallTopic::landing, LampLevel::green, Alert::success,
     ScoreCause::landing, points::landing},
    {Arrival::exit, Topic::leaving, CallTopic::leaving, LampLevel::green, Alert::success, ScoreCause::exit,
     points::exit},
    {Arrival::tooHigh, Topic::tooHighToLand, CallTopic::missedApproach, LampLevel::yellow, Alert::failure,
     ScoreCause::missedApproach, points::missedApproach},
    {Arrival::wrongHeading, Topic::wrongHeadingToLand, CallTopic::missedApproach, LampLevel::yellow,
     Alert::failure, ScoreCause::missedApproach, points::missedApproach},
    {Arrival::tooLowToExit, Topic::tooLowToLeave, CallTopic::cannotLeave, LampLevel::yellow, Alert::failure,
     ScoreCause::missedExit, points::missedExit},
})};

/// Nothing for a flight that is not at its destination.
const ArrivalRow* arrivalRowOf(const Game& game, const Flight& flight) {
    const auto* found = std::ranges::find(arrivalRows, arrivalOf(game, flight), &ArrivalRow::arrival);
    return found == arrivalRows.end() ? nullptr : found;
}

/// The flights in play that have appeared, in table order.
std::vector<FlightIndex> flightsAbout(const Game& game) {
    std::vector<FlightIndex> about(game.flights.size());
    std::size_t count = 0;
    // Without a branch, which could not be foretold: who is about is chance.
    for (const FlightIndex i : game.flightPlaces()) {
        const Flight& flight = game.flight(i);
        about[count] = i;
        count += static_cast<std::size_t>(flight.inPlay) & static_cast<std::size_t>(flight.isActive());
    }
    about.resize(count);
    return about;
}

void callUnlessLit(const Game& game, SimulationEvents& events, LampLevel lamp, const RadioCall& call) {
    if (!isLampLit(game, lamp)) {
        events.pilotSpoke(call);
    }
}

void loseFlight(Game& game, SimulationEvents& events, FlightIndex index) {
    events.reported({Topic::lost, index});
    setLamp(game, events, LampLevel::yellow);
    addScore(game, events, ScoreCause::lost, index, points::lostFlight);
    game.flight(index).inPlay = false;
}

/// Scores a flight that stands on its destination; a right arrival leaves the game, a wrong one flies on.
void judgeArrival(Game& game, SimulationEvents& events, FlightIndex index) {
    Flight& flight = game.flight(index);
    const ArrivalRow* const row = arrivalRowOf(game, flight);
    if (row == nullptr) {
        return;
    }
    addScore(game, events, row->cause, index, row->points);
    if (isSuccess(row->arrival)) {
        flight.inPlay = false;
    } else {
        flight.alert = row->alert;
    }
}

/// Announces an arrival, good or bad, and marks the flight.
void reportArrival(Game& game, SimulationEvents& events, FlightIndex index) {
    Flight& flight = game.flight(index);
    if (const ArrivalRow* const row = arrivalRowOf(game, flight)) {
        events.reported({row->topic, index, flight.destination});
        callUnlessLit(game, events, row->lamp, {row->call, index});
        flight.alert = row->alert;
    }
}

/// One move of a flight that goes on. False on a collision.
bool moveFlight(Game& game, SimulationEvents& events, const Crowd& crowd, FlightIndex index) {
    Flight& flight = game.flight(index);
    switch (flight.groundState) {
    case GroundState::waiting: break;
    case GroundState::cleared: flight.groundState = GroundState::rolling; break;
    case GroundState::rolling: liftOff(game, flight); break;
    case GroundState::airborne:
        if (checkSeparation(game, events, crowd, index)) {
            return false;
        }
        moveAlongPlan(flight);
        break;
    }
    return true;
}

/// Judges and moves the flights that are due, in table order: earlier ones have made this step's move when a
/// later one is checked against them. False on a collision, which ends the pass at once.
bool moveFlights(Game& game, SimulationEvents& events, std::span<const FlightIndex> about) {
    Crowd crowd{game.flights, about};
    for (const FlightIndex i : about) {
        Flight& flight = game.flight(i);
        if (!isDue(flight, game.clock)) {
            continue;
        }
        flight.alert = Alert::none;
        if (isOutsideScope(flight.current().cell)) {
            loseFlight(game, events, i);
        } else {
            judgeArrival(game, events, i);
        }
        if (flight.inPlay && !moveFlight(game, events, crowd, i)) {
            return false;
        }
        crowd.note(i, flight);
    }
    return true;
}

/// How the shift ended, if it did.
std::optional<ShiftResult> updateFlights(Game& game, SimulationEvents& events) {
    if (std::ranges::none_of(game.flights, &Flight::inPlay)) {
        addScore(game, events, ScoreCause::bonus, std::nullopt, game.bonus);
        return ShiftResult::everyFlightHandled;
    }
    const std::vector<FlightIndex> about = flightsAbout(game);
    if (!moveFlights(game, events, about)) {
        return ShiftResult::collision;
    }
    for (const FlightIndex i : about) {
        if (game.flight(i).inPlay && isDue(game.flight(i), game.clock)) {
            reportArrival(game, events, i);
        }
    }
    return std::nullopt;
}

void activate(Game& game, SimulationEvents& events, FlightIndex index) {
    Flight& flight = game.flight(index);
    flight.activatedAt = game.clock;
    if (flight.groundState == GroundState::waiting) {
        events.reported({Topic::departureRequest, index, flight.origin});
        events.pilotSpoke({CallTopic::departureRequest, index});
    } else {
        separateOnEntry(game, flight);
        events.reported({Topic::entry, index, flight.destination});
        events.pilotSpoke({CallTopic::entry, index, flight.current().altitude});
    }
    events.flightActivated(index);
}

Topic drawComplaint(RandomGenerator& random) {
    const int draw = RandomPercent(random);
    if (draw < towerComplaintBelow) {
        return Topic::stillWaitingTower;
    }
    return draw < plainComplaintBelow ? Topic::stillWaiting : Topic::stillWaitingUrgent;
}

void complain(Game& game, SimulationEvents& events, FlightIndex index) {
    addScore(game, events, ScoreCause::keptWaiting, index, points::keptWaiting);
    events.reported({drawComplaint(game.random), index, game.flight(index).origin});
    // The word is drawn only when the call is made.
    if (!isLampLit(game, LampLevel::yellow)) {
        const bool isRepeated = RandomPercent(game.random) > repeatedAbove;
        events.pilotSpoke({isRepeated ? CallTopic::stillWaitingRepeated : CallTopic::stillWaiting, index});
    }
}

/// From the second interval after its request on.
bool complainsAt(const Flight& flight, ClockSeconds now) {
    return flight.groundState == GroundState::waiting && now > flight.activatedAt + complaintInterval &&
           now % complaintInterval == flight.activatedAt % complaintInterval;
}

/// What a flight in play does by the clock besides moving. Whether it is listed.
bool attendTo(Game& game, SimulationEvents& events, FlightIndex index) {
    Flight& flight = game.flight(index);
    const ClockSeconds now = game.clock;
    if (now < flight.scheduledAt) {
        flight.announced = now > flight.scheduledAt - announcedAhead;
        return flight.announced;
    }
    flight.announced = false;
    if (!flight.isActive()) {
        activate(game, events, index);
    } else if (complainsAt(flight, now)) {
        complain(game, events, index);
    }
    return true;
}

} // namespace

bool isDue(const Flight& flight, ClockSeconds now) {
    switch (flight.current().speed) {
    case Speed::fast: return true;
    case Speed::normal: return now % normalMoveInterval == flight.activatedAt % normalMoveInterval;
    case Speed::slow: return now % slowMoveInterval == flight.activatedAt % slowMoveInterval;
    }
    return false;
}

void liftOff(const Game& game, Flight& flight) {
    flight.groundState = GroundState::airborne;
    flight.current().cell = stepCell(flight.current().cell, flight.current().heading);
    const bool lands = flight.destinationKind == DestinationKind::airport;
    buildCourse(flight, game.vors(), flight.destination, lands ? approachAltitude : exitAltitude);
}

void moveAlongPlan(Flight& flight) {
    const Cell from = flight.current().cell;
    if (flight.planIndex < flight.plan.length() - 1) {
        ++flight.planIndex;
    }
    flight.current().cell = stepCell(from, flight.current().heading);
}

bool isStepDue(const Game& game) {
    return game.isRunning() && game.clock != game.lastStepTime && game.clock % stepInterval == 0_s;
}

ClockSeconds timeOfNextStep(const Game& game) {
    return isStepDue(game) ? game.clock : nextStepTime(game.clock);
}

bool SimulationStep(Game& game, SimulationEvents& events) {
    if (!isStepDue(game)) {
        return game.isRunning();
    }
    game.lastStepTime = game.clock;
    events.stepBegun();
    if (const auto result = updateFlights(game, events)) {
        game.phase = *result == ShiftResult::collision ? Phase::rings : Phase::lastLine;
        events.shiftEnded(*result);
        return false;
    }
    game.listedCount = 0;
    for (const FlightIndex i : game.flightPlaces()) {
        if (game.flight(i).inPlay && attendTo(game, events, i)) {
            ++game.listedCount;
        }
    }
    if (game.listedCount != 0) {
        events.stripsChanged();
    }
    return true;
}

void makeFrame(Game& game, SimulationEvents& events) {
    setLamp(game, events, gatherAlertLevel(game));
    showClouds(game);
}

bool step(Game& game, SimulationEvents& events) {
    if (!game.isRunning()) {
        return false;
    }
    game.clock = timeOfNextStep(game);
    if (!SimulationStep(game, events)) {
        return false;
    }
    makeFrame(game, events);
    return true;
}

bool step(Game& game) {
    SimulationEvents nobody;
    return step(game, nobody);
}

} // namespace ventrel
