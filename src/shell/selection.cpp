#include "shell/selection.h"

#include <algorithm>

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
void bringIntoView(Shell& shell, const FlightHit& hit) {
    const bool isBelow = hit.listPlace > shell.strips.list.scrollOffset;
    for (int step = 0; step < shell.game.planeCount(); ++step) {
        if (StripsFlightSlot(shell.strips, hit.flight) != noSlot) {
            return;
        }
        if (isBelow) {
            StripsScrollDown(shell.strips);
        } else {
            StripsScrollUp(shell.strips);
        }
    }
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
    shell.sounds.clickSelect();
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
    shell.sounds.clickSelect();
    bringIntoView(shell, hit);
    ClearSelectedFlight(shell);
    mark(shell, hit.flight);
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

} // namespace ventrel
