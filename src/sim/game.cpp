#include "sim/game.h"

#include <algorithm>

#include "sim/schedule.h"

namespace ventrel {

namespace {

constexpr ClockSeconds noFlightLeft = 30000_s;

/// Turns a runway round. A heading that no flight can fly stays.
int reversedRunway(int heading) {
    constexpr int half = fullCircle / 2;
    return isHeading(heading) ? turned(heading, half) : heading;
}

/// The points on the grid of that layout, each airport with the draw whether its runway is reversed.
std::vector<Vor> settled(std::vector<Vor> points, const ScopeLayout& layout, RandomGenerator& random) {
    for (Vor& vor : points) {
        vor.cell = {vor.pixel.x / layout.cellSize, vor.pixel.y / layout.cellSize};
        if (vor.isAirport && vor.reverseChance != 0 && RandomPercent(random) < vor.reverseChance) {
            vor.runwayHeading = reversedRunway(vor.runwayHeading);
        }
    }
    return points;
}

} // namespace

Game::Game(AirspacePtr in, const ShiftSetup& setup, RandomGenerator chance)
    : airspace{std::move(in)}, layout{setup.layout}, random{chance} {
    points = std::make_shared<const std::vector<Vor>>(settled(airspace->points, layout, random));
    setUpShift(*this, setup);
    phase = Phase::running;
}

Vor copyVor(const Game& game, std::optional<PointIndex> index) {
    return index ? game.vor(*index) : Vor{};
}

ClockSeconds firstScheduledTime(const Game& game) {
    ClockSeconds first = noFlightLeft;
    for (const Flight& flight : game.flights) {
        if (flight.inPlay) {
            first = std::min(first, flight.scheduledAt);
        }
    }
    return first;
}

} // namespace ventrel
