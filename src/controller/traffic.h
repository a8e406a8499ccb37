// A look ahead at all the traffic: where every flight will be unless it is told otherwise, and what another
// plan of one of them would lose.

#pragma once

#include <vector>

#include "controller/track.h"

namespace ventrel {

class Traffic {
public:
    /// As of the game's last step, so many steps ahead, at most `stepsAhead`. The game outlives it.
    explicit Traffic(const Game& game, int lookAhead = stepsAhead);

    /// Looks again at a flight that has been given another plan.
    void update(FlightIndex index);

    /// The points that would be lost if the flight of that index flew this plan: its own, and its conflicts.
    int lossOf(FlightIndex index, const Flight& plan) const;
    /// The same of the plan that it has.
    int lossOf(FlightIndex index) const { return lossOf(index, tracks_[index.place()]); }

    /// What its conflicts alone would lose.
    int conflictsOf(FlightIndex index, const Flight& plan) const;

private:
    int lossOf(FlightIndex index, const Track& track) const;
    int conflictsOf(FlightIndex index, const Track& track) const;

    const Game& game_;
    int lookAhead_;
    std::vector<Track> tracks_; // by flight
};

} // namespace ventrel
