#include "sim/arrival.h"

namespace ventrel {

Arrival arrivalOf(const Game& game, const Flight& flight) {
    const Vor& destination = game.vor(flight.destination);
    const PlanStep& step = flight.current();
    if (step.cell != destination.cell) {
        return Arrival::none;
    }
    if (!destination.isAirport) {
        return step.altitude >= exitAltitude ? Arrival::exit : Arrival::tooLowToExit;
    }
    if (step.heading != destination.runwayHeading) {
        return Arrival::wrongHeading;
    }
    return step.altitude <= approachAltitude ? Arrival::landing : Arrival::tooHigh;
}

} // namespace ventrel
