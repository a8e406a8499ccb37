#include "platform/sdl/sdl_keys.h"

#include <algorithm>
#include <array>

namespace ventrel {

namespace {

struct Place {
    SDL_Scancode code;
    Key key;
};

constexpr std::array places{std::to_array<Place>({
    {SDL_SCANCODE_ESCAPE, Key::escape},
    {SDL_SCANCODE_RETURN, Key::enter},
    {SDL_SCANCODE_TAB, Key::tab},
    {SDL_SCANCODE_SPACE, Key::space},
    {SDL_SCANCODE_BACKSPACE, Key::backspace},
    {SDL_SCANCODE_INSERT, Key::insert},
    {SDL_SCANCODE_DELETE, Key::del},
    {SDL_SCANCODE_HOME, Key::home},
    {SDL_SCANCODE_END, Key::end},
    {SDL_SCANCODE_PAGEUP, Key::pageUp},
    {SDL_SCANCODE_PAGEDOWN, Key::pageDown},
    {SDL_SCANCODE_LEFT, Key::left},
    {SDL_SCANCODE_RIGHT, Key::right},
    {SDL_SCANCODE_UP, Key::up},
    {SDL_SCANCODE_DOWN, Key::down},
    {SDL_SCANCODE_PAUSE, Key::pause},
    {SDL_SCANCODE_APPLICATION, Key::menu},
    {SDL_SCANCODE_LALT, Key::alt},
    {SDL_SCANCODE_RALT, Key::alt},
    {SDL_SCANCODE_LSHIFT, Key::shift},
    {SDL_SCANCODE_RSHIFT, Key::shift},
    {SDL_SCANCODE_LCTRL, Key::control},
    {SDL_SCANCODE_RCTRL, Key::control},
    {SDL_SCANCODE_KP_DIVIDE, Key::keypadDivide},
    {SDL_SCANCODE_KP_MULTIPLY, Key::keypadMultiply},
    {SDL_SCANCODE_KP_MINUS, Key::keypadMinus},
    {SDL_SCANCODE_KP_PLUS, Key::keypadPlus},
    {SDL_SCANCODE_KP_ENTER, Key::keypadEnter},
    {SDL_SCANCODE_KP_PERIOD, Key::keypadPeriod},
    {SDL_SCANCODE_KP_0, Key::keypad0},
})};

struct Sign {
    SDL_Keycode code;
    Key key;
};

constexpr std::array signs{std::to_array<Sign>({
    {SDLK_MINUS, Key::minus},
    {SDLK_EQUALS, Key::equals},
    {SDLK_LEFTBRACKET, Key::leftBracket},
    {SDLK_RIGHTBRACKET, Key::rightBracket},
    {SDLK_SEMICOLON, Key::semicolon},
    {SDLK_QUOTE, Key::apostrophe},
    {SDLK_COMMA, Key::comma},
    {SDLK_PERIOD, Key::period},
    {SDLK_SLASH, Key::slash},
    {SDLK_BACKSLASH, Key::backslash},
    {SDLK_BACKQUOTE, Key::grave},
})};

/// The key that lies `offset` behind `first` in a row of keys.
Key keyBehind(Key first, int offset) {
    return static_cast<Key>(static_cast<int>(first) + offset);
}

/// What a key that writes something else bears on the keyboard of the United States: the letters of another
/// script and the digits behind accents stand where one's hands look for them.
Key keyAtPlace(SDL_Scancode code) {
    if (code >= SDL_SCANCODE_A && code <= SDL_SCANCODE_Z) {
        return keyBehind(Key::a, code - SDL_SCANCODE_A);
    }
    if (code >= SDL_SCANCODE_1 && code <= SDL_SCANCODE_9) {
        return keyBehind(Key::digit1, code - SDL_SCANCODE_1);
    }
    return code == SDL_SCANCODE_0 ? Key::digit0 : Key::unknown;
}

} // namespace

Key keyOf(const SDL_Keysym& sym) {
    const auto* const place = std::ranges::find(places, sym.scancode, &Place::code);
    if (place != places.end()) {
        return place->key;
    }
    if (sym.scancode >= SDL_SCANCODE_KP_1 && sym.scancode <= SDL_SCANCODE_KP_9) {
        return keyBehind(Key::keypad1, sym.scancode - SDL_SCANCODE_KP_1);
    }
    if (sym.scancode >= SDL_SCANCODE_F1 && sym.scancode <= SDL_SCANCODE_F12) {
        return keyBehind(Key::f1, sym.scancode - SDL_SCANCODE_F1);
    }
    if (sym.sym >= SDLK_a && sym.sym <= SDLK_z) {
        return keyBehind(Key::a, sym.sym - SDLK_a);
    }
    if (sym.sym >= SDLK_0 && sym.sym <= SDLK_9) {
        return keyBehind(Key::digit0, sym.sym - SDLK_0);
    }
    const auto* const sign = std::ranges::find(signs, sym.sym, &Sign::code);
    return sign != signs.end() ? sign->key : keyAtPlace(sym.scancode);
}

Modifiers modifiersOf(SDL_Keymod mod) {
    return {(mod & KMOD_SHIFT) != 0, (mod & KMOD_CTRL) != 0, (mod & KMOD_ALT) != 0};
}

} // namespace ventrel
