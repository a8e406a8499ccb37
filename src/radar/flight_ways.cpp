#include "radar/flight_ways.h"

#include <algorithm>

#include "sim/orders.h"

namespace ventrel {

namespace {

constexpr ClockSeconds headingTime = 3 * clockMinute;

/// Steps of the simulation from one move to the next.
constexpr int stepsPerMove(Speed speed) {
    return speed == Speed::fast ? 1 : speed == Speed::normal ? 2 : 4;
}

/// Moves until the last turn of the plan is made; 0 when none is left.
int movesOfTurn(const Flight& flight) {
    int last = flight.planIndex;
    for (int k = flight.planIndex + 1; k < flight.plan.length(); ++k) {
        if (flight.plan[k].heading != flight.plan[k - 1].heading) {
            last = k;
        }
    }
    return last - flight.planIndex;
}

int movesAhead(const Flight& flight) {
    if (flight.current().directTarget.isOn()) {
        return flight.plan.length() - 1 - flight.planIndex;
    }
    const int straight = headingTime / (stepsPerMove(flight.current().speed) * stepInterval);
    return std::max(straight, movesOfTurn(flight));
}

/// A dash in the middle of each step from cell to cell, so that they can be counted.
void drawDashes(Canvas& canvas, const RadarLayout& layout, std::span<const Cell> way, Colour colour) {
    for (std::size_t k = 1; k < way.size(); ++k) {
        const Point from = radarPoint(layout, way[k - 1]);
        const Point step = radarPoint(layout, way[k]) - from;
        const Point gap{step.x / 4, step.y / 4};
        canvas.line(from + gap, from + step - gap, colour);
    }
}

} // namespace

std::vector<Cell> wayAhead(const Flight& flight) {
    std::vector<Cell> way{flight.current().cell};
    const int moves = movesAhead(flight);
    way.reserve(static_cast<std::size_t>(moves) + 1);
    for (int move = 1; move <= moves; ++move) {
        const int step = std::min(flight.planIndex + move, flight.plan.length() - 1);
        way.push_back(stepCell(way.back(), flight.plan[step].heading));
    }
    return way;
}

void drawHeadingLines(Canvas& canvas, const RadarLayout& layout, std::span<const Flight> flights,
                      Colour colour) {
    for (const Flight& flight : flights) {
        if (!flight.isOnScope() || flight.current().directTarget.isOn()) {
            continue;
        }
        const std::vector<Cell> way = wayAhead(flight);
        for (std::size_t k = 1; k < way.size(); ++k) {
            canvas.line(radarPoint(layout, way[k - 1]), radarPoint(layout, way[k]), colour);
        }
    }
}

void drawOrderLine(Canvas& canvas, const RadarLayout& layout, const Game& game, const UnsentOrder& unsent,
                   Colour colour) {
    const Flight& flight = game.flight(unsent.flight);
    if (changesNothing(game, flight, unsent.order)) {
        return;
    }
    Flight steered = flight;
    planOrder(game, steered, unsent.order);
    const std::vector<Cell> way = wayAhead(steered);
    if (way != wayAhead(flight)) {
        drawDashes(canvas, layout, way, colour);
    }
}

} // namespace ventrel
