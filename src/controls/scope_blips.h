// The small scope's geometry: where its sweep ends, and one dot for each airborne flight.

#pragma once

#include <vector>

#include "sim/game.h"

namespace ventrel {

struct Blip {
    Point position;
    bool selected = false;

    friend bool operator==(const Blip&, const Blip&) = default;
};

/// At most 32 dots, in table order.
std::vector<Blip> scopeBlips(const Game& game);

/// The border point of a sweep position: 0 is the upper left corner, 120 positions run clockwise.
Point sweepPoint(int position);

} // namespace ventrel
