// A simple controller, so that a shift can fly itself: it clears departures, sends flights to their exits at
// 10K, and turns arrivals onto the runway at 1K. It keeps them apart by looking a little ahead.
//
// It works with ordinary orders, charged like a player's, and does not always win.

#pragma once

#include <vector>

#include "tools/sim/approach.h"
#include "tools/sim/recorder.h"

namespace ventrel {

class Autopilot {
public:
    /// Learns the ways to the runways of the game's airport, whose shift is set up.
    explicit Autopilot(const Game& game);

    /// Looks at every flight after a step and sends the orders that it finds best through the recorder.
    void steer(Game& game, Recorder& recorder) const;

private:
    std::vector<Approach> approaches_; // by map point
};

} // namespace ventrel
