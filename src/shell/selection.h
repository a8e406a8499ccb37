// Choosing a flight: at most one is selected, on radar, strips and panel alike.

#pragma once

#include "radar/flight_drawing.h"
#include "shell/shell.h"

namespace ventrel {

/// The main window's area of a strip's button.
Rect stripButtonRect(const Shell& shell, int slot);

/// The strip button at that point of the main window, or `noSlot`.
int StripsButtonAt(const Shell& shell, Point point);

/// Shows that button pressed and every other one released; with `noSlot` all are released.
void StripsPress(Shell& shell, int slot);

/// Takes the mark off the selected flight and returns it; none when none was.
std::optional<FlightIndex> ClearSelectedFlight(Shell& shell);

/// Selects the flight of a strip, with the click that goes with it. An empty strip empties the panel.
void SelectStripFlight(Shell& shell, int slot);

/// Selects a flight found on the radar, which was not selected before, and brings its strip into view.
void selectRadarFlight(Shell& shell, const FlightHit& hit);

/// Selects that flight, which can be chosen, as a click on its strip does, and brings its strip into view.
void selectListedFlight(Shell& shell, FlightIndex flight);

/// Whether the player is busy on the panel, so that a new flight does not take it away.
bool isPanelTouched(const Shell& shell);

/// The Down and Up keys: the strip below or above, scrolling where the list goes on.
void selectNextStrip(Shell& shell);
void selectPreviousStrip(Shell& shell);

/// The Tab key, and with Shift: the next flight that can be chosen, later strips first, or the one before;
/// from the last on to the first. Strips scroll as needed.
void selectNextFlight(Shell& shell);
void selectPreviousFlight(Shell& shell);

} // namespace ventrel
