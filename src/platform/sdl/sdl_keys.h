// From SDL's keys to the program's.

#pragma once

#include <SDL.h>

#include "platform/devices/input.h"

namespace ventrel {

/// What the keyboard of the United States has at that place; unknown for keys that the program does not use.
Key placeOf(SDL_Scancode code);
/// Back again; of two keys that mean the same, the first.
SDL_Scancode scancodeOf(Key place);

/// Letters, digits and signs by what the person's layout writes on the key; keys that write something else
/// (the letters of another script, the digits behind accents) stand where one's hands look for them, and
/// those that write nothing go by their place too, so that keypad keys do not depend on Num Lock.
Key keyOf(const SDL_Keysym& sym);

Modifiers modifiersOf(SDL_Keymod mod);

} // namespace ventrel
