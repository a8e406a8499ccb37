#include "controller/traffic.h"

namespace ventrel {

Traffic::Traffic(const Game& game, int lookAhead) : game_{game}, lookAhead_{lookAhead} {
    tracks_.reserve(game.flights.size());
    for (const Flight& flight : game.flights) {
        tracks_.push_back(trackOf(game, flight, lookAhead));
    }
}

void Traffic::update(FlightIndex index) {
    tracks_[index.place()] = trackOf(game_, game_.flight(index), lookAhead_);
}

int Traffic::lossOf(FlightIndex index, const Flight& plan) const {
    return lossOf(index, trackOf(game_, plan, lookAhead_));
}

int Traffic::conflictsOf(FlightIndex index, const Flight& plan) const {
    return conflictsOf(index, trackOf(game_, plan, lookAhead_));
}

int Traffic::lossOf(FlightIndex index, const Track& track) const {
    return track.lostPoints + conflictsOf(index, track);
}

int Traffic::conflictsOf(FlightIndex index, const Track& track) const {
    int loss = 0;
    for (const FlightIndex i : game_.flightPlaces()) {
        const Flight& other = game_.flight(i);
        if (i == index || !other.inPlay || !other.isActive()) {
            continue;
        }
        const Track& there = tracks_[i.place()];
        loss += i < index ? conflictCost(there, track) : conflictCost(track, there);
    }
    return loss;
}

} // namespace ventrel
