// How the simulation speaks to the world: what happened to which flight, the score, the lamps, and what must
// be drawn anew.
//
// Events carry facts; reports.h turns them into the ticker's lines and the pilots' phrases. The shell plays
// them, ventrel-sim records them, a test collects what it cares about. Everything is told at the moment at
// which it happens, in the middle of a step or an order: a receiver must not change the game then, but for
// its messages and its generator, which a spoken call may draw from.

#pragma once

#include <optional>

#include "sim/lamp_level.h"
#include "sim/plan.h"
#include "sim/table_index.h"

namespace ventrel {

/// What the ticker tells of flights.
enum class Topic {
    departureRequest,
    entry,
    landing,
    leaving,
    tooHighToLand,
    wrongHeadingToLand,
    tooLowToLeave,
    lost,
    nearMiss,
    stillWaitingTower, ///< a departure kept waiting complains in one of three wordings
    stillWaiting,
    stillWaitingUrgent,
    tooCloseForDirect,
};

/// A line for the ticker (see reportText). The receiver's queue may drop it.
struct Report {
    Topic topic;
    FlightIndex flight;
    std::optional<PointIndex> point{};  ///< where it is, wants to leave from or is bound for
    std::optional<FlightIndex> other{}; ///< of a near miss
};

/// What a pilot calls about.
enum class CallTopic {
    departureRequest,
    entry,
    landing,
    leaving,
    missedApproach,
    cannotLeave,
    stillWaiting,
    stillWaitingRepeated,
    nearMissAhead,
    nearMissVector,
    clearance,    ///< to take off, acknowledged
    noChange,     ///< an order that changes nothing, acknowledged without callsign or noise
    headingOrder, ///< the read-back of an order
    holdOrder,
    directOrder,
    tooCloseForDirect,
};

/// A radio call (see radioPhrase).
struct RadioCall {
    CallTopic topic;
    FlightIndex flight;
    int altitude = 0;             ///< of an entry; in a read-back, where the flight will end
    int climb = 0;                ///< in a read-back: above 0 up to it, below 0 down to it, 0 level
    std::optional<int> heading{}; ///< in a read-back: where it turns to

    /// Whether radio noise comes first.
    bool hasNoise() const { return topic != CallTopic::noChange; }
};

enum class ScoreCause {
    landing,
    exit,
    missedApproach,
    missedExit,
    lost,
    nearMiss,
    keptWaiting,
    order,
    bonus
};

struct ScoreChange {
    ScoreCause cause;
    std::optional<FlightIndex> flight; ///< none for the bonus
    int delta = 0;
    int score = 0; ///< after it
};

enum class ShiftResult { everyFlightHandled = 0, collision = -1 };

class SimulationEvents {
public:
    SimulationEvents() = default;
    SimulationEvents(const SimulationEvents&) = delete;
    SimulationEvents& operator=(const SimulationEvents&) = delete;
    virtual ~SimulationEvents() = default;

    /// A step acts at the game's clock; what it brings is told after this.
    virtual void stepBegun() {}
    virtual void reported(const Report& /*report*/) {}
    virtual void pilotSpoke(const RadioCall& /*call*/) {}
    /// Another lamp is lit, or none. The lamp's alarm is to be sounded (see alarmSound).
    virtual void lampChanged(LampLevel /*lit*/) {}
    virtual void scoreChanged(const ScoreChange& /*change*/) {}
    /// An order was sent, and has not been charged yet: its click is to be heard, and the player counts as
    /// active.
    virtual void orderSent(FlightIndex /*flight*/, const PanelOrder& /*order*/) {}
    /// The flight on the control panel has changed.
    virtual void panelChanged() {}
    /// The list of flight strips has changed.
    virtual void stripsChanged() {}
    /// A flight has entered, or asks for departure. Who wants to select it waits until the step has returned.
    virtual void flightActivated(FlightIndex /*flight*/) {}
    /// The shift is over; what follows must wait until the step has returned.
    virtual void shiftEnded(ShiftResult /*result*/) {}
};

} // namespace ventrel
