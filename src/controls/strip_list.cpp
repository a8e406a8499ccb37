#include "controls/strip_list.h"

#include <algorithm>
#include <functional>
#include <span>

#include "base/format.h"

namespace ventrel {

namespace {

constexpr long feetPerAltitude = 1000;

int slotCount(const StripList& list) {
    return static_cast<int>(list.slots.size());
}

void clampScroll(StripList& list, int listedCount) {
    const int furthest = std::max(0, listedCount - slotCount(list));
    list.scrollOffset = std::clamp(list.scrollOffset, 0, furthest);
}

void fillSlots(StripList& list, const Game& game) {
    std::ranges::fill(list.slots, std::nullopt);
    auto slot = list.slots.begin();
    int toPassOver = list.scrollOffset;
    for (const FlightIndex i : game.flightPlaces()) {
        if (slot == list.slots.end()) {
            return;
        }
        if (!isListed(game.flight(i))) {
            continue;
        }
        if (toPassOver > 0) {
            --toPassOver;
            continue;
        }
        *slot++ = i;
    }
}

/// `flights` are places in the game's table, none of them empty.
void orderLatestFirst(auto&& flights, const Game& game) {
    std::ranges::stable_sort(flights, std::ranges::greater(), [&](const std::optional<FlightIndex>& i) {
        return game.flight(*i).scheduledAt;
    });
}

const char* airportMark(const Vor& vor) {
    return vor.isAirport ? "*" : " ";
}

} // namespace

StripList makeStripList(int slotCount) {
    return {std::vector<std::optional<FlightIndex>>(static_cast<std::size_t>(slotCount)), 0};
}

void resetStrips(StripList& list) {
    std::ranges::fill(list.slots, std::nullopt);
    list.scrollOffset = 0;
}

bool isListed(const Flight& flight) {
    return (flight.inPlay && flight.isActive()) || flight.announced;
}

void rebuildStrips(StripList& list, const Game& game) {
    if (!game.isRunning()) {
        return;
    }
    clampScroll(list, game.listedCount);
    fillSlots(list, game);
    const auto firstEmpty = std::ranges::find(list.slots, std::optional<FlightIndex>{});
    orderLatestFirst(std::span(list.slots.begin(), firstEmpty), game);
}

bool scrollStripsUp(StripList& list, const Game& game) {
    const bool canScroll = game.isRunning() && list.scrollOffset > 0;
    if (canScroll) {
        --list.scrollOffset;
    }
    rebuildStrips(list, game);
    return canScroll;
}

bool scrollStripsDown(StripList& list, const Game& game) {
    const bool canScroll = game.isRunning() && game.listedCount > list.scrollOffset + slotCount(list);
    if (canScroll) {
        ++list.scrollOffset;
    }
    rebuildStrips(list, game);
    return canScroll;
}

std::optional<FlightIndex> slotFlight(const StripList& list, int slot) {
    const bool exists = slot >= 0 && slot < slotCount(list);
    return exists ? list.slots[static_cast<std::size_t>(slot)] : std::nullopt;
}

int flightSlot(const StripList& list, FlightIndex flight) {
    const auto found = std::ranges::find(list.slots, std::optional{flight});
    return found == list.slots.end() ? noSlot : static_cast<int>(found - list.slots.begin());
}

bool isSlotSelectable(const StripList& list, const Game& game, int slot) {
    const auto flight = slotFlight(list, slot);
    return game.isRunning() && flight && !game.flight(*flight).announced;
}

std::vector<FlightIndex> selectableFlights(const Game& game) {
    std::vector<FlightIndex> flights;
    for (const FlightIndex i : game.flightPlaces()) {
        if (game.isRunning() && game.flight(i).inPlay && game.flight(i).isActive()) {
            flights.push_back(i);
        }
    }
    orderLatestFirst(flights, game);
    return flights;
}

std::string stripRouteLine(const Flight& flight, const Game& game) {
    const Vor destination = copyVor(game, flight.destination);
    const std::string callsign{std::string_view{flight.callsign}};
    if (!flight.origin) {
        return callsign + FormatText("  to  %s%s", {destination.ident, airportMark(destination)});
    }
    const Vor origin = copyVor(game, flight.origin);
    return callsign + FormatText("  %s%s to %s%s", {origin.ident, airportMark(origin), destination.ident,
                                                    airportMark(destination)});
}

std::string stripStateLine(const Flight& flight) {
    if (flight.announced) {
        return FormatText("Arrives at: %s", {FormatMinutesSeconds(flight.scheduledAt.count())});
    }
    switch (flight.groundState) {
    case GroundState::waiting: return "Request Takeoff";
    case GroundState::cleared:
    case GroundState::rolling: return "Takeoff in progress";
    case GroundState::airborne: break;
    }
    const PlanStep& now = flight.current();
    const std::string_view course = now.directTarget.isOn() ? " (direct) " : " ";
    return FormatText("%d\xB0 %s  %d ft", {long{now.heading}, course, now.altitude * feetPerAltitude});
}

Colour stripColour(const Flight& flight, const Game& game, const SignalColours& signals) {
    if (flight.alert == Alert::nearMiss) {
        return signals.nearMiss;
    }
    if (flight.alert == Alert::success) {
        return signals.success;
    }
    if (flight.selected) {
        return signals.selected.value_or(game.airspace->selectedFlightColour);
    }
    return flight.announced ? signals.announced : signals.flight.value_or(game.airspace->flightColour);
}

} // namespace ventrel
