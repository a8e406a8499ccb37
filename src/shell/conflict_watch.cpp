#include "shell/conflict_watch.h"

#include <utility>

#include "controller/prediction.h"
#include "shell/shell.h"

namespace ventrel {

namespace {

constexpr std::string_view conflictTone = "snd\\conflict.snd";

/// The flights that will come too close to another one, by flight.
std::vector<bool> endangeredIn(const Game& game) {
    std::vector<bool> endangered(game.flights.size(), false);
    for (const PredictedConflict& conflict : predictConflicts(game)) {
        endangered[conflict.finder.place()] = true;
        endangered[conflict.other.place()] = true;
    }
    return endangered;
}

bool hasNew(const std::vector<bool>& endangered, const std::vector<bool>& before) {
    for (std::size_t flight = 0; flight < endangered.size(); ++flight) {
        if (endangered[flight] && !(flight < before.size() && before[flight])) {
            return true;
        }
    }
    return false;
}

bool isWanted(const Options& options) {
    return options.aidConflicts != 0 || options.aidConflictTone != 0;
}

} // namespace

void ConflictWatch::follow() {
    const Game& game = shell_.game;
    if (!isWanted(shell_.options) || !game.isRunning()) {
        endangered_.clear();
        isStale_ = true;
        return;
    }
    if (!isStale_ && game.lastStepTime == seenStep_) {
        return;
    }
    isStale_ = false;
    seenStep_ = game.lastStepTime;
    const std::vector<bool> before = std::exchange(endangered_, endangeredIn(game));
    if (shell_.options.aidConflictTone != 0 && hasNew(endangered_, before)) {
        shell_.tellLater(shell_.sounds.playEffect(conflictTone));
    }
}

void ConflictWatch::orderSent(FlightIndex, const PanelOrder&) {
    isStale_ = true;
    if (isWanted(shell_.options)) {
        shell_.mainWindow.post([this] {
            follow();
            RadarRefresh(shell_.radar);
        });
    }
}

} // namespace ventrel
