// Where flights are going, beyond what the scope shows by itself: the lines of those that fly by headings,
// and the way on which an order that has not been sent yet would lead. Both are aids.

#pragma once

#include <vector>

#include "console/radar_layout.h"
#include "platform/canvas/canvas.h"
#include "sim/game.h"
#include "sim/grid.h"

namespace ventrel {

/// An order that is being composed for a flight on the scope.
struct UnsentOrder {
    FlightIndex flight;
    PanelOrder order;
};

/// The cells before the flight, its own first: all of a direct course or a hold; of a flight on a heading as
/// far as it flies in the next three minutes, or in any case until it has turned.
std::vector<Cell> wayAhead(const Flight& flight);

/// The ways of all flights on the scope that fly by headings.
void drawHeadingLines(Canvas& canvas, const RadarLayout& layout, std::span<const Flight> flights,
                      Colour colour);

/// The way that EXEC would have the flight fly, dashed; nothing when it flies that way already.
void drawOrderLine(Canvas& canvas, const RadarLayout& layout, const Game& game, const UnsentOrder& unsent,
                   Colour colour);

} // namespace ventrel
