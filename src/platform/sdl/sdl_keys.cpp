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
    {SDL_SCANCODE_0, Key::digit0},
    {SDL_SCANCODE_MINUS, Key::minus},
    {SDL_SCANCODE_EQUALS, Key::equals},
    {SDL_SCANCODE_LEFTBRACKET, Key::leftBracket},
    {SDL_SCANCODE_RIGHTBRACKET, Key::rightBracket},
    {SDL_SCANCODE_SEMICOLON, Key::semicolon},
    {SDL_SCANCODE_APOSTROPHE, Key::apostrophe},
    {SDL_SCANCODE_COMMA, Key::comma},
    {SDL_SCANCODE_PERIOD, Key::period},
    {SDL_SCANCODE_SLASH, Key::slash},
    {SDL_SCANCODE_BACKSLASH, Key::backslash},
    {SDL_SCANCODE_GRAVE, Key::grave},
})};

/// Keys that lie one behind the other in both lists.
struct Row {
    SDL_Scancode first;
    SDL_Scancode last;
    Key key;
};

constexpr std::array rows{std::to_array<Row>({
    {SDL_SCANCODE_A, SDL_SCANCODE_Z, Key::a},
    {SDL_SCANCODE_1, SDL_SCANCODE_9, Key::digit1},
    {SDL_SCANCODE_F1, SDL_SCANCODE_F12, Key::f1},
    {SDL_SCANCODE_KP_1, SDL_SCANCODE_KP_9, Key::keypad1},
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

/// Whether what is written on it depends on the person's layout.
bool isWritten(Key key) {
    return (key >= Key::a && key <= Key::digit9) || (key >= Key::minus && key <= Key::grave);
}

} // namespace

Key placeOf(SDL_Scancode code) {
    const auto* const row = std::ranges::find_if(
        rows, [code](const Row& each) { return code >= each.first && code <= each.last; });
    if (row != rows.end()) {
        return keyBehind(row->key, code - row->first);
    }
    const auto* const place = std::ranges::find(places, code, &Place::code);
    return place != places.end() ? place->key : Key::unknown;
}

SDL_Scancode scancodeOf(Key place) {
    int code = 0;
    while (code < SDL_NUM_SCANCODES && placeOf(static_cast<SDL_Scancode>(code)) != place) {
        ++code;
    }
    return code < SDL_NUM_SCANCODES ? static_cast<SDL_Scancode>(code) : SDL_SCANCODE_UNKNOWN;
}

Key keyOf(const SDL_Keysym& sym) {
    const Key place = placeOf(sym.scancode);
    if (place != Key::unknown && !isWritten(place)) {
        return place;
    }
    if (sym.sym >= SDLK_a && sym.sym <= SDLK_z) {
        return keyBehind(Key::a, sym.sym - SDLK_a);
    }
    if (sym.sym >= SDLK_0 && sym.sym <= SDLK_9) {
        return keyBehind(Key::digit0, sym.sym - SDLK_0);
    }
    const auto* const sign = std::ranges::find(signs, sym.sym, &Sign::code);
    return sign != signs.end() ? sign->key : place;
}

Modifiers modifiersOf(SDL_Keymod mod) {
    return {(mod & KMOD_SHIFT) != 0, (mod & KMOD_CTRL) != 0, (mod & KMOD_ALT) != 0};
}

} // namespace ventrel
