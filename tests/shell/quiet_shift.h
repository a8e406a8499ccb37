// A shift in which nothing happens but what a test arranges.

#pragma once

#include "shell/game_stage.h"

namespace ventrel {

/// Starts a game whose flights stay away but for the first few, which enter at 60 where they are put.
class QuietShift {
public:
    explicit QuietShift(GameStage& stage) : stage_(stage) {
        stage.startNewGame();
        stage.look([&stage] {
            for (Flight& flight : stage.game().flights) {
                flight.scheduledAt = farAway;
            }
        });
    }

    /// The next flight of the table: passing through, and flying straight on.
    void enter(FlightIndex flight, PlanStep step) {
        stage_.look([&stage = stage_, flight, step] {
            Flight& entering = stage.game().flight(flight);
            entering.scheduledAt = entryTime;
            entering.plan[0] = step;
            entering.planLength = 1;
            entering.callsign = "F" + std::to_string(flight);
            entering.heavy = false;
        });
    }

    static constexpr ClockSeconds entryTime = 60;

private:
    static constexpr ClockSeconds farAway = 30000;

    GameStage& stage_;
};

} // namespace ventrel
