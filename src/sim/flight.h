// One aircraft of the shift: who it is, where it must go, and the queued path that it flies.
//
// Flights are made by the schedule, moved by the flight step and steered by orders. A flight's record stays
// in its place in the table for the whole shift; a finished one is never shown, moved or counted again.

#pragma once

#include <optional>

#include "sim/clock_seconds.h"
#include "sim/plan.h"
#include "sim/short_text.h"

namespace ventrel {

enum class OriginKind { scopeEdge = 0, airport = 2 };

enum class DestinationKind {
    exit = 1,    ///< must leave over its VOR at altitude 10
    airport = 3, ///< must land
};

enum class GroundState { airborne = 0, rolling = 1, cleared = 2, waiting = 3 };

/// How the flight's latest move turned out.
enum class Alert { failure = -1, none = 0, success = 1, nearMiss = 2 };

struct Flight {
    bool inPlay = false;      ///< from set-up until it has landed, left or is lost
    bool announced = false;   ///< not yet active and due within the next 120 clock seconds
    bool selected = false;    ///< the player's choice on radar, strips and panel
    bool heavy = false;       ///< the control panel refuses to change a heavy flight's speed
    ClockSeconds activatedAt; ///< when it appeared or began asking for departure; 0 while not yet active
    ClockSeconds scheduledAt;
    GroundState groundState = GroundState::airborne;
    Alert alert = Alert::none;
    int planIndex = 0;                ///< the step that describes the flight now
    std::optional<PointIndex> origin; ///< the airport of departure; none exactly when it enters at the edge
    PointIndex destination;
    OriginKind originKind = OriginKind::scopeEdge;
    DestinationKind destinationKind = DestinationKind::exit;
    ShortText callsign;
    ShortText callsignPhrase; ///< the callsign as phrase characters
    int pilotVoice = 0;
    int radioId = 0; ///< 0 to 32767; tags its radio calls, so that a flight never talks over itself
    Plan plan;

    bool isActive() const { return activatedAt != 0_s; }
    bool isAirborne() const { return groundState == GroundState::airborne; }
    /// In play, active and airborne: drawn on the radar, and subject to separation.
    bool isOnScope() const { return inPlay && isActive() && isAirborne(); }

    PlanStep& current() { return plan[planIndex]; }
    const PlanStep& current() const { return plan[planIndex]; }
    const PlanStep& lastStep() const { return plan.last(); }
};

} // namespace ventrel
