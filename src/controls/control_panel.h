// The control panel: the small instrument window in which the player composes an order for one flight.
//
// Its look is part of the console's picture; the window draws the moving parts over it. It never changes a
// flight: EXEC sends the pending order. Every change of a setting clicks and repaints, also when the value
// was that already.

#pragma once

#include <functional>

#include "controls/control_panel_state.h"
#include "options/options.h"
#include "platform/desktop/desktop.h"
#include "platform/text/font.h"

namespace ventrel {

inline constexpr int controlPanelId = 507;

struct ControlPanelCallbacks {
    std::function<void()> click; ///< the sound of a setting
    std::function<void(bool)> enableExec;
    std::function<void()> changed = [] {}; ///< the order, the flight or what it flies may be another
};

struct ControlPanelSources {
    const Game& game;
    const Options& options;
    FontSet& fonts;
    const CursorImage& hand;
    const CursorImage& arrow;
};

struct ControlPanel {
    ControlPanelSources sources;
    ControlPanelCallbacks callbacks;

    Window window = {};
    Bitmap background = {}; ///< the console's piece under the window
    ControlPanelState state = {};
};

/// Makes the window on the console whose picture is given. The record must stay where it is from then on.
void CtrlCreate(ControlPanel& panel, const Window& parent, const Bitmap& console);

void CtrlSetFlight(ControlPanel& panel, FlightIndex flight);
void CtrlClearFlight(ControlPanel& panel);
void CtrlRepaint(ControlPanel& panel);

// The settings. They do nothing unless a flight is on the panel, in play and airborne.
void CtrlSetHeading(ControlPanel& panel, int heading);
void CtrlSetAltitude(ControlPanel& panel, int altitude);
void CtrlStepAltitude(ControlPanel& panel, bool up);
void CtrlSetSpeed(ControlPanel& panel, Speed speed); ///< nor for a heavy flight
void CtrlToggleDirect(ControlPanel& panel);
void CtrlStepDirect(ControlPanel& panel, bool up); ///< on the ground too
void CtrlSetDirect(ControlPanel& panel, PointIndex target);
void CtrlSetHold(ControlPanel& panel);

/// Repaints the preview line just after the flights have moved.
void CtrlTick(ControlPanel& panel);

ClockSeconds CtrlTouchTime(const ControlPanel& panel);
void CtrlResetTouch(ControlPanel& panel);

} // namespace ventrel
