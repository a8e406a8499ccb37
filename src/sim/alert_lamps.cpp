#include "sim/alert_lamps.h"

#include "sim/game_state.h"
#include "sim/simulation_events.h"

namespace ventrel {

void setLamp(AlertLamps& lamps, SimulationEvents& events, LampLevel level) {
    if (lamps.lit == level) {
        return;
    }
    lamps.lit = level;
    events.lampChanged(level);
}

bool isLampLit(const AlertLamps& lamps, LampLevel level) {
    return level == LampLevel::none || lamps.lit == level;
}

std::optional<std::string_view> alarmSound(LampLevel lit) {
    switch (lit) {
    case LampLevel::yellow: return "snd\\yellow.snd";
    case LampLevel::red: return "snd\\red.snd";
    default: return std::nullopt;
    }
}

LampsTickResult LampsTick(AlertLamps& lamps, bool gameRunning, Millis now) {
    if (!gameRunning || lamps.lit == LampLevel::none) {
        return LampsTickResult::asleep;
    }
    if (now <= lamps.lastBlink + lampBlinkInterval) {
        return LampsTickResult::lit;
    }
    lamps.lastBlink = now;
    lamps.blinkOn = !lamps.blinkOn;
    return LampsTickResult::flipped;
}

LampLevel gatherAlertLevel(const GameState& game) {
    LampLevel level = LampLevel::none;
    for (const Flight& flight : game.flights) {
        if (!flight.isOnScope()) {
            continue;
        }
        switch (flight.alert) {
        case Alert::failure: level = LampLevel::yellow; break;
        case Alert::nearMiss: level = LampLevel::red; break;
        case Alert::success: level = level == LampLevel::none ? LampLevel::green : level; break;
        case Alert::none: break;
        }
    }
    return level;
}

} // namespace ventrel
