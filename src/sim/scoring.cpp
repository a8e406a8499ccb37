#include "sim/scoring.h"

#include <algorithm>

namespace ventrel {

void addScore(GameState& game, SimulationEvents& events, int delta) {
    game.score += delta;
    if (delta < 0) {
        game.score = std::max(game.score, 0);
    }
    events.scoreChanged(delta, game.score);
}

} // namespace ventrel
