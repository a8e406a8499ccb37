#include "controls/control_panel_state.h"

#include "base/format.h"

namespace ventrel {

namespace {

constexpr int lowestAltitude = 1;
constexpr int highestAltitude = 10;
constexpr VorIndex firstVor = 0;
constexpr VorIndex holdingNow = -1;
constexpr VorIndex noDirectTarget = -2;
constexpr ClockSeconds refreshPhase = 1; // just after the flights have moved

void turnSelectorOn(PlanStep& pending) {
    pending.directTarget = firstVor;
    pending.hold = 0;
}

void stepSelectorUp(PlanStep& pending, VorIndex holdPosition) {
    --pending.directTarget;
    if (pending.directTarget < firstVor) {
        pending.directTarget = holdPosition;
    }
    pending.hold = pending.directTarget == holdPosition ? 1 : 0;
}

void stepSelectorDown(PlanStep& pending, VorIndex holdPosition) {
    if (pending.directTarget >= holdPosition) {
        turnSelectorOn(pending);
        return;
    }
    ++pending.directTarget;
    if (pending.directTarget == holdPosition) {
        pending.hold = 1;
    }
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

std::string coursePart(const Flight& flight, const GameState& game) {
    const PlanStep& now = flight.current();
    if (now.directTarget != noVor) {
        return FormatText("Direct to %s, ", {copyVor(game, now.directTarget).ident});
    }
    const int goal = flight.lastStep().heading;
    const std::string_view pattern = goal == now.heading ? "%s: %d\xB0, " : "%s: Turn %d\xB0, ";
    return FormatText(pattern, {flight.callsign, long{goal}});
}

} // namespace

void setFlight(ControlPanelState& panel, const GameState& game, FlightIndex flight) {
    panel.flight = flight;
    panel.pending = game.flight(flight).current();
}

void clearFlight(ControlPanelState& panel) {
    panel.flight = noFlight;
}

const Flight* panelFlight(const ControlPanelState& panel, const GameState& game) {
    const bool exists = panel.flight >= 0 && panel.flight < game.planeCount();
    return exists ? &game.flight(panel.flight) : nullptr;
}

bool isAdjustable(const ControlPanelState& panel, const GameState& game) {
    const Flight* flight = panelFlight(panel, game);
    return flight != nullptr && flight->inPlay && flight->isAirborne();
}

bool setHeading(ControlPanelState& panel, const GameState& game, int heading) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    panel.pending.directTarget = noVor;
    panel.pending.heading = heading;
    return true;
}

bool setAltitude(ControlPanelState& panel, const GameState& game, int altitude) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    panel.pending.altitude = altitude;
    return true;
}

bool stepAltitude(ControlPanelState& panel, const GameState& game, bool up) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    if (up && panel.pending.altitude < highestAltitude) {
        ++panel.pending.altitude;
    } else if (!up && panel.pending.altitude > lowestAltitude) {
        --panel.pending.altitude;
    }
    return true;
}

bool setSpeed(ControlPanelState& panel, const GameState& game, int speed) {
    if (!isAdjustable(panel, game) || panelFlight(panel, game)->heavy) {
        return false;
    }
    panel.pending.speed = speed;
    return true;
}

bool toggleDirect(ControlPanelState& panel, const GameState& game) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    if (panel.pending.directTarget == noVor) {
        turnSelectorOn(panel.pending);
    } else {
        panel.pending.directTarget = noVor;
    }
    return true;
}

bool stepDirect(ControlPanelState& panel, const GameState& game, bool up) {
    const Flight* flight = panelFlight(panel, game);
    if (flight == nullptr || !flight->inPlay) {
        return false;
    }
    if (panel.pending.directTarget == noVor) {
        return toggleDirect(panel, game);
    }
    if (up) {
        stepSelectorUp(panel.pending, game.vorCount());
    } else {
        stepSelectorDown(panel.pending, game.vorCount());
    }
    return true;
}

bool setDirect(ControlPanelState& panel, const GameState& game, VorIndex target) {
    if (!isAdjustable(panel, game)) {
        return false;
    }
    const bool isHold = target == noVor;
    panel.pending.directTarget = isHold ? game.vorCount() : target;
    panel.pending.hold = isHold ? 1 : 0;
    return true;
}

CurrentSettings currentSettings(const ControlPanelState& panel, const GameState& game) {
    const Flight* flight = panelFlight(panel, game);
    if (flight == nullptr) {
        return {};
    }
    const PlanStep& now = flight->current();
    const bool isDirect = now.directTarget != noVor;
    const VorIndex target = isDirect ? now.directTarget : noDirectTarget;
    return {isDirect ? -1 : now.heading, now.altitude, now.speed, now.hold != 0 ? holdingNow : target};
}

std::string previewLine(const ControlPanelState& panel, const GameState& game) {
    const Flight* flight = panelFlight(panel, game);
    if (flight == nullptr) {
        return {};
    }
    switch (flight->groundState) {
    case GroundState::waiting: return FormatText("%s: Waiting for takeoff", {flight->callsign});
    case GroundState::cleared:
    case GroundState::rolling: return FormatText("%s: Takeoff in progress", {flight->callsign});
    case GroundState::airborne: break;
    }
    const int now = flight->current().altitude;
    const int goal = flight->lastStep().altitude;
    if (flight->current().hold != 0) {
        return "Holding pattern" + altitudePart(holdingWords, now, goal);
    }
    return coursePart(*flight, game) + altitudePart(flyingWords, now, goal);
}

bool isRefreshDue(ControlPanelState& panel, bool gameRunning, ClockSeconds now) {
    const bool isPhase = now % stepInterval == refreshPhase;
    if (!gameRunning || now == panel.lastRefresh || !isPhase || panel.flight == noFlight) {
        return false;
    }
    panel.lastRefresh = now;
    return true;
}

} // namespace ventrel
