// What the control panel holds: the flight on it and the order being composed for it.
//
// Nothing here changes a flight; the order is carried out when EXEC sends it. The setters answer whether they
// had effect, in which case the panel clicks and repaints, even when the value was that already.

#pragma once

#include "sim/game.h"

namespace ventrel {

struct ControlPanelState {
    std::optional<FlightIndex> flight; ///< the flight whose order is being composed
    PanelOrder pending;
    ClockSeconds touchTime;   ///< of the last press in the panel; 0: none since the last order
    ClockSeconds lastRefresh; ///< clock value of the last timed repaint
};

/// Puts the flight on the panel; the pending order starts as what it flies now.
void setFlight(ControlPanelState& panel, const Game& game, FlightIndex flight);
void clearFlight(ControlPanelState& panel);

/// The flight on the panel, or none.
const Flight* panelFlight(const ControlPanelState& panel, const Game& game);

/// Whether settings can be changed: a flight is on the panel, in play and airborne.
bool isAdjustable(const ControlPanelState& panel, const Game& game);

bool setHeading(ControlPanelState& panel, const Game& game, int heading);
bool setAltitude(ControlPanelState& panel, const Game& game, int altitude);
bool stepAltitude(ControlPanelState& panel, const Game& game, bool up);
/// Refused for a heavy flight too.
bool setSpeed(ControlPanelState& panel, const Game& game, Speed speed);
bool toggleDirect(ControlPanelState& panel, const Game& game);
/// The selector runs in a ring over the map points and hold. Works on the ground too, once it is on.
bool stepDirect(ControlPanelState& panel, const Game& game, bool up);
/// Steers for a map point, or orders a hold.
bool setDirect(ControlPanelState& panel, const Game& game, PointIndex target);
bool setHold(ControlPanelState& panel, const Game& game);

/// What the flight on the panel flies now, for ticking the order menu. Without a flight: slow.
struct CurrentSettings {
    std::optional<int> heading; ///< none on a direct course
    std::optional<int> altitude;
    Speed speed = Speed::slow;
    std::optional<PointIndex> direct; ///< none while it holds
    bool holds = false;
};
CurrentSettings currentSettings(const ControlPanelState& panel, const Game& game);

/// What EXEC would change of what the flight on the panel has been told.
struct UnsentSettings {
    bool heading = false; ///< also when it leaves a direct course or a hold for one
    bool altitude = false;
    bool speed = false;
    bool direct = false;
};
UnsentSettings unsentSettings(const ControlPanelState& panel, const Game& game);

/// The line that describes what the flight on the panel is doing; empty without a flight.
std::string previewLine(const ControlPanelState& panel, const Game& game);

/// Whether the preview must be painted anew at the clock's value; notes the time when so.
bool isRefreshDue(ControlPanelState& panel, const Game& game);

} // namespace ventrel
