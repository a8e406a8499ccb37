// What SDL leaves undone on X11. Private to this room; on other window systems nothing of it does anything.

#pragma once

#include <SDL.h>

#include <string>

namespace ventrel {

/// While it lives, errors that the X server reports end nothing. Opened before SDL's video part and closed
/// after it: SDL calls the handler that it finds, and puts it back before it closes its connections.
///
/// SDL wakes itself through a second connection with messages to its window, and the server may get the last
/// of them when the window is gone already. Nothing is wrong then, but Xlib would end the program with a
/// complaint and 1.
class XErrorsAreHarmless {
public:
    XErrorsAreHarmless();
    XErrorsAreHarmless(const XErrorsAreHarmless&) = delete;
    XErrorsAreHarmless& operator=(const XErrorsAreHarmless&) = delete;
    ~XErrorsAreHarmless();

private:
    void (*before_)(); // the handler that comes back, whatever its type
};

/// Whether nobody on this screen manages windows: one that asks to fill the screen would stay as it is.
bool lacksWindowManager(SDL_Window* window);

/// The accent on a key that waits for its letter, in UTF-8, for which SDL has no name; empty for other keys.
std::string deadKeyName(SDL_Window* window, SDL_Scancode key);

} // namespace ventrel
