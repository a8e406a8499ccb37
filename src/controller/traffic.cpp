#include "controller/traffic.h"

#include <algorithm>

namespace ventrel {

Traffic::Traffic(const Game& game, int lookAhead) : game_{game}, lookAhead_{lookAhead} {
    for (const FlightIndex i : game.flightPlaces()) {
        const Flight& flight = game.flight(i);
        if (flight.inPlay && flight.isActive()) {
            about_.push_back(i);
        }
    }
    tracks_.reserve(about_.size());
    for (const FlightIndex i : about_) {
        tracks_.push_back(trackOf(game, game.flight(i), lookAhead));
    }
}

std::size_t Traffic::trackNumber(FlightIndex index) const {
    return static_cast<std::size_t>(std::ranges::lower_bound(about_, index) - about_.begin());
}

void Traffic::update(FlightIndex index) {
    tracks_[trackNumber(index)] = trackOf(game_, game_.flight(index), lookAhead_);
}

std::vector<int> Traffic::losses() const {
    std::vector<int> losses(game_.flights.size());
    for (std::size_t later = 0; later < tracks_.size(); ++later) {
        int& loss = losses[about_[later].place()];
        loss += tracks_[later].lostPoints;
        for (std::size_t earlier = 0; earlier < later; ++earlier) {
            const int cost = conflictCost(tracks_[earlier], tracks_[later]);
            losses[about_[earlier].place()] += cost;
            loss += cost;
        }
    }
    return losses;
}

int Traffic::lossOf(FlightIndex index) const {
    return lossOf(index, tracks_[trackNumber(index)]);
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
    for (std::size_t i = 0; i < tracks_.size(); ++i) {
        if (about_[i] != index) {
            loss += about_[i] < index ? conflictCost(tracks_[i], track) : conflictCost(track, tracks_[i]);
        }
    }
    return loss;
}

} // namespace ventrel
