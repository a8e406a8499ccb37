// How a flight stands at its destination.

#pragma once

#include "sim/game.h"

namespace ventrel {

/// A point that is an airport is judged as one, even if flights may also leave there.
enum class Arrival { none, landing, exit, tooHigh, wrongHeading, tooLowToExit };

Arrival arrivalOf(const Game& game, const Flight& flight);

constexpr bool isSuccess(Arrival arrival) {
    return arrival == Arrival::landing || arrival == Arrival::exit;
}

} // namespace ventrel
