// Which flight stands on which strip, and what the strip says.
//
// Listed are the flights in play that are active, and those announced. The list scrolls through them in table
// order; each screenful is then ordered by time, the latest on top.

#pragma once

#include <string>
#include <vector>

#include "console/signal_colours.h"
#include "controls/control_panel_state.h"

namespace ventrel {

inline constexpr int noSlot = -1;

struct StripList {
    std::vector<std::optional<FlightIndex>> slots; ///< from top to bottom; none is an empty strip
    int scrollOffset = 0;                          ///< listed flights passed over before the first strip
};

/// An empty list of that many strips.
StripList makeStripList(int slotCount);

/// Empties every strip and goes back to the top.
void resetStrips(StripList& list);

/// Whether a flight has a strip when there is room.
bool isListed(const Flight& flight);

/// Brings the scroll position back within the list, then fills and orders the strips. The game's count of
/// listed flights is as of its latest step. Nothing while no game runs.
void rebuildStrips(StripList& list, const Game& game);

/// Scrolls by one flight and rebuilds; whether it scrolled.
bool scrollStripsUp(StripList& list, const Game& game);
bool scrollStripsDown(StripList& list, const Game& game);

/// The flight on a strip; none when empty or when there is no such strip.
std::optional<FlightIndex> slotFlight(const StripList& list, int slot);

/// The first strip that shows the flight, or `noSlot`.
int flightSlot(const StripList& list, FlightIndex flight);

/// Whether a strip's button chooses a flight: a game runs, and the flight is more than announced.
bool isSlotSelectable(const StripList& list, const Game& game, int slot);

/// The flights that can be chosen, whether on a strip or scrolled away, the latest first as the strips have
/// them. None while no game runs.
std::vector<FlightIndex> selectableFlights(const Game& game);

/// The callsign and the route.
std::string stripRouteLine(const Flight& flight, const Game& game);
/// When it comes, what it waits for, or how it flies.
std::string stripStateLine(const Flight& flight);

Colour stripColour(const Flight& flight, const Game& game, const SignalColours& signals);

} // namespace ventrel
