#include "sim/scoring.h"

#include <algorithm>

namespace ventrel {

void addScore(Game& game, SimulationEvents& events, ScoreCause cause, std::optional<FlightIndex> flight,
              int delta) {
    game.score += delta;
    if (delta < 0) {
        game.score = std::max(game.score, 0);
    }
    events.scoreChanged({cause, flight, delta, game.score});
}

} // namespace ventrel
