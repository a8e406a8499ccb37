// What a running simulation works on and speaks to. Everything is owned by the caller and outlives the call.

#pragma once

#include <initializer_list>

#include "base/random.h"
#include "sim/alert_lamps.h"
#include "sim/game_state.h"
#include "sim/simulation_events.h"

namespace ventrel {

struct Simulation {
    GameState& game;
    AlertLamps& lamps;
    RandomGenerator& random;
    SimulationEvents& events;
    bool autoSelect = false; ///< the option: ask for every newly active flight to be selected
};

/// A radio call of a flight, with radio noise: its callsign, then these phrase characters.
void callOnRadio(SimulationEvents& events, const Flight& flight, std::initializer_list<char> words);

/// The same, unless the lamp of the event's own colour is lit already.
void callUnlessLit(Simulation& simulation, LampLevel lamp, const Flight& flight,
                   std::initializer_list<char> words);

} // namespace ventrel
