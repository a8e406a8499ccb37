// Where one flight will be, move by move, unless it is told otherwise.

#pragma once

#include <array>
#include <cstddef>

#include "sim/game.h"
#include "sim/place_mark.h"

namespace ventrel {

/// The most steps of 15 clock seconds that a look ahead covers: ten minutes.
inline constexpr int stepsAhead = 40;

/// Where a flight stands after a step.
struct Spot {
    Cell cell;
    int altitude = 0;    ///< 0: not on the scope
    bool checks = false; ///< it moved in this step, and looked round before it did

    bool isThere() const { return altitude != 0; }
};

/// What a flight will do by itself.
struct Track {
    template <typename Entry>
    using BySteps = std::array<Entry, std::size_t{stepsAhead} + 1>; ///< the first of now

    Track() { looks.fill(looksNowhere); }

    BySteps<Spot> spots{};
    BySteps<PlaceMark> marks{}; ///< of the spots
    BySteps<PlaceMark> looks;   ///< of the places where it looks round in the step
    int lostPoints =
        0; ///< what it will throw away by arriving wrong, or by leaving the scope; sooner weighs more
};

/// The track of a flight for so many steps, whatever plan it has and whether or not it has taken off.
Track trackOf(const Game& game, Flight flight, int steps);

/// What two flights will lose to each other, in points; a collision counts for more than any shift is worth.
/// The flights stand in the table in this order, and move in it.
int conflictCost(const Track& earlier, const Track& later);

} // namespace ventrel
