#include "platform/widgets/toggle.h"

namespace ventrel {

struct Toggle::State {
    ToggleSetup setup;
    Window window;
    bool checked = false;
    bool isHeld = false;    // by the mouse
    bool isPressed = false; // held, and the mouse is over it
    std::function<void()> onChosen;

    void setPressed(bool pressed) {
        if (isPressed != pressed) {
            isPressed = pressed;
            window.invalidate();
        }
    }

    void press() {
        window.focus();
        window.capture();
        isHeld = true;
        setPressed(true);
    }

    /// Lets go; whether the mouse was still over it.
    bool letGo() {
        const bool isChosen = isHeld && isPressed;
        isHeld = false;
        setPressed(false);
        return isChosen;
    }

    void choose() {
        checked = setup.kind == ToggleKind::radioButton || !checked;
        if (onChosen) {
            onChosen();
        }
        window.invalidate();
        window.sendCommand(setup.id, 0, window);
    }

    void paint(Canvas& canvas) const {
        constexpr int gap = 5; // between the mark and its text
        const Rect area = window.area();
        canvas.fill(area, look::face);
        const Point mark{0, (area.height() - toggleMarkSize) / 2};
        const ToggleLook look = !window.isEnabled() ? ToggleLook::greyed
                                : isPressed         ? ToggleLook::pressed
                                                    : ToggleLook::ready;
        if (setup.kind == ToggleKind::checkBox) {
            drawCheckBox(canvas, mark, checked, look);
        } else {
            drawRadioRing(canvas, mark, checked, look);
        }
        const Rect box{toggleMarkSize + gap, 0, area.right, area.bottom};
        const TextLayout layout{.down = Align::middle, .singleLine = true, .mnemonics = true};
        drawLabel(canvas, *setup.font, box, setup.text, window.isEnabled(), layout);
        if (window.hasFocus()) {
            const Size size = measureText(*setup.font, setup.text, box.width(), layout);
            const int top = (area.height() - size.height) / 2;
            drawFocusFrame(canvas, {box.left - 2, top - 1, box.left + size.width + 2, top + size.height + 1});
        }
    }
};

Toggle createToggle(Desktop& desktop, ToggleSetup setup) {
    auto state = std::make_shared<Toggle::State>();
    state->setup = std::move(setup);
    WindowHandlers handlers;
    handlers.paint = [state](Canvas& canvas, const Rect&) { state->paint(canvas); };
    handlers.press = [state](const MouseInput& mouse) {
        if (mouse.button == MouseButton::left) {
            state->press();
        }
    };
    handlers.move = [state](const MouseInput& mouse) {
        if (state->isHeld) {
            state->setPressed(state->window.area().contains(mouse.position));
        }
    };
    handlers.release = [state](const MouseInput& mouse) {
        if (mouse.button == MouseButton::left && state->isHeld) {
            state->window.releaseCapture();
            if (state->letGo()) {
                state->choose();
            }
        }
    };
    handlers.captureLost = [state] { state->letGo(); };
    handlers.key = [state](const KeyEvent& event) {
        const bool isSpace = event.key == Key::space;
        if (isSpace && event.down && !event.repeat) {
            state->choose();
        }
        return isSpace;
    };
    handlers.focus = [state](bool) { state->window.invalidate(); };
    state->window = desktop.create({.parent = state->setup.parent,
                                    .id = state->setup.id,
                                    .bounds = state->setup.bounds,
                                    .handlers = std::move(handlers)});
    Toggle toggle;
    toggle.window = state->window;
    toggle.state_ = std::move(state);
    return toggle;
}

bool Toggle::isChecked() const {
    return state_->checked;
}

void Toggle::setChecked(bool checked) const {
    if (state_->checked != checked) {
        state_->checked = checked;
        window.invalidate();
    }
}

void Toggle::enable(bool enabled) const {
    window.enable(enabled);
    window.invalidate();
}

const std::string& Toggle::text() const {
    return state_->setup.text;
}

void Toggle::choose() const {
    if (window.isEnabled()) {
        state_->choose();
    }
}

void Toggle::setOnChosen(std::function<void()> onChosen) const {
    state_->onChosen = std::move(onChosen);
}

} // namespace ventrel
