// One aircraft of the shift: who it is, where it must go, and the queued path that it flies.
//
// Flights are made by the schedule, moved by the flight step and steered by orders. A flight's record stays
// in its place in the table for the whole shift; a finished one is never shown, moved or counted again.

#pragma once

#include <array>
#include <string>

#include "sim/grid.h"
#include "sim/time_units.h"

namespace ventrel {

using FlightIndex = int; ///< position in the flight table
using VorIndex = int;    ///< position in the airport's table of map points; -1 is none

inline constexpr VorIndex noVor = -1;

/// Altitudes are thousands of feet.
inline constexpr int approachAltitude = 1;
inline constexpr int exitAltitude = 10;

inline constexpr int planCapacity = 48;
/// Builders stop adding here, so a plan never fills its array.
inline constexpr int longestPlan = 47;

inline constexpr int slowSpeed = -1;
inline constexpr int normalSpeed = 0;
inline constexpr int fastSpeed = 1;

/// One move of a plan, or the control panel's pending order: where, and how to fly.
struct PlanStep {
    int x = 0; ///< cell
    int y = 0;
    int altitude = 0; ///< 1 to 10
    int heading = 0;  ///< degrees
    int speed = normalSpeed;
    VorIndex directTarget = noVor; ///< the map point that the step steers to; the steps of a hold carry 1
    int hold = 0;                  ///< 1 in the steps of a hold circle

    Cell cell() const { return {x, y}; }
    void setCell(Cell to) {
        x = to.x;
        y = to.y;
    }
    friend bool operator==(const PlanStep&, const PlanStep&) = default;
};

enum class OriginKind { scopeEdge = 0, airport = 2 };

enum class DestinationKind {
    exit = 1,    ///< must leave over its VOR at altitude 10
    airport = 3, ///< must land
};

enum class GroundState { airborne = 0, rolling = 1, cleared = 2, waiting = 3 };

/// How the flight's latest move turned out.
enum class Alert { failure = -1, none = 0, success = 1, nearMiss = 2 };

struct Flight {
    bool inPlay = false;          ///< from set-up until it has landed, left or is lost
    bool announced = false;       ///< not yet active and due within the next 120 clock seconds
    bool selected = false;        ///< the player's choice on radar, strips and panel
    bool heavy = false;           ///< the control panel refuses to change a heavy flight's speed
    ClockSeconds activatedAt = 0; ///< when it appeared or began asking for departure; 0 while not yet active
    ClockSeconds scheduledAt = 0;
    GroundState groundState = GroundState::airborne;
    Alert alert = Alert::none;
    int planIndex = 0;  ///< the step that describes the flight now
    int planLength = 1; ///< steps in use
    std::array<PlanStep, planCapacity> plan{};
    VorIndex origin = noVor; ///< the airport of departure; none exactly when it enters at the edge
    VorIndex destination = noVor;
    OriginKind originKind = OriginKind::scopeEdge;
    DestinationKind destinationKind = DestinationKind::exit;
    std::string callsign;
    std::string callsignPhrase; ///< the callsign as phrase characters
    int pilotVoice = 0;
    int radioId = 0; ///< 0 to 32767; tags its radio calls, so that a flight never talks over itself

    bool isActive() const { return activatedAt != 0; }
    bool isAirborne() const { return groundState == GroundState::airborne; }
    /// In play, active and airborne: drawn on the radar, and subject to separation.
    bool isOnScope() const { return inPlay && isActive() && isAirborne(); }

    PlanStep& current() { return plan[static_cast<std::size_t>(planIndex)]; }
    const PlanStep& current() const { return plan[static_cast<std::size_t>(planIndex)]; }
    PlanStep& lastStep() { return plan[static_cast<std::size_t>(planLength - 1)]; }
    const PlanStep& lastStep() const { return plan[static_cast<std::size_t>(planLength - 1)]; }
};

} // namespace ventrel
