// From SDL's events to the program's. Private to this room.

#pragma once

#include <SDL.h>

#include <optional>

#include "platform/devices/input.h"

namespace ventrel {

/// Where the picture lies in the machine's window, and whether the mouse counts beside it.
struct PicturePlace {
    Rect area;
    Size picture;
    bool mouseIsCaptured = false;
};

/// None for what does not concern the program.
std::optional<InputEvent> inputOf(const SDL_Event& event, const PicturePlace& place);

/// The digit that a key of the keypad types while Num Lock is off. The machine then types none, but the
/// program takes Num Lock for always on.
std::optional<TextEvent> keypadText(const SDL_Event& event);

} // namespace ventrel
