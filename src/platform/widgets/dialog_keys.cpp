// The keyboard in a dialog: Tab and arrows, mnemonics, Enter and Esc, and which button Enter presses.

#include <algorithm>

#include "platform/widgets/dialog.h"
#include "platform/widgets/menu.h"

namespace ventrel {

namespace {

bool isButton(ControlKind kind) {
    return kind == ControlKind::pushButton || kind == ControlKind::defaultButton;
}

bool isStillText(ControlKind kind) {
    return kind == ControlKind::staticText || kind == ControlKind::groupBox;
}

} // namespace

bool Dialog::canFocus(const Placed& control) const {
    return !isStillText(control.shape.kind) && control.window.isVisible() && control.window.isEnabled();
}

std::size_t Dialog::focusIndex() const {
    const auto found =
        std::ranges::find_if(controls_, [](const Placed& control) { return control.window.hasFocus(); });
    return static_cast<std::size_t>(found - controls_.begin());
}

/// A group of radio buttons counts as one: its chosen button gets the keyboard, the first without any.
bool Dialog::isTabStop(std::size_t index) const {
    if (!canFocus(controls_[index])) {
        return false;
    }
    if (controls_[index].shape.kind != ControlKind::radioButton) {
        return true;
    }
    const auto isChosen = [&](std::size_t i) { return std::get<Toggle>(controls_[i].control).isChecked(); };
    const Group group = radioGroup(index);
    std::size_t firstUsable = group.end;
    for (std::size_t i = group.end; i-- > group.first;) {
        firstUsable = canFocus(controls_[i]) ? i : firstUsable;
        if (isChosen(i) && canFocus(controls_[i])) {
            return i == index;
        }
    }
    return index == firstUsable;
}

void Dialog::focusControl(const Placed& control) {
    control.window.focus();
    if (const auto* edit = std::get_if<Edit>(&control.control)) {
        edit->selectAll();
    }
}

/// To the next control that can have the keyboard, round the ends.
void Dialog::moveFocus(int direction) {
    const auto count = static_cast<int>(controls_.size());
    const int start = static_cast<int>(focusIndex());
    int index = start == count && direction > 0 ? -1 : start;
    for (int step = 0; step < count; ++step) {
        index = (index + direction + count) % count;
        if (isTabStop(static_cast<std::size_t>(index))) {
            focusControl(controls_[static_cast<std::size_t>(index)]);
            return;
        }
    }
}

/// To the next radio button of the group, round its ends; it is chosen at once.
void Dialog::moveWithinGroup(int direction) {
    const std::size_t focused = focusIndex();
    const Group group = radioGroup(focused);
    const std::size_t count = group.end - group.first;
    const std::size_t step = direction > 0 ? 1 : count - 1;
    for (std::size_t place = focused - group.first + step; place % count != focused - group.first;
         place += step) {
        const Placed& control = controls_[group.first + place % count];
        if (canFocus(control)) {
            control.window.focus();
            std::get<Toggle>(control.control).choose();
            return;
        }
    }
}

bool Dialog::key(const KeyEvent& event) {
    if (!event.down) {
        return false;
    }
    const std::size_t focused = focusIndex();
    const bool isOnRadio =
        focused < controls_.size() && controls_[focused].shape.kind == ControlKind::radioButton;
    const auto walk = [&](int direction) { isOnRadio ? moveWithinGroup(direction) : moveFocus(direction); };
    // A key that is still held since before must not press what has opened under it.
    const bool isHeldOn = event.repeat;
    switch (event.key) {
    case Key::tab: moveFocus(event.modifiers.shift ? -1 : 1); return true;
    case Key::left:
    case Key::up: walk(-1); return true;
    case Key::right:
    case Key::down: walk(1); return true;
    case Key::enter:
    case Key::keypadEnter:
        if (!isHeldOn) {
            pressDefault();
        }
        return true;
    case Key::escape:
        if (!isHeldOn && handlers_.escapeCommand != noEscape) {
            commandOf(handlers_.escapeCommand);
        }
        return true;
    default: break;
    }
    return event.modifiers.alt && !isHeldOn && takeMnemonic(letterOf(event.key));
}

/// Letters that no field has taken are mnemonics too.
bool Dialog::type(std::string_view words) {
    if (!words.empty()) {
        takeMnemonic(mnemonicOf("&" + std::string(words.substr(0, 1))));
    }
    return true;
}

/// The first control with that letter behind the one that has the keyboard.
bool Dialog::takeMnemonic(char letter) {
    const std::size_t count = controls_.size();
    const std::size_t start = focusIndex() < count ? focusIndex() : count - 1;
    for (std::size_t step = 1; step <= count && letter != '\0'; ++step) {
        const std::size_t index = (start + step) % count;
        const bool isStill = isStillText(controls_[index].shape.kind);
        if (mnemonicOf(controls_[index].shape.text) == letter && (isStill || canFocus(controls_[index]))) {
            takeMnemonicOf(index);
            return true;
        }
    }
    return false;
}

/// A text that cannot have the keyboard stands for the control behind it.
void Dialog::takeMnemonicOf(std::size_t index) {
    while (index < controls_.size() && !canFocus(controls_[index])) {
        ++index;
    }
    if (index == controls_.size()) {
        return;
    }
    const Placed& control = controls_[index];
    focusControl(control);
    if (const auto* button = std::get_if<Button>(&control.control)) {
        button->press();
    } else if (const auto* toggle = std::get_if<Toggle>(&control.control)) {
        toggle->choose();
    }
}

/// The dark frame shows which button Enter presses.
void Dialog::markDefault() {
    const std::size_t focused = focusIndex();
    const bool isOnButton = focused < controls_.size() && isButton(controls_[focused].shape.kind);
    for (std::size_t i = 0; i < controls_.size(); ++i) {
        if (const auto* button = std::get_if<Button>(&controls_[i].control)) {
            const bool isFirstChoice = controls_[i].shape.kind == ControlKind::defaultButton;
            button->setDefault(isOnButton ? i == focused : isFirstChoice);
        }
    }
}

/// The button that has the keyboard, else the default one.
void Dialog::pressDefault() {
    const std::size_t focused = focusIndex();
    if (focused < controls_.size() && isButton(controls_[focused].shape.kind)) {
        std::get<Button>(controls_[focused].control).press();
        return;
    }
    for (const Placed& control : controls_) {
        if (control.shape.kind == ControlKind::defaultButton) {
            std::get<Button>(control.control).press();
            return;
        }
    }
}

} // namespace ventrel
