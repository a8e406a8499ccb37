// The three alert lamps: which one is lit, and its flashing.
//
// With every frame the level gathered from the flights is lit; a lost flight lights the yellow lamp at once.
// A lit lamp also silences radio calls of its own kind, so that the radio is not flooded.

#pragma once

#include <optional>
#include <string_view>

#include "base/millis.h"
#include "sim/lamp_level.h"

namespace ventrel {

struct Game;
class SimulationEvents;

/// Lights that lamp alone, or none, and tells the world when that changes anything.
void setLamp(Game& game, SimulationEvents& events, LampLevel level);

/// Whether that lamp is lit; for `none` always true.
bool isLampLit(const Game& game, LampLevel level);

/// The sound that goes with lighting a lamp, a name of the program folder; nothing for green and none.
std::optional<std::string_view> alarmSound(LampLevel lit);

/// The level that the flights on the scope ask for. Of failures and near misses the later in the table
/// counts; success shows only when there is neither.
LampLevel gatherAlertLevel(const Game& game);

/// Real time that a lit lamp stays bright or dark must exceed this.
inline constexpr Millis lampBlinkInterval = 400;

/// How the lit lamp flashes on a screen.
struct LampBlink {
    bool isOn = false; ///< it shows its bright picture
    Millis last = 0;
};

enum class LampsTickResult { asleep, lit, flipped };

/// Flips the lit lamp's phase when its time has come. Asleep while no game runs or no lamp is lit.
LampsTickResult LampsTick(LampBlink& blink, const Game& game, Millis now);

} // namespace ventrel
