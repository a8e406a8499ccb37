#include "shell/selection.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace ventrel {

namespace {

/// Clock seconds after a press on the panel in which a new flight does not take it away.
constexpr ClockSeconds touchLasts = 10_s;

/// Marks the flight, which is not selected yet, and shows it everywhere.
void mark(Shell& shell, FlightIndex flight) {
    shell.game.flight(flight).selected = true;
    StripsRebuild(shell.strips);
    RadarRepaint(shell.radar);
    CtrlSetFlight(shell.panel, flight);
}

/// Scrolls until the flight's strip is shown. Every listed flight is reached within the length of the list.
/// `listPlace` counts the listed flights in table order from 1.
void bringIntoView(Shell& shell, FlightIndex flight, int listPlace) {
    const bool isBelow = listPlace > shell.strips.list.scrollOffset;
    for (int step = 0; step < shell.game.planeCount(); ++step) {
        if (StripsFlightSlot(shell.strips, flight) != noSlot) {
            return;
        }
        if (isBelow) {
            StripsScrollDown(shell.strips);
        } else {
            StripsScrollUp(shell.strips);
        }
    }
}

void selectFlight(Shell& shell, FlightIndex flight, int listPlace) {
    shell.tellLater(shell.sounds.clickSelect());
    bringIntoView(shell, flight, listPlace);
    ClearSelectedFlight(shell);
    mark(shell, flight);
}

/// Where the flight stands among those listed, from 1.
int listPlaceOf(const Shell& shell, FlightIndex flight) {
    const std::span before(shell.game.flights.data(), flight.place());
    return 1 + static_cast<int>(std::ranges::count_if(before, isListed));
}

/// `step` is 1 or -1. Without a selected flight the first or the last one is chosen.
void selectNeighbour(Shell& shell, std::ptrdiff_t step) {
    const std::vector<FlightIndex> choices = selectableFlights(shell.game);
    if (choices.empty()) {
        return;
    }
    const auto count = std::ssize(choices);
    const auto present = std::ranges::find_if(
        choices, [&shell](FlightIndex flight) { return shell.game.flight(flight).selected; });
    const std::ptrdiff_t from = present != choices.end() ? present - choices.begin() : step > 0 ? -1 : count;
    selectListedFlight(shell, choices[static_cast<std::size_t>((from + step + count) % count)]);
}

} // namespace

Rect stripButtonRect(const Shell& shell, int slot) {
    return shell.console().strips.button(slot);
}

int StripsButtonAt(const Shell& shell, Point point) {
    return stripButtonAt(shell.console().strips, point).value_or(noSlot);
}

void StripsPress(Shell& shell, int slot) {
    if (slot == shell.pressedStrip) {
        return;
    }
    for (const int changed : {shell.pressedStrip, slot}) {
        if (changed != noSlot) {
            shell.mainWindow.invalidate(stripButtonRect(shell, changed));
        }
    }
    shell.pressedStrip = slot;
}

std::optional<FlightIndex> ClearSelectedFlight(Shell& shell) {
    const auto found = std::ranges::find(shell.game.flights, true, &Flight::selected);
    if (found == shell.game.flights.end()) {
        return std::nullopt;
    }
    found->selected = false;
    return FlightIndex{static_cast<int>(found - shell.game.flights.begin())};
}

void SelectStripFlight(Shell& shell, int slot) {
    shell.tellLater(shell.sounds.clickSelect());
    if (shell.pressedStrip != noSlot) {
        StripsPress(shell, noSlot);
        RadarRepaint(shell.radar);
    }
    ClearSelectedFlight(shell);
    if (const auto flight = StripsSlotFlight(shell.strips, slot)) {
        mark(shell, *flight);
    } else {
        CtrlClearFlight(shell.panel);
    }
}

void selectRadarFlight(Shell& shell, const FlightHit& hit) {
    selectFlight(shell, hit.flight, hit.listPlace);
}

void selectListedFlight(Shell& shell, FlightIndex flight) {
    selectFlight(shell, flight, listPlaceOf(shell, flight));
}

bool isPanelTouched(const Shell& shell) {
    const ClockSeconds touch = CtrlTouchTime(shell.panel);
    return touch != 0_s && shell.game.clock < touch + touchLasts;
}

void selectNextStrip(Shell& shell) {
    const int last = shell.stripSlots() - 1;
    int current = std::max(shell.pressedStrip, 0);
    if (!StripsSlotSelectable(shell.strips, current)) {
        return;
    }
    if (current == last) {
        StripsScrollDown(shell.strips);
        const bool isOutOfSight = shell.pressedStrip == noSlot;
        current = isOutOfSight ? last - 1 : std::min(shell.pressedStrip, last - 1);
    }
    if (StripsSlotFlight(shell.strips, current + 1)) {
        SelectStripFlight(shell, current + 1);
    }
}

void selectPreviousStrip(Shell& shell) {
    const int current = std::max(shell.pressedStrip, 0);
    if (current == 0) {
        StripsScrollUp(shell.strips);
        SelectStripFlight(shell, std::max(shell.pressedStrip, 1) - 1);
    } else if (StripsSlotSelectable(shell.strips, current - 1)) {
        SelectStripFlight(shell, current - 1);
    }
}

void selectNextFlight(Shell& shell) {
    selectNeighbour(shell, 1);
}

void selectPreviousFlight(Shell& shell) {
    selectNeighbour(shell, -1);
}

} // namespace ventrel
