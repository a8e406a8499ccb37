// What every event of a shift is worth.

#pragma once

#include "sim/game.h"

namespace ventrel {

namespace points {

inline constexpr int landing = 150;
inline constexpr int exit = 75;
inline constexpr int missedApproach = -150;
inline constexpr int missedExit = -100;
inline constexpr int lostFlight = -200;
inline constexpr int nearMiss = -100;
inline constexpr int keptWaiting = -50;
inline constexpr int order = -5; ///< beyond the free ones

} // namespace points

/// Adds to the score and tells the world. A penalty stops at 0; a gain is simply added.
void addScore(Game& game, SimulationEvents& events, ScoreCause cause, std::optional<FlightIndex> flight,
              int delta);

} // namespace ventrel
