// What a person and the machine's own desktop do to the program, as values: keys, text, mouse, window events.

#pragma once

#include <string>
#include <variant>

#include "base/geometry.h"

namespace ventrel {

/// The keys that the program tells apart. Letters and digits carry their own names; keypad keys are distinct
/// from those of the main keyboard and do not depend on Num Lock.
// clang-format off
enum class Key {
    unknown,
    a, b, c, d, e, f, g, h, i, j, k, l, m, n, o, p, q, r, s, t, u, v, w, x, y, z,
    digit0, digit1, digit2, digit3, digit4, digit5, digit6, digit7, digit8, digit9,
    f1, f2, f3, f4, f5, f6, f7, f8, f9, f10, f11, f12,
    escape, enter, tab, space, backspace, insert, del, home, end, pageUp, pageDown,
    left, right, up, down, pause, menu, alt, shift, control,
    minus, equals, leftBracket, rightBracket, semicolon, apostrophe, comma, period, slash, backslash, grave,
    keypad0, keypad1, keypad2, keypad3, keypad4, keypad5, keypad6, keypad7, keypad8, keypad9,
    keypadDivide, keypadMultiply, keypadMinus, keypadPlus, keypadEnter, keypadPeriod,
};
// clang-format on

struct Modifiers {
    bool shift = false;
    bool control = false;
    bool alt = false;

    friend constexpr bool operator==(const Modifiers&, const Modifiers&) = default;
};

struct KeyEvent {
    Key key = Key::unknown; ///< by what the person's layout writes on it
    Modifiers modifiers;
    bool down = true;
    bool repeat = false; ///< sent again because the key is held
    Key place = key;     ///< by where it lies: what the keyboard of the United States has there
};

/// Typed characters, already composed, in Windows-1252. What that set lacks is left out.
struct TextEvent {
    std::string text;
};

enum class MouseButton { none, left, right, middle };

/// A move (`button` none, `wheel` 0), a press or release, or a turn of the wheel.
struct MouseEvent {
    Point position; ///< in the picture's pixels; outside it only while the mouse is captured
    MouseButton button = MouseButton::none;
    bool down = false;
    bool doubleClick = false; ///< with `down`: the second press of a double click
    int wheel = 0;            ///< notches, positive away from the user
    Modifiers modifiers;
};

/// What happened to the program's window on the machine's own desktop.
enum class WindowEvent {
    exposed, ///< everything must be sent again
    activated,
    deactivated,
    minimised,
    restored,
    closeRequested,
    endRequired,    ///< the program is to end without a question: a signal, or the session is over
    displayChanged, ///< another size, scale or screen
};

using InputEvent = std::variant<KeyEvent, TextEvent, MouseEvent, WindowEvent>;

} // namespace ventrel
