// The flight strips: a column of two-line strips, one for each flight that is listed.
//
// The window only paints. The buttons beside it and the scroll arrows belong to the main window, which is
// told which button is the pressed one.

#pragma once

#include <functional>

#include "controls/strip_list.h"
#include "options/options.h"
#include "platform/desktop/desktop.h"
#include "platform/text/font.h"

namespace ventrel {

inline constexpr int stripsId = 505;

struct StripsCallbacks {
    /// The list has been made anew: that strip shows the selected flight, and its button is the pressed one;
    /// none is with `noSlot`.
    std::function<void(int slot)> press;
};

struct StripsSources {
    const Game& game;
    const Options& options;
    FontSet& fonts;
    const CursorImage& arrow;
};

struct Strips {
    StripsSources sources;
    StripsCallbacks callbacks;

    Window window = {};
    StripList list = {};
};

/// Makes the window in a main window of that size. The record must stay where it is from then on.
void StripsCreate(Strips& strips, const Window& parent, Size mainWindow);

/// Empties the column and scrolls back to its top.
void StripsReset(Strips& strips);

/// Lists the flights anew. Nothing but a repaint while no game runs.
void StripsRebuild(Strips& strips);

/// Shows them anew as they are; nothing while no game runs.
void StripsRepaint(Strips& strips);

/// Scroll by one flight and rebuild; whether they scrolled.
bool StripsScrollUp(Strips& strips);
bool StripsScrollDown(Strips& strips);

std::optional<FlightIndex> StripsSlotFlight(const Strips& strips, int slot);
int StripsFlightSlot(const Strips& strips, FlightIndex flight);
bool StripsSlotSelectable(const Strips& strips, int slot);

} // namespace ventrel
