#include "controls/control_panel_state.h"

#include "base/format.h"

namespace ventrel {

namespace {

constexpr ClockSeconds refreshPhase = 1_s; // just after the flights have moved

void turnSelectorOn(PanelOrder& pending) {
    pending.directTarget = PointIndex{0};
    pending.hold = false;
}

void stepSelectorUp(PanelOrder& pending, int pointCount) {
    const int number = directTargetNumber(pending.directTarget, pointCount);
    pending.directTarget = number > 0 ? directTargetOf(number - 1, pointCount) : DirectTarget::holdPlace();
    pending.hold = pending.directTarget.isHoldPlace();
}

/// A hold that the flight is flying stays one on the way down.
void stepSelectorDown(PanelOrder& pending, int pointCount) {
    const int number = directTargetNumber(pending.directTarget, pointCount);
    if (number >= pointCount) {
        turnSelectorOn(pending);
        return;
    }
    pending.directTarget = directTargetOf(number + 1, pointCount);
    pending.hold = pending.hold || pending.directTarget.isHoldPlace();
}

/// The texts around an altitude in thousands of feet, by how it compares with the present one.
struct AltitudeWords {
    std::string_view lower;
    std::string_view equal;
    std::string_view higher;
};
constexpr AltitudeWords flyingWords{"descend %d000 ft", "%d000 ft", "up to %d000 ft"};
constexpr AltitudeWords holdingWords{", descend %d000 ft", " at %d000 ft", ". up to %d000 ft"};

std::string altitudePart(const AltitudeWords& words, int now, int goal) {
    const std::string_view pattern = goal < now ? words.lower : goal == now ? words.equal : words.higher;
    return FormatText(pattern, {long{goal}});
}

std::string coursePart(const Flight& flight, const Game& game) {
    const PlanStep& now = flight.current();
    if (now.directTarget.isOn()) {
        return FormatText("Direct to %s, ", {copyVor(game, now.directTarget.point()).ident});
    }
    const int goal = flight.lastStep().heading;
    const std::string_view pattern = goal == now.heading ? "%s: %d\xB0, " : "%s: Turn %d\xB0, ";
    return FormatText(pattern, {std::string_view{flight.callsign}, long{goal}});
}

} // namespace

void setFlight(ControlPanelState& panel, const Game& game, FlightIndex flight) {
    panel.flight = flight;
    panel.pending = game.flight(flight).current();
}

void clearFlight(ControlPanelState& panel) {
    panel.flight.reset();
}

const Flight* panelFlight(const ControlPanelState& panel, const Game& game) {
    const bool exists = panel.flight && panel.flight->number() < game.planeCount();
    return exists ? &game.flight(*panel.flight) : nullptr;
}

bool isAdjustable(const ControlPanelState& panel, const Game& game) {
    const Flight* flight = panelFlight(panel, game);
    return flight != nullptr && flight->inPlay && flight->isAirborne();
}

bool setHeading(ControlPanelState& panel, const Game& game, int heading) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    panel.pending.directTarget = DirectTarget::none();
    panel.pending.heading = heading;
    return true;
}

bool setAltitude(ControlPanelState& panel, const Game& game, int altitude) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    panel.pending.altitude = altitude;
    return true;
}

bool stepAltitude(ControlPanelState& panel, const Game& game, bool up) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    if (up && panel.pending.altitude < exitAltitude) {
        ++panel.pending.altitude;
    } else if (!up && panel.pending.altitude > approachAltitude) {
        --panel.pending.altitude;
    }
    return true;
}

bool setSpeed(ControlPanelState& panel, const Game& game, Speed speed) {
    if (!isAdjustable(panel, game) || panelFlight(panel, game)->heavy) {
        return false;
    }
    panel.pending.speed = speed;
    return true;
}

bool toggleDirect(ControlPanelState& panel, const Game& game) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    if (!panel.pending.directTarget.isOn()) {
        turnSelectorOn(panel.pending);
    } else {
        panel.pending.directTarget = DirectTarget::none();
    }
    return true;
}

bool stepDirect(ControlPanelState& panel, const Game& game, bool up) {
    const Flight* flight = panelFlight(panel, game);
    if (flight == nullptr || !flight->inPlay) {
        return false;
    }
    if (!panel.pending.directTarget.isOn()) {
        return toggleDirect(panel, game);
    }
    if (up) {
        stepSelectorUp(panel.pending, game.vorCount());
    } else {
        stepSelectorDown(panel.pending, game.vorCount());
    }
    return true;
}

bool setDirect(ControlPanelState& panel, const Game& game, PointIndex target) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    panel.pending.directTarget = target;
    panel.pending.hold = false;
    return true;
}

bool setHold(ControlPanelState& panel, const Game& game) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    panel.pending.directTarget = DirectTarget::holdPlace();
    panel.pending.hold = true;
    return true;
}

CurrentSettings currentSettings(const ControlPanelState& panel, const Game& game) {
    const Flight* flight = panelFlight(panel, game);
    if (flight == nullptr) {
        return {};
    }
    const PlanStep& now = flight->current();
    const bool isDirect = now.directTarget.isOn();
    return {isDirect ? std::nullopt : std::optional{now.heading}, now.altitude, now.speed,
            now.hold ? std::nullopt : now.directTarget.point(), now.hold};
}

UnsentSettings unsentSettings(const ControlPanelState& panel, const Game& game) {
    const Flight* flight = panelFlight(panel, game);
    if (flight == nullptr || !flight->isOnScope() || changesNothing(game, *flight, panel.pending)) {
        return {};
    }
    const PlanStep& now = flight->current();
    const PlanStep& goal = flight->lastStep();
    const PanelOrder& order = panel.pending;
    const bool wasDirect = now.directTarget.isOn();
    const bool isSameTarget =
        order.hold == now.hold && (order.hold || order.directTarget == now.directTarget);
    return {.heading = !order.directTarget.isOn() && (wasDirect || order.heading != goal.heading),
            .altitude = order.altitude != goal.altitude,
            .speed = order.speed != now.speed,
            .direct = order.directTarget.isOn() && !(wasDirect && isSameTarget)};
}

std::string previewLine(const ControlPanelState& panel, const Game& game) {
    const Flight* flight = panelFlight(panel, game);
    if (flight == nullptr) {
        return {};
    }
    switch (flight->groundState) {
    case GroundState::waiting:
        return FormatText("%s: Waiting for takeoff", {std::string_view{flight->callsign}});
    case GroundState::cleared:
    case GroundState::rolling:
        return FormatText("%s: Takeoff in progress", {std::string_view{flight->callsign}});
    case GroundState::airborne: break;
    }
    const int now = flight->current().altitude;
    const int goal = flight->lastStep().altitude;
    if (flight->current().hold) {
        return "Holding pattern" + altitudePart(holdingWords, now, goal);
    }
    return coursePart(*flight, game) + altitudePart(flyingWords, now, goal);
}

bool isRefreshDue(ControlPanelState& panel, const Game& game) {
    const bool isPhase = game.clock % stepInterval == refreshPhase;
    if (!game.isRunning() || game.clock == panel.lastRefresh || !isPhase || !panel.flight) {
        return false;
    }
    panel.lastRefresh = game.clock;
    return true;
}

} // namespace ventrel
