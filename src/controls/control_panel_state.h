// What the control panel holds: the flight on it and the order being composed for it.
//
// Nothing here changes a flight; the order is carried out when EXEC sends it. The setters answer whether they
// had effect, in which case the panel clicks and repaints, even when the value was that already.

#pragma once

#include "sim/game_state.h"

namespace ventrel {

inline constexpr FlightIndex noFlight = -1;

struct ControlPanelState {
    FlightIndex flight = noFlight; ///< the flight whose order is being composed
    PlanStep pending; ///< its position is not used; `directTarget` is the airport's number of map points
                      ///< while the selector stands on hold
    ClockSeconds touchTime = 0;   ///< of the last press in the panel; 0: none since the last order
    ClockSeconds lastRefresh = 0; ///< clock value of the last timed repaint
};

/// Puts the flight on the panel; the pending order starts as what it flies now.
void setFlight(ControlPanelState& panel, const GameState& game, FlightIndex flight);
void clearFlight(ControlPanelState& panel);

/// The flight on the panel, or none.
const Flight* panelFlight(const ControlPanelState& panel, const GameState& game);

/// Whether settings can be changed: a flight is on the panel, in play and airborne.
bool isAdjustable(const ControlPanelState& panel, const GameState& game);

bool setHeading(ControlPanelState& panel, const GameState& game, int heading);
bool setAltitude(ControlPanelState& panel, const GameState& game, int altitude);
bool stepAltitude(ControlPanelState& panel, const GameState& game, bool up);
/// Refused for a heavy flight too.
bool setSpeed(ControlPanelState& panel, const GameState& game, int speed);
bool toggleDirect(ControlPanelState& panel, const GameState& game);
/// The selector runs in a ring over the map points and hold. Works on the ground too, once it is on.
bool stepDirect(ControlPanelState& panel, const GameState& game, bool up);
/// Steers for a map point; with `noVor` orders a hold.
bool setDirect(ControlPanelState& panel, const GameState& game, VorIndex target);

/// What the flight on the panel flies now, for ticking the order menu.
struct CurrentSettings {
    int heading = -1;      ///< -1 on a direct course, or without a flight
    int altitude = -1;     ///< -1 without a flight
    int speed = slowSpeed; ///< slow without a flight
    VorIndex direct = -2;  ///< -1 while it holds, -2 without a direct target or a flight
};
CurrentSettings currentSettings(const ControlPanelState& panel, const GameState& game);

/// The line that describes what the flight on the panel is doing; empty without a flight.
std::string previewLine(const ControlPanelState& panel, const GameState& game);

/// Whether the preview must be painted anew at this clock value; notes the time when so.
bool isRefreshDue(ControlPanelState& panel, bool gameRunning, ClockSeconds now);

} // namespace ventrel
