// The small bar in the console's corner by which a game is watched: what it is, how fast it runs, a pause,
// and the ways out of it. Of a practice shift it is a plate with that one word; of any other there is none.
//
// Its buttons send commands as the menus do.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/widgets/button.h"
#include "sim/game_clock.h"

namespace ventrel {

struct Shell;

/// A button that one kind of watching has besides.
struct SteeringBarExtra {
    std::string text; ///< empty: there is none
    int command = 0;
};

struct SteeringBar {
    Window window = {};
    std::vector<Button> buttons = {};
    std::string title = {};
    std::string pace = {}; ///< as it is read; empty on a plate
};

/// Shows what the present game is and how fast it runs: bar, plate or nothing. Called after a change of any
/// of it.
void SteeringBarFollow(Shell& shell);

/// The pace as it is read on the bar, Windows-1252.
std::string_view paceText(ClockPace pace);

} // namespace ventrel
