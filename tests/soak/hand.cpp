#include "tests/soak/hand.h"

#include "base/format.h"
#include "base/windows1252.h"

namespace ventrel {

namespace {

std::string at(Point place) {
    return " " + std::to_string(place.x) + "," + std::to_string(place.y);
}

std::string number(auto value) {
    return " " + std::to_string(static_cast<int>(value));
}

} // namespace

void Hand::wait(Millis duration) {
    journal_.note("wait" + number(duration));
    script_.wait(duration);
}

void Hand::moveTo(Point place) {
    journal_.note("move" + at(place));
    script_.moveTo(place);
}

void Hand::press(Point place, MouseButton button) {
    journal_.note("press" + number(button) + at(place));
    script_.press(place, button);
}

void Hand::release(Point place, MouseButton button) {
    journal_.note("release" + number(button) + at(place));
    script_.release(place, button);
}

void Hand::click(Point place, MouseButton button) {
    journal_.note("click" + number(button) + at(place));
    script_.click(place, button);
}

void Hand::doubleClick(Point place) {
    journal_.note("double click" + at(place));
    script_.doubleClick(place);
}

void Hand::drag(Point from, Point to) {
    journal_.note("drag" + at(from) + " to" + at(to));
    script_.moveTo(from).drag(from, to);
}

void Hand::wheel(Point place, int notches) {
    journal_.note("wheel" + number(notches) + at(place));
    script_.wheel(place, notches);
}

void Hand::key(Key key, Modifiers modifiers) {
    journal_.note("key" + number(key) + (modifiers.shift ? " shift" : "") +
                  (modifiers.control ? " control" : "") + (modifiers.alt ? " alt" : ""));
    script_.key(key, modifiers);
}

void Hand::type(std::string_view text) {
    journal_.note("type " + toTerminal(text));
    script_.type(text);
}

void Hand::window(WindowEvent event) {
    journal_.note("window event" + number(event));
    script_.window(event);
}

} // namespace ventrel
