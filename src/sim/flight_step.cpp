#include "sim/flight_step.h"

#include <optional>

#include "sim/course_planner.h"
#include "sim/flight_reports.h"
#include "sim/scoring.h"
#include "sim/separation.h"

namespace ventrel {

namespace {

constexpr ClockSeconds normalMoveInterval = 30;
constexpr ClockSeconds slowMoveInterval = 60;
constexpr ClockSeconds announcedAhead = 120;
constexpr ClockSeconds complaintInterval = 300;

bool movesAt(const Flight& flight, ClockSeconds now) {
    return flight.inPlay && flight.isActive() && isDue(flight, now);
}

void loseFlight(Simulation& simulation, Flight& flight) {
    reportLost(simulation, flight);
    setLamp(simulation.lamps, simulation.events, LampLevel::yellow);
    addScore(simulation.game, simulation.events, points::lostFlight);
    flight.inPlay = false;
}

/// Scores a flight that stands on its destination; a right arrival leaves the game, a wrong one flies on.
void judgeArrival(Simulation& simulation, Flight& flight) {
    const Arrival arrival = arrivalOf(simulation.game, flight);
    switch (arrival) {
    case Arrival::none: return;
    case Arrival::landing: addScore(simulation.game, simulation.events, points::landing); break;
    case Arrival::exit: addScore(simulation.game, simulation.events, points::exit); break;
    case Arrival::tooHigh:
    case Arrival::wrongHeading: addScore(simulation.game, simulation.events, points::missedApproach); break;
    case Arrival::tooLowToExit: addScore(simulation.game, simulation.events, points::missedExit); break;
    }
    if (isSuccess(arrival)) {
        flight.inPlay = false;
    } else {
        flight.alert = Alert::failure;
    }
}

/// Off the runway and onto a course for the destination.
void liftOff(const GameState& game, Flight& flight) {
    flight.groundState = GroundState::airborne;
    flight.current().setCell(stepCell(flight.current().cell(), flight.current().heading));
    const bool lands = flight.destinationKind == DestinationKind::airport;
    buildCourse(flight, game.vors, flight.destination, lands ? approachAltitude : exitAltitude);
}

/// One move of a flight that goes on. False on a collision.
bool moveFlight(Simulation& simulation, FlightIndex index) {
    Flight& flight = simulation.game.flight(index);
    switch (flight.groundState) {
    case GroundState::waiting: break;
    case GroundState::cleared: flight.groundState = GroundState::rolling; break;
    case GroundState::rolling: liftOff(simulation.game, flight); break;
    case GroundState::airborne:
        if (checkSeparation(simulation, index)) {
            return false;
        }
        moveAlongPlan(flight);
        break;
    }
    return true;
}

/// Judges and moves the flights that are due, in table order: earlier ones have made this step's move when a
/// later one is checked against them. False on a collision, which ends the pass at once.
bool moveFlights(Simulation& simulation, ClockSeconds now) {
    GameState& game = simulation.game;
    for (FlightIndex i = 0; i < game.planeCount(); ++i) {
        Flight& flight = game.flight(i);
        if (!movesAt(flight, now)) {
            continue;
        }
        flight.alert = Alert::none;
        if (isOutsideScope(flight.current().cell())) {
            loseFlight(simulation, flight);
            continue;
        }
        judgeArrival(simulation, flight);
        if (flight.inPlay && !moveFlight(simulation, i)) {
            return false;
        }
    }
    return true;
}

bool isAnyInPlay(const GameState& game) {
    for (const Flight& flight : game.flights) {
        if (flight.inPlay) {
            return true;
        }
    }
    return false;
}

/// How the shift ended, if it did.
std::optional<ShiftResult> updateFlights(Simulation& simulation, ClockSeconds now) {
    GameState& game = simulation.game;
    if (!isAnyInPlay(game)) {
        addScore(game, simulation.events, game.bonus);
        return ShiftResult::everyFlightHandled;
    }
    if (!moveFlights(simulation, now)) {
        return ShiftResult::collision;
    }
    for (Flight& flight : game.flights) {
        if (movesAt(flight, now)) {
            reportArrival(simulation, flight);
        }
    }
    return std::nullopt;
}

void activate(Simulation& simulation, FlightIndex index, ClockSeconds now) {
    Flight& flight = simulation.game.flight(index);
    flight.activatedAt = now;
    if (flight.groundState == GroundState::waiting) {
        reportDepartureRequest(simulation, flight);
    } else {
        separateOnEntry(simulation.game, flight);
        reportEntry(simulation, flight);
    }
    if (simulation.autoSelect) {
        simulation.events.selectionWanted(index);
    }
}

/// From the second interval after its request on.
bool complainsAt(const Flight& flight, ClockSeconds now) {
    return flight.groundState == GroundState::waiting && now > flight.activatedAt + complaintInterval &&
           now % complaintInterval == flight.activatedAt % complaintInterval;
}

/// Activates, announces or lets complain. True when the flight belongs on the strips.
bool attendTo(Simulation& simulation, FlightIndex index, ClockSeconds now) {
    Flight& flight = simulation.game.flight(index);
    if (now < flight.scheduledAt) {
        flight.announced = now > flight.scheduledAt - announcedAhead;
        return flight.announced;
    }
    flight.announced = false;
    if (!flight.isActive()) {
        activate(simulation, index, now);
    } else if (complainsAt(flight, now)) {
        addScore(simulation.game, simulation.events, points::keptWaiting);
        reportComplaint(simulation, flight);
    }
    return true;
}

} // namespace

bool isDue(const Flight& flight, ClockSeconds now) {
    switch (flight.current().speed) {
    case fastSpeed: return true;
    case normalSpeed: return now % normalMoveInterval == flight.activatedAt % normalMoveInterval;
    case slowSpeed: return now % slowMoveInterval == flight.activatedAt % slowMoveInterval;
    default: return false;
    }
}

void moveAlongPlan(Flight& flight) {
    const Cell from = flight.current().cell();
    if (flight.planIndex < flight.planLength - 1) {
        ++flight.planIndex;
    }
    flight.current().setCell(stepCell(from, flight.current().heading));
}

bool SimulationStep(Simulation& simulation, ClockSeconds now) {
    GameState& game = simulation.game;
    if (!game.gameRunning) {
        return false;
    }
    if (now == game.lastStepTime || now % stepInterval != 0) {
        return true;
    }
    game.lastStepTime = now;
    if (const auto result = updateFlights(simulation, now)) {
        simulation.events.shiftEnded(*result);
        return false;
    }
    game.listedCount = 0;
    for (FlightIndex i = 0; i < game.planeCount(); ++i) {
        if (game.flight(i).inPlay && attendTo(simulation, i, now)) {
            ++game.listedCount;
        }
    }
    if (game.listedCount != 0) {
        simulation.events.stripsChanged();
    }
    return true;
}

} // namespace ventrel
