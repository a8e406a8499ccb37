#include "sim/alert_lamps.h"

#include "sim/game.h"
#include "sim/simulation_events.h"

namespace ventrel {

void setLamp(Game& game, SimulationEvents& events, LampLevel level) {
    if (game.litLamp == level) {
        return;
    }
    game.litLamp = level;
    events.lampChanged(level);
}

bool isLampLit(const Game& game, LampLevel level) {
    return level == LampLevel::none || game.litLamp == level;
}

std::optional<std::string_view> alarmSound(LampLevel lit) {
    switch (lit) {
    case LampLevel::yellow: return "snd\\yellow.snd";
    case LampLevel::red: return "snd\\red.snd";
    default: return std::nullopt;
    }
}

LampsTickResult LampsTick(LampBlink& blink, const Game& game, Millis now) {
    if (!game.isRunning() || game.litLamp == LampLevel::none) {
        return LampsTickResult::asleep;
    }
    if (now <= blink.last + lampBlinkInterval) {
        return LampsTickResult::lit;
    }
    blink.last = now;
    blink.isOn = !blink.isOn;
    return LampsTickResult::flipped;
}

LampLevel gatherAlertLevel(const Game& game) {
    LampLevel level = LampLevel::none;
    for (const Flight& flight : game.flights) {
        if (flight.alert == Alert::none || !flight.isOnScope()) {
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
