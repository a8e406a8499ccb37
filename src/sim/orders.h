// Orders: what the player sends to one flight with EXEC.
//
// Every order is charged, becomes the flight's new plan at once (or its clearance to take off), and is read
// back by the pilot on the radio.

#pragma once

#include "sim/flight.h"
#include "sim/simulation_events.h"

namespace ventrel {

struct Game;

/// Whether an order makes sense, or the first reason why it does not.
enum class OrderVerdict {
    accepted,
    // With these nothing happens, and nothing is charged.
    noGame,
    unknownFlight,
    notInPlay,
    unknownTarget,
    altitudeOutOfRange, ///< 1 to 10
    headingOutOfRange,  ///< a multiple of 45 from 0 to 315; the one that the flight flies is always one
    speedOutOfRange,
    // Sent all the same, these are obeyed: an orders file passes over the first, the player's panel lets
    // nobody choose the second.
    notActive,
    speedOfHeavy,
    // Sent, it is charged, and the pilot refuses.
    tooCloseForDirect,
};

/// Whether an order of that verdict is sent when it is executed, and charged.
constexpr bool isHeard(OrderVerdict verdict) {
    return verdict == OrderVerdict::accepted || verdict >= OrderVerdict::notActive;
}

/// Judges an order without sending it.
OrderVerdict judgeOrder(const Game& game, FlightIndex index, const PanelOrder& order);

/// Judges whether the flight could fly its numbers, now or later.
OrderVerdict judgeNumbers(const Game& game, const Flight& flight, const PanelOrder& order);

enum class OrderResult {
    acknowledged = 0, ///< nothing was done, or nothing had to change, or the order was refused
    carriedOut = -1,
};

/// Sends the order to the flight. What happens is told to `events`, or to nobody.
OrderResult executeOrder(Game& game, FlightIndex index, const PanelOrder& order, SimulationEvents& events);
OrderResult executeOrder(Game& game, FlightIndex index, const PanelOrder& order);

/// Gives a flight in the air the plan that the order asks for, which can be flown. Nothing is charged or
/// said.
void planOrder(const Game& game, Flight& flight, const PanelOrder& order);

/// Whether the flight flies already what the order asks for, to the letter.
bool changesNothing(const Game& game, const Flight& flight, const PanelOrder& order);

} // namespace ventrel
