#include "controller/prediction.h"

#include "controller/track.h"

namespace ventrel {

namespace {

/// A slow flight moves in every fourth step.
constexpr int stepsForeseen = movesForeseen * 4;

struct TrackedFlight {
    FlightIndex flight;
    Track track;
};

std::vector<TrackedFlight> tracksOf(const Game& game) {
    std::vector<TrackedFlight> tracks;
    tracks.reserve(game.flights.size());
    for (const FlightIndex i : game.flightPlaces()) {
        const Flight& flight = game.flight(i);
        if (flight.inPlay && flight.isActive() && flight.groundState != GroundState::waiting) {
            tracks.push_back({i, trackOf(game, flight, stepsForeseen)});
        }
    }
    return tracks;
}

/// What the mover of that step finds. Flights before it in the table have made this step's move already.
void lookRound(const std::vector<TrackedFlight>& tracks, const TrackedFlight& mover, std::size_t step,
               std::vector<PredictedConflict>& conflicts) {
    const Spot& here = mover.track.spots[step - 1];
    for (const TrackedFlight& other : tracks) {
        const Spot& there = other.track.spots[other.flight < mover.flight ? step : step - 1];
        // An empty spot has no altitude that is flown.
        if (there.altitude == here.altitude && areNeighbours(there.cell, here.cell) &&
            other.flight != mover.flight) {
            conflicts.push_back({mover.flight, other.flight, there.cell == here.cell});
        }
    }
}

} // namespace

std::vector<PredictedConflict> predictConflicts(const Game& game) {
    const std::vector<TrackedFlight> tracks = tracksOf(game);
    std::vector<PredictedConflict> conflicts;
    for (const TrackedFlight& mover : tracks) {
        int looks = 0;
        for (std::size_t step = 1; step <= std::size_t{stepsForeseen} && looks < movesForeseen; ++step) {
            if (mover.track.spots[step].checks) {
                ++looks;
                lookRound(tracks, mover, step, conflicts);
            }
        }
    }
    return conflicts;
}

} // namespace ventrel
