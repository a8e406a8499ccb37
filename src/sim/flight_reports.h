// What is said about a flight in a step: how it stands at its destination, and the line and radio call for
// each event.

#pragma once

#include "sim/simulation.h"

namespace ventrel {

/// How a flight stands at its destination. A point that is an airport is judged as one, even if flights may
/// also leave there.
enum class Arrival { none, landing, exit, tooHigh, wrongHeading, tooLowToExit };

Arrival arrivalOf(const GameState& game, const Flight& flight);

constexpr bool isSuccess(Arrival arrival) {
    return arrival == Arrival::landing || arrival == Arrival::exit;
}

/// Announces an arrival, good or bad, and marks the flight; nothing for a flight that is not at its
/// destination.
void reportArrival(Simulation& simulation, Flight& flight);

void reportLost(Simulation& simulation, const Flight& flight);
void reportDepartureRequest(Simulation& simulation, const Flight& flight);
void reportEntry(Simulation& simulation, const Flight& flight);

/// A departure that is kept waiting complains, in one of three wordings.
void reportComplaint(Simulation& simulation, const Flight& flight);

} // namespace ventrel
