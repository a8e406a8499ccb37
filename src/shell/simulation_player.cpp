#include "shell/simulation_player.h"

#include "shell/game_flow.h"
#include "shell/shell.h"
#include "sim/phrase.h"
#include "sim/reports.h"

namespace ventrel {

void SimulationPlayer::reported(const Report& report) {
    ScrollerPost(shell_.scroller, reportText(shell_.game, report), reportClass(report.topic));
}

void SimulationPlayer::pilotSpoke(const RadioCall& call) {
    const Flight& flight = shell_.game.flight(call.flight);
    const std::string phrase = radioPhrase(shell_.game, call);
    if (shell_.options.aidCaptions != 0) {
        CaptionsAdd(shell_.captions, phraseInFigures(phrase));
    }
    RandomGenerator& random = shell_.game.random;
    const RandomGenerator before = random;
    shell_.tellLater(shell_.sounds.speak(
        {.phrase = phrase, .voice = flight.pilotVoice, .tag = flight.radioId, .noise = call.hasNoise()},
        random));
    if (isReplaying(shell_)) {
        random = before; // a replay draws as its shift did
    } else if (call.hasNoise()) {
        shell_.replayWriter.callMade(random.state != before.state);
    }
}

void SimulationPlayer::lampChanged(LampLevel lit) {
    LampsRepaint(shell_.topBar);
    if (const auto alarm = alarmSound(lit)) {
        shell_.tellLater(shell_.sounds.playEffect(*alarm));
    }
}

void SimulationPlayer::orderSent(FlightIndex, const PanelOrder&) {
    CtrlResetTouch(shell_.panel);
    shell_.sounds.clickSet();
}

void SimulationPlayer::panelChanged() {
    CtrlRepaint(shell_.panel);
}

void SimulationPlayer::stripsChanged() {
    StripsRebuild(shell_.strips);
}

void SimulationPlayer::flightActivated(FlightIndex flight) {
    if (shell_.options.autoSelect == 0) {
        return;
    }
    const Cell cell = shell_.game.flight(flight).current().cell;
    const Point point = radarPoint(shell_.radar.layout, cell);
    shell_.radar.window.post([this, point] { RadarSelectAt(shell_.radar, point); });
}

void SimulationPlayer::shiftEnded(ShiftResult result) {
    shell_.mainWindow.post([this, result] { endShift(shell_, result); });
}

} // namespace ventrel
