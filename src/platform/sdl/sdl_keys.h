// From SDL's keys to the program's.

#pragma once

#include <SDL.h>

#include "platform/devices/input.h"

namespace ventrel {

/// Letters, digits and signs by what the person's layout writes on the key; keys that write something else,
/// and those that write nothing, by their place, so that keypad keys do not depend on Num Lock.
Key keyOf(const SDL_Keysym& sym);

Modifiers modifiersOf(SDL_Keymod mod);

} // namespace ventrel
