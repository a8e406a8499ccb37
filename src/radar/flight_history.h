// Where flights were: the last cells of each, for the dots of an aid. Owned by the radar, which has it follow
// the flights frame by frame.

#pragma once

#include <array>
#include <span>
#include <vector>

#include "platform/canvas/canvas.h"
#include "radar/flight_drawing.h"

namespace ventrel {

inline constexpr std::size_t trailDots = 5;

/// The cells of one flight, the present one first.
struct Trail {
    std::array<Cell, trailDots + 1> cells{};
    std::size_t count = 0;
};

struct FlightHistory {
    std::vector<Trail> trails; ///< one for each flight; none before there is something to follow
};

/// Notes where the flights are now. One that has gone, or has not come here from the cell beside, begins
/// anew.
void followFlights(FlightHistory& history, std::span<const Flight> flights);

/// The dots, fainter the older they are.
void drawHistory(Canvas& canvas, const RadarLayout& layout, std::span<const Flight> flights,
                 const FlightHistory& history, const FlightColours& colours);

} // namespace ventrel
