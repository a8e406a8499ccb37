// Orders: what the player sends to one flight with EXEC.
//
// Every order is charged, becomes the flight's new plan at once (or its clearance to take off), and is read
// back by the pilot on the radio.

#pragma once

#include "sim/simulation.h"

namespace ventrel {

/// The control panel's pending order: the fields of a plan step, of which the cell does not count.
/// Without `directTarget` it is a heading order; with it and `hold` a hold, otherwise a direct course.
using PanelOrder = PlanStep;

enum class OrderResult {
    acknowledged = 0, ///< nothing was done, or nothing had to change, or the order was refused
    carriedOut = -1,
};

/// Sends the order to the flight. Nothing happens without a running game or when the flight is no longer in
/// play.
OrderResult executeOrder(Simulation& simulation, FlightIndex index, const PanelOrder& order);

} // namespace ventrel
