#include "shell/simulation_player.h"

#include "shell/game_flow.h"
#include "shell/shell.h"

namespace ventrel {

void SimulationPlayer::messagePosted(std::string_view text, MessageClass messageClass) {
    ScrollerPost(shell_.scroller, text, messageClass);
}

void SimulationPlayer::pilotSpoke(const RadioCall& call) {
    if (shell_.options.voice != 0) {
        shell_.sounds.speak(call);
    }
}

void SimulationPlayer::lampChanged(LampLevel lit) {
    LampsRepaint(shell_.topBar);
    if (const auto alarm = alarmSound(lit)) {
        shell_.sounds.playEffect(*alarm);
    }
}

void SimulationPlayer::orderSent(FlightIndex) {
    CtrlResetTouch(shell_.panel);
    shell_.sounds.clickSet();
}

void SimulationPlayer::panelChanged() {
    CtrlRepaint(shell_.panel);
}

void SimulationPlayer::stripsChanged() {
    StripsRebuild(shell_.strips);
}

void SimulationPlayer::selectionWanted(FlightIndex flight) {
    const Cell cell = shell_.game.flight(flight).current().cell();
    const Point point = radarPoint(shell_.radar.layout, cell);
    shell_.radar.window.post([this, point] { RadarSelectAt(shell_.radar, point); });
}

void SimulationPlayer::shiftEnded(ShiftResult result) {
    shell_.mainWindow.post([this, result] { endShift(shell_, result); });
}

} // namespace ventrel
