// The three alert lamps: which one is lit, and its flashing.
//
// The radar hands over the level gathered from the flights with every frame; a lost flight lights the yellow
// lamp at once. A lit lamp also silences radio calls of its own kind, so that the radio is not flooded.

#pragma once

#include <optional>
#include <string_view>

#include "sim/time_units.h"

namespace ventrel {

struct GameState;
class SimulationEvents;

enum class LampLevel { green = 0, yellow = 1, red = 2, none = 3 };

struct AlertLamps {
    LampLevel lit = LampLevel::none;
    bool blinkOn = false; ///< the lit lamp shows its bright picture
    Millis lastBlink = 0;
};

/// Real time that a lit lamp stays bright or dark must exceed this.
inline constexpr Millis lampBlinkInterval = 400;

/// Lights that lamp alone, or none, and tells the world when that changes anything.
void setLamp(AlertLamps& lamps, SimulationEvents& events, LampLevel level);

/// Whether that lamp is lit; for `none` always true.
bool isLampLit(const AlertLamps& lamps, LampLevel level);

/// The sound that goes with lighting a lamp, a name of the program folder; nothing for green and none.
std::optional<std::string_view> alarmSound(LampLevel lit);

enum class LampsTickResult { asleep, lit, flipped };

/// Flips the lit lamp's phase when its time has come. Asleep while no game runs or no lamp is lit.
LampsTickResult LampsTick(AlertLamps& lamps, bool gameRunning, Millis now);

/// The level that the flights on the scope ask for. Of failures and near misses the later in the table
/// counts; success shows only when there is neither.
LampLevel gatherAlertLevel(const GameState& game);

} // namespace ventrel
