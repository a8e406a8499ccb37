// Runs one shift from its set-up to its end, with a list of orders or somebody else at the controls.

#pragma once

#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "controller/controller.h"
#include "replay/playback.h"
#include "tools/sim/order_text.h"
#include "tools/sim/recorder.h"

namespace ventrel {

/// Looks at the game after a step and sends its orders through the recorder.
using Steering = std::function<void(Game&, Recorder&)>;

/// The automatic controller, at the controls of this game; see Controller for the look ahead.
Steering automaticSteering(const Game& game, int lookAhead = stepsAhead);

/// Automatic controllers for very many shifts: one serves all in which the same runways are in use.
class ControllerPool {
public:
    explicit ControllerPool(int lookAhead) : lookAhead_{lookAhead} {}

    Steering steeringOf(const Game& game);

private:
    struct Entry {
        std::shared_ptr<const std::vector<Vor>> points;
        std::shared_ptr<const Controller> controller;
    };

    int lookAhead_;
    std::vector<Entry> entries_;
};

struct RunPlan {
    std::span<const ScriptedOrder> orders; ///< sorted by time
    ClockSeconds until;                    ///< no step later than this
    Steering steering;                     ///< may be empty
    bool hearsPilots = false;              ///< as in a game with its voices on (see Recorder::hearPilots)
    ReplayWriter* replay = nullptr;        ///< keeps the shift, too; it has begun
};

/// The shift has just been set up; it is told to the recorder, run in steps of 15 clock seconds, and told to
/// have ended.
void runShift(Game& game, Recorder& recorder, const RunPlan& plan);

/// The same for the game of a replay, from its set-up to the replay's end, and no event later than `until`.
void runReplay(Game& game, Recorder& recorder, Playback& playback, ClockSeconds until);

} // namespace ventrel
