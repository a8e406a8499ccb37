#include "sim/game_state.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr ClockSeconds noFlightLeft = 30000;

} // namespace

std::span<const std::byte> GameState::mapPicture() const {
    return file.loaded ? embeddedPicture(file.data, airport) : std::span<const std::byte>{};
}

Vor copyVor(const GameState& game, VorIndex index) {
    return index == noVor ? Vor{} : game.vor(index);
}

ClockSeconds firstScheduledTime(const GameState& game) {
    ClockSeconds first = noFlightLeft;
    for (const Flight& flight : game.flights) {
        if (flight.inPlay) {
            first = std::min(first, flight.scheduledAt);
        }
    }
    return first;
}

} // namespace ventrel
