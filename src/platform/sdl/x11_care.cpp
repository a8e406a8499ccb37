#include "platform/sdl/x11_care.h"

#include <SDL_syswm.h>
#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/keysym.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

namespace ventrel {

namespace {

using Handler = int (*)(Display*, XErrorEvent*);

/// A message to a window that is gone is passed over, anything else named.
int passOver(Display* display, XErrorEvent* error) {
    constexpr int sendEvent = 25; // the request's number in the protocol
    if (error->error_code != BadWindow || error->request_code != sendEvent) {
        std::array<char, 128> text{};
        XGetErrorText(display, error->error_code, text.data(), static_cast<int>(text.size()));
        std::fprintf(stderr, "The X server refuses request %d: %s\n", error->request_code, text.data());
    }
    return 0;
}

/// SDL's connection; null where the window is not one of an X server.
Display* displayOf(SDL_Window* window) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    const bool isX11 = SDL_GetWindowWMInfo(window, &info) == SDL_TRUE && info.subsystem == SDL_SYSWM_X11;
    return isX11 ? info.info.x11.display : nullptr;
}

/// The keys that some layout has an accent on, by the number that X servers give them.
struct NumberedKey {
    SDL_Scancode place;
    KeyCode number;
};
constexpr std::array numberedKeys{std::to_array<NumberedKey>({
    {SDL_SCANCODE_MINUS, 20},
    {SDL_SCANCODE_EQUALS, 21},
    {SDL_SCANCODE_LEFTBRACKET, 34},
    {SDL_SCANCODE_RIGHTBRACKET, 35},
    {SDL_SCANCODE_SEMICOLON, 47},
    {SDL_SCANCODE_APOSTROPHE, 48},
    {SDL_SCANCODE_GRAVE, 49},
})};

struct Accent {
    KeySym key;
    std::string_view sign; // UTF-8
};
constexpr std::array accents{std::to_array<Accent>({
    {XK_dead_grave, "`"},
    {XK_dead_acute, "\xC2\xB4"},
    {XK_dead_circumflex, "^"},
    {XK_dead_tilde, "~"},
    {XK_dead_diaeresis, "\xC2\xA8"},
    {XK_dead_cedilla, "\xC2\xB8"},
    {XK_dead_abovering, "\xC2\xB0"},
})};

} // namespace

XErrorsAreHarmless::XErrorsAreHarmless()
    : before_(reinterpret_cast<void (*)()>(XSetErrorHandler(passOver))) {}

XErrorsAreHarmless::~XErrorsAreHarmless() {
    XSetErrorHandler(reinterpret_cast<Handler>(before_));
}

bool lacksWindowManager(SDL_Window* window) {
    Display* display = displayOf(window);
    if (display == nullptr) {
        return false;
    }
    // A manager leaves the number of a window of its own on the root.
    const Atom mark = XInternAtom(display, "_NET_SUPPORTING_WM_CHECK", False);
    Atom type = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* value = nullptr;
    XGetWindowProperty(display, DefaultRootWindow(display), mark, 0, 1, False, XA_WINDOW, &type, &format,
                       &count, &left, &value);
    if (value != nullptr) {
        XFree(value);
    }
    return count == 0;
}

std::string deadKeyName(SDL_Window* window, SDL_Scancode key) {
    Display* display = displayOf(window);
    const auto* const numbered = std::ranges::find(numberedKeys, key, &NumberedKey::place);
    if (display == nullptr || numbered == numberedKeys.end()) {
        return {};
    }
    XkbStateRec state{};
    XkbGetState(display, XkbUseCoreKbd, &state);
    const KeySym written = XkbKeycodeToKeysym(display, numbered->number, state.group, 0);
    const auto* const accent = std::ranges::find(accents, written, &Accent::key);
    return accent == accents.end() ? std::string() : std::string(accent->sign);
}

} // namespace ventrel
