#include "shell/conflict_watch.h"

#include "controller/prediction.h"
#include "shell/shell.h"

namespace ventrel {

void ConflictWatch::follow() {
    const Game& game = shell_.game;
    if (shell_.options.aidConflicts == 0 || !game.isRunning()) {
        endangered_.clear();
        isStale_ = true;
        return;
    }
    if (!isStale_ && game.lastStepTime == seenStep_) {
        return;
    }
    isStale_ = false;
    seenStep_ = game.lastStepTime;
    endangered_.assign(game.flights.size(), false);
    for (const PredictedConflict& conflict : predictConflicts(game)) {
        endangered_[conflict.finder.place()] = true;
        endangered_[conflict.other.place()] = true;
    }
}

void ConflictWatch::orderSent(FlightIndex, const PanelOrder&) {
    isStale_ = true;
    if (shell_.options.aidConflicts != 0) {
        shell_.mainWindow.post([this] {
            follow();
            RadarRefresh(shell_.radar);
        });
    }
}

} // namespace ventrel
