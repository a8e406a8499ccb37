// The prediction of conflicts: which flights will come too close to each other unless somebody is told
// something, three moves ahead.
//
//     for (const PredictedConflict& next : predictConflicts(game)) {
//         warnOf(next.finder, next.other);
//     }
//
// It follows the plans that the flights have, by the rules that the step judges with, on tracks of its own:
// the game is neither copied nor changed, and nothing is drawn by chance. It is worth making anew after a
// step and after an order; between them it stays the same.

#pragma once

#include <vector>

#include "sim/game.h"

namespace ventrel {

/// A flight looks round before each of its moves; a conflict is predicted when it will be found before one of
/// so many next ones. Two slow flights are seen coming three minutes ahead, two fast ones 45 seconds.
inline constexpr int movesForeseen = 3;

/// A near miss that a flight will find and pay for, or a collision.
struct PredictedConflict {
    FlightIndex finder; ///< looks round and finds the other one
    FlightIndex other;
    bool isCollision = false;

    friend bool operator==(const PredictedConflict&, const PredictedConflict&) = default;
};

/// Every conflict ahead, once for each finder and look round. Flights that have not entered yet are not
/// counted with; those that are cleared to take off are.
std::vector<PredictedConflict> predictConflicts(const Game& game);

} // namespace ventrel
