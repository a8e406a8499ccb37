#include "controls/control_panel.h"

#include "console/console_layout.h"
#include "console/panel_areas.h"
#include "controls/console_piece.h"
#include "controls/control_panel_drawing.h"

namespace ventrel {

namespace {

constexpr FontRequest panelFont{Face::arial, -11, false};

/// The sound and the picture that go with a setting that had effect.
void answer(ControlPanel& panel, bool hadEffect) {
    if (hadEffect) {
        panel.callbacks.click();
        CtrlRepaint(panel);
    }
}

void pressDial(ControlPanel& panel, Point p) {
    if (const auto heading = dialHeadingAt(p)) {
        CtrlSetHeading(panel, *heading);
    } else {
        CtrlRepaint(panel);
    }
}

/// The scale also answers for a flight that has just gone out of play.
void pressScale(ControlPanel& panel, Point p) {
    panel.state.pending.altitude = scaleAltitudeAt(p);
    answer(panel, true);
}

void pressControl(ControlPanel& panel, PanelControl control, Point p) {
    switch (control) {
    case PanelControl::dial: pressDial(panel, p); break;
    case PanelControl::altitude: pressScale(panel, p); break;
    case PanelControl::fast: CtrlSetSpeed(panel, Speed::fast); break;
    case PanelControl::normal: CtrlSetSpeed(panel, Speed::normal); break;
    case PanelControl::slow: CtrlSetSpeed(panel, Speed::slow); break;
    case PanelControl::direct: CtrlToggleDirect(panel); break;
    case PanelControl::targetUp: CtrlStepDirect(panel, true); break;
    case PanelControl::targetDown: CtrlStepDirect(panel, false); break;
    }
}

bool hasAirborneFlight(const ControlPanel& panel) {
    const Flight* flight = panelFlight(panel.state, panel.sources.game);
    return flight != nullptr && flight->isAirborne();
}

void onPress(ControlPanel& panel, const MouseInput& mouse) {
    if (mouse.button != MouseButton::left) {
        return;
    }
    panel.state.touchTime = panel.sources.game.clock;
    const auto control = panelControlAt(mouse.position);
    if (control && hasAirborneFlight(panel)) {
        pressControl(panel, *control, mouse.position);
    }
}

Cursor cursorAt(const ControlPanel& panel, Point p) {
    const bool isHand = hasAirborneFlight(panel) && isHandArea(p, panel.state.pending.directTarget.isOn());
    return isHand ? &panel.sources.hand : &panel.sources.arrow;
}

WindowHandlers handlersOf(ControlPanel& panel) {
    WindowHandlers handlers;
    handlers.paint = [&panel](Canvas& canvas, const Rect&) {
        paintControlPanel(canvas, panel.background, panel.state, panel.sources.game,
                          panel.sources.fonts.font(panelFont));
        if (panel.sources.options.aidUnsentMarks != 0) {
            markUnsentSettings(canvas, panel.state.pending, unsentSettings(panel.state, panel.sources.game));
        }
    };
    handlers.press = [&panel](const MouseInput& mouse) { onPress(panel, mouse); };
    handlers.cursor = [&panel](Point p) { return std::optional(cursorAt(panel, p)); };
    return handlers;
}

} // namespace

void CtrlCreate(ControlPanel& panel, const Window& parent, const Bitmap& console) {
    const Rect& bounds = consoleLayoutFor(console.size().width).controlPanel;
    panel.background = consolePiece(console, bounds);
    panel.window = parent.desktop()->create(
        {.parent = parent, .id = controlPanelId, .bounds = bounds, .handlers = handlersOf(panel)});
}

void CtrlSetFlight(ControlPanel& panel, FlightIndex flight) {
    setFlight(panel.state, panel.sources.game, flight);
    CtrlRepaint(panel);
    panel.callbacks.enableExec(true);
}

void CtrlClearFlight(ControlPanel& panel) {
    clearFlight(panel.state);
    CtrlRepaint(panel);
    panel.callbacks.enableExec(false);
}

void CtrlRepaint(ControlPanel& panel) {
    panel.window.invalidate();
    panel.callbacks.changed();
}

void CtrlSetHeading(ControlPanel& panel, int heading) {
    answer(panel, setHeading(panel.state, panel.sources.game, heading));
}

void CtrlSetAltitude(ControlPanel& panel, int altitude) {
    answer(panel, setAltitude(panel.state, panel.sources.game, altitude));
}

void CtrlStepAltitude(ControlPanel& panel, bool up) {
    answer(panel, stepAltitude(panel.state, panel.sources.game, up));
}

void CtrlSetSpeed(ControlPanel& panel, Speed speed) {
    answer(panel, setSpeed(panel.state, panel.sources.game, speed));
}

void CtrlToggleDirect(ControlPanel& panel) {
    answer(panel, toggleDirect(panel.state, panel.sources.game));
}

void CtrlStepDirect(ControlPanel& panel, bool up) {
    answer(panel, stepDirect(panel.state, panel.sources.game, up));
}

void CtrlSetDirect(ControlPanel& panel, PointIndex target) {
    answer(panel, setDirect(panel.state, panel.sources.game, target));
}

void CtrlSetHold(ControlPanel& panel) {
    answer(panel, setHold(panel.state, panel.sources.game));
}

void CtrlTick(ControlPanel& panel) {
    if (isRefreshDue(panel.state, panel.sources.game)) {
        CtrlRepaint(panel);
    }
}

ClockSeconds CtrlTouchTime(const ControlPanel& panel) {
    return panel.state.touchTime;
}

void CtrlResetTouch(ControlPanel& panel) {
    panel.state.touchTime = {};
}

} // namespace ventrel
