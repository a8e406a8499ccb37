#include "shell/half_speed.h"

#include "shell/shell.h"

namespace ventrel {

namespace {

constexpr std::string_view question =
    "At half speed this shift is for practice: it enters no high scores.\n\nGo on at half speed?";

bool agrees(Shell& shell) {
    return !shell.game.isRunning() || isPractice(shell) ||
           shell.showMessage(question, MessageIcon::exclamation, MessageButtons::okCancel) ==
               MessageAnswer::ok;
}

} // namespace

void switchHalfSpeed(Shell& shell) {
    if (!shell.isHalfSpeedOn && !agrees(shell)) {
        return;
    }
    shell.isHalfSpeedOn = !shell.isHalfSpeedOn;
    if (!shell.game.isRunning() || isSteered(shell)) {
        return;
    }
    shell.shiftKind = ShiftKind::practice;
    shell.replayWriter.becomePractice();
    shell.topBar.clock.pace = paceOfShift(shell);
    showKindOfPlay(shell);
}

ShiftKind kindOfShift(const Shell& shell, ShiftKind wanted) {
    return shell.isHalfSpeedOn ? ShiftKind::practice : wanted;
}

ClockPace paceOfShift(const Shell& shell) {
    return shell.isHalfSpeedOn ? ClockPace::half : ClockPace::normal;
}

} // namespace ventrel
