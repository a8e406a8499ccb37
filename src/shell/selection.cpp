#include "shell/selection.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr int buttonFromRight = 190;
constexpr int firstButtonTop = 81;
constexpr int buttonPitch = 37;
constexpr Size buttonSize{20, 12};

void showPressed(Shell& shell, int slot, bool pressed) {
    shell.slotPressed[static_cast<std::size_t>(slot)] = pressed;
    shell.mainWindow.invalidate(stripButtonRect(shell, slot));
}

/// Marks the flight, which is not selected yet, and shows it everywhere.
void mark(Shell& shell, FlightIndex flight) {
    shell.game.flight(flight).selected = true;
    StripsRebuild(shell.strips);
    RadarRepaint(shell.radar);
    CtrlSetFlight(shell.panel, flight);
}

/// Scrolls until the flight's strip is shown. Every listed flight is reached within the length of the list.
void bringIntoView(Shell& shell, const FlightHit& hit) {
    const bool isBelow = hit.listPlace > shell.stripSlots();
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

/// The strip on which the selected flight stands now; none when it is on none.
std::optional<int> selectedSlot(const Shell& shell) {
    const FlightIndex selected = shell.panel.state.flight;
    const int slot = selected == noFlight ? noSlot : StripsFlightSlot(shell.strips, selected);
    return slot == noSlot ? std::nullopt : std::optional(slot);
}

} // namespace

Rect stripButtonRect(const Shell& shell, int slot) {
    const Point corner{shell.windowSize().width - buttonFromRight, firstButtonTop + buttonPitch * slot};
    return Rect::at(corner, buttonSize);
}

int StripsButtonAt(const Shell& shell, Point point) {
    for (int slot = 0; slot < shell.stripSlots(); ++slot) {
        if (stripButtonRect(shell, slot).contains(point)) {
            return slot;
        }
    }
    return noSlot;
}

void StripsPress(Shell& shell, int slot) {
    for (int other = 0; other < shell.stripSlots(); ++other) {
        if (other != slot && shell.slotPressed[static_cast<std::size_t>(other)]) {
            showPressed(shell, other, false);
        }
    }
    if (slot != noSlot && !shell.slotPressed[static_cast<std::size_t>(slot)]) {
        showPressed(shell, slot, true);
    }
}

int pressedSlot(const Shell& shell) {
    const auto found = std::ranges::find(shell.slotPressed, true);
    return found == shell.slotPressed.end() ? noSlot : static_cast<int>(found - shell.slotPressed.begin());
}

FlightIndex ClearSelectedFlight(Shell& shell) {
    const auto found = std::ranges::find(shell.game.flights, true, &Flight::selected);
    if (found == shell.game.flights.end()) {
        return noFlight;
    }
    found->selected = false;
    return static_cast<FlightIndex>(found - shell.game.flights.begin());
}

void SelectStripFlight(Shell& shell, int slot) {
    shell.sounds.clickSelect();
    const int before = pressedSlot(shell);
    if (before != noSlot) {
        StripsPress(shell, noSlot);
        RadarRepaint(shell.radar);
    }
    ClearSelectedFlight(shell);
    const FlightIndex flight = StripsSlotFlight(shell.strips, slot);
    if (flight == noFlight) {
        CtrlClearFlight(shell.panel);
        return;
    }
    StripsPress(shell, slot);
    mark(shell, flight);
}

void selectRadarFlight(Shell& shell, const FlightHit& hit) {
    shell.sounds.clickSelect();
    bringIntoView(shell, hit);
    ClearSelectedFlight(shell);
    StripsPress(shell, StripsFlightSlot(shell.strips, hit.flight));
    mark(shell, hit.flight);
}

void selectNextStrip(Shell& shell) {
    const int last = shell.stripSlots() - 1;
    int current = std::max(pressedSlot(shell), 0);
    if (!StripsSlotSelectable(shell.strips, current)) {
        return;
    }
    if (current == last) {
        StripsScrollDown(shell.strips);
        current = std::min(selectedSlot(shell).value_or(last), last - 1);
    }
    if (StripsSlotFlight(shell.strips, current + 1) != noFlight) {
        SelectStripFlight(shell, current + 1);
    }
}

void selectPreviousStrip(Shell& shell) {
    int current = std::max(pressedSlot(shell), 0);
    if (current == 0) {
        StripsScrollUp(shell.strips);
        current = std::max(selectedSlot(shell).value_or(0), 1);
        SelectStripFlight(shell, current - 1);
    } else if (StripsSlotSelectable(shell.strips, current - 1)) {
        SelectStripFlight(shell, current - 1);
    }
}

} // namespace ventrel
