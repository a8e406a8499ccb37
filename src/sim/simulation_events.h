// How the simulation speaks to the world: lines, radio calls, lamps, the score, and what must be drawn anew.
//
// The shell plays these events, ventrel-sim records them, a test collects what it cares about. Everything is
// told at the moment at which it happens, in the middle of a step or an order: a receiver must not change the
// game then.

#pragma once

#include <string_view>

#include "sim/alert_lamps.h"
#include "sim/flight.h"

namespace ventrel {

/// What a line of the ticker is about; the scroller gives each its colour.
enum class MessageClass { success = 10, trouble = 11, emergency = 12, information = 13 };

struct RadioCall {
    std::string_view phrase; ///< phrase characters, valid during the call only
    int voice = 0;           ///< the pilot's voice set
    int tag = 0;             ///< the flight's radio id
    bool noise = true;       ///< radio noise first
};

enum class ShiftResult { everyFlightHandled = 0, collision = -1 };

class SimulationEvents {
public:
    SimulationEvents() = default;
    SimulationEvents(const SimulationEvents&) = delete;
    SimulationEvents& operator=(const SimulationEvents&) = delete;
    virtual ~SimulationEvents() = default;

    /// A line for the ticker, Windows-1252. The receiver's queue may drop it.
    virtual void messagePosted(std::string_view /*text*/, MessageClass /*messageClass*/) {}
    virtual void pilotSpoke(const RadioCall& /*call*/) {}
    /// Another lamp is lit, or none. The lamp's alarm is to be sounded (see alarmSound).
    virtual void lampChanged(LampLevel /*lit*/) {}
    virtual void scoreChanged(int /*delta*/, int /*score*/) {}
    /// An order was sent: its click is to be heard, and the player counts as active.
    virtual void orderSent(FlightIndex /*flight*/) {}
    /// The flight on the control panel has changed.
    virtual void panelChanged() {}
    /// The list of flight strips has changed.
    virtual void stripsChanged() {}
    /// A flight has become active and the player wants such flights selected, once the step has returned.
    virtual void selectionWanted(FlightIndex /*flight*/) {}
    /// The shift is over; what follows must wait until the step has returned.
    virtual void shiftEnded(ShiftResult /*result*/) {}
};

} // namespace ventrel
