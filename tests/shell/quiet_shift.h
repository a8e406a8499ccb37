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
            entering.plan = {step};
            entering.callsign = std::string_view{"F" + std::to_string(flight.number())};
            entering.heavy = false;
        });
    }

    static constexpr ClockSeconds entryTime = 60_s;

private:
    static constexpr ClockSeconds farAway = 30000_s;

    GameStage& stage_;
};

} // namespace ventrel
