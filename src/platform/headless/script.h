// What a person does at the headless machine, written down as a story:
//
//     Script(backend).click({40, 28}).wait(300).type("mary").key(Key::enter).then([&] { EXPECT_TRUE(...); });
//
// Each step is added to the backend's timeline as it is called; the program then runs through it. Steps
// follow each other at the same moment unless `wait` lets time pass.

#pragma once

#include "platform/headless/headless_backend.h"

namespace ventrel {

class Script {
public:
    /// Goes on where the backend's clock stands.
    explicit Script(HeadlessBackend& backend);

    /// Lets time pass.
    Script& wait(Millis duration);
    /// Does something once all that came before has been handled, painted and sent: looks, expects, quits.
    Script& then(std::function<void()> action);

    Script& moveTo(Point position);
    Script& press(Point position, MouseButton button = MouseButton::left);
    Script& release(Point position, MouseButton button = MouseButton::left);
    /// Move, press and release.
    Script& click(Point position, MouseButton button = MouseButton::left);
    Script& doubleClick(Point position);
    /// Presses at `from`, moves in a few steps, releases at `to`.
    Script& drag(Point from, Point to);
    Script& wheel(Point position, int notches);

    /// Presses and releases a key that types nothing.
    Script& key(Key key, Modifiers modifiers = {});
    Script& keyDown(Key key, Modifiers modifiers = {}, bool repeat = false);
    Script& keyUp(Key key, Modifiers modifiers = {});
    /// Types a text (Windows-1252) with the keys that make it, where the program knows them.
    Script& type(std::string_view text);

    Script& window(WindowEvent event);

private:
    Script& add(InputEvent event);

    HeadlessBackend* backend_;
    Millis time_;
};

inline constexpr Modifiers withAlt{false, false, true};
inline constexpr Modifiers withControl{false, true, false};
inline constexpr Modifiers withShift{true, false, false};

} // namespace ventrel
