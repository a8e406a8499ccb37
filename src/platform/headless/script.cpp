#include "platform/headless/script.h"

#include <array>

namespace ventrel {

namespace {

constexpr int dragSteps = 4;

struct TypingKey {
    char character = 0;
    Key key = Key::unknown;
};
constexpr std::array typingKeys{
    TypingKey{' ', Key::space},     TypingKey{'-', Key::minus},       TypingKey{'=', Key::equals},
    TypingKey{',', Key::comma},     TypingKey{'.', Key::period},      TypingKey{'/', Key::slash},
    TypingKey{';', Key::semicolon}, TypingKey{'\'', Key::apostrophe},
};

constexpr Key keyFrom(Key first, int offset) {
    return static_cast<Key>(static_cast<int>(first) + offset);
}

KeyEvent typingKey(char character) {
    if (character >= 'a' && character <= 'z') {
        return {keyFrom(Key::a, character - 'a'), {}, true, false};
    }
    if (character >= 'A' && character <= 'Z') {
        return {keyFrom(Key::a, character - 'A'), withShift, true, false};
    }
    if (character >= '0' && character <= '9') {
        return {keyFrom(Key::digit0, character - '0'), {}, true, false};
    }
    for (const TypingKey& known : typingKeys) {
        if (known.character == character) {
            return {known.key, {}, true, false};
        }
    }
    return {};
}

MouseEvent mouse(Point position, MouseButton button = MouseButton::none, bool down = false) {
    MouseEvent event;
    event.position = position;
    event.button = button;
    event.down = down;
    return event;
}

} // namespace

Script::Script(HeadlessBackend& backend) : backend_(&backend), time_(backend.now()) {}

Script& Script::add(InputEvent event) {
    backend_->addInput(time_, std::move(event));
    return *this;
}

Script& Script::wait(Millis duration) {
    time_ += duration;
    return *this;
}

Script& Script::then(std::function<void()> action) {
    backend_->addAction(time_, std::move(action));
    return *this;
}

Script& Script::moveTo(Point position) {
    return add(mouse(position));
}

Script& Script::press(Point position, MouseButton button) {
    return add(mouse(position, button, true));
}

Script& Script::release(Point position, MouseButton button) {
    return add(mouse(position, button));
}

Script& Script::click(Point position, MouseButton button) {
    return moveTo(position).press(position, button).release(position, button);
}

Script& Script::doubleClick(Point position) {
    click(position);
    MouseEvent second = mouse(position, MouseButton::left, true);
    second.doubleClick = true;
    return add(second).release(position);
}

Script& Script::drag(Point from, Point to) {
    press(from);
    const Point way = to - from;
    for (int step = 1; step <= dragSteps; ++step) {
        moveTo(from + Point{way.x * step / dragSteps, way.y * step / dragSteps});
    }
    return release(to);
}

Script& Script::wheel(Point position, int notches) {
    MouseEvent turn = mouse(position);
    turn.wheel = notches;
    return add(turn);
}

Script& Script::key(Key key, Modifiers modifiers) {
    return keyDown(key, modifiers).keyUp(key, modifiers);
}

Script& Script::keyDown(Key key, Modifiers modifiers, bool repeat) {
    return add(KeyEvent{key, modifiers, true, repeat});
}

Script& Script::keyUp(Key key, Modifiers modifiers) {
    return add(KeyEvent{key, modifiers, false, false});
}

Script& Script::type(std::string_view text) {
    for (const char character : text) {
        KeyEvent event = typingKey(character);
        add(event);
        add(TextEvent{std::string(1, character)});
        event.down = false;
        add(event);
    }
    return *this;
}

Script& Script::window(WindowEvent event) {
    return add(event);
}

} // namespace ventrel
