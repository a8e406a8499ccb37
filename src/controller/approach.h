// The shortest ways to a runway: how many moves a flight needs from every cell and heading of the scope.

#pragma once

#include <cstdint>
#include <vector>

#include "sim/grid.h"
#include "sim/plan.h"
#include "sim/vor.h"

namespace ventrel {

class Approach {
public:
    /// Of a map point that is no airport, or whose runway heading nobody can fly, every place is out of
    /// reach.
    explicit Approach(const Vor& airport);

    static constexpr int outOfReach = -1;

    /// Moves to the runway's end, on its heading and never over it before.
    int moves(Cell cell, int heading) const;

    /// The heading of the best next move for a flight that descends on the way: the shortest way that leaves
    /// it room to come down, straight ahead where that is as good.
    int nextHeading(Cell cell, int heading, int altitude) const;

private:
    using Moves = std::int16_t;
    std::vector<Moves> moves_; // by cell and heading; empty where every place is out of reach
};

} // namespace ventrel
