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

    /// Looks again at a flight that is about and has been given another plan.
    void update(FlightIndex index);

    /// What every flight will lose, by flight; of those that are not about, nothing.
    std::vector<int> losses() const;

    /// The points that would be lost if the flight of that index flew this plan: its own, and its conflicts.
    int lossOf(FlightIndex index, const Flight& plan) const;
    /// The same of the plan that it has; it is about.
    int lossOf(FlightIndex index) const;

    /// What its conflicts alone would lose.
    int conflictsOf(FlightIndex index, const Flight& plan) const;

private:
    std::size_t trackNumber(FlightIndex index) const;
    int lossOf(FlightIndex index, const Track& track) const;
    int conflictsOf(FlightIndex index, const Track& track) const;

    const Game& game_;
    int lookAhead_;
    std::vector<FlightIndex> about_; // the flights in play that have appeared, in table order
    std::vector<Track> tracks_;      // theirs
};

} // namespace ventrel
