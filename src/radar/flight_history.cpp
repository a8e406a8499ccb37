#include "radar/flight_history.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr Rect dotAround{-1, -1, 1, 1};

void follow(Trail& trail, const Flight& flight) {
    if (!flight.isOnScope()) {
        trail.count = 0;
        return;
    }
    const Cell cell = flight.current().cell;
    if (trail.count > 0 && trail.cells.front() == cell) {
        return;
    }
    if (trail.count > 0 && !areNeighbours(trail.cells.front(), cell)) {
        trail.count = 0;
    }
    std::shift_right(trail.cells.begin(), trail.cells.end(), 1);
    trail.cells.front() = cell;
    trail.count = std::min(trail.count + 1, trail.cells.size());
}

} // namespace

void followFlights(FlightHistory& history, std::span<const Flight> flights) {
    history.trails.resize(flights.size());
    for (std::size_t i = 0; i < flights.size(); ++i) {
        follow(history.trails[i], flights[i]);
    }
}

void drawHistory(Canvas& canvas, const RadarLayout& layout, std::span<const Flight> flights,
                 const FlightHistory& history, const FlightColours& colours) {
    for (std::size_t i = 0; i < std::min(flights.size(), history.trails.size()); ++i) {
        const Trail& trail = history.trails[i];
        const Colour colour = flights[i].selected ? colours.selected : colours.flight;
        for (std::size_t age = trail.count; age-- > 1;) {
            canvas.fill(dotAround.movedBy(radarPoint(layout, trail.cells[age])),
                        dimmed(colour, static_cast<unsigned>(trailDots + 2 - age), trailDots + 2));
        }
    }
}

} // namespace ventrel
