#include "platform/widgets/button.h"

namespace ventrel {

struct Button::State {
    ButtonSetup setup;
    Window window;
    bool isHeld = false;    // by the mouse or the space bar
    bool isPressed = false; // held, and the mouse is over it

    void setPressed(bool pressed) {
        if (isPressed != pressed) {
            isPressed = pressed;
            window.invalidate();
        }
    }

    void hold() {
        isHeld = true;
        setPressed(true);
    }

    /// Lets go; the command is sent when the mouse is still over it.
    void letGo() {
        const bool isChosen = isHeld && isPressed;
        isHeld = false;
        setPressed(false);
        if (isChosen) {
            window.sendCommand(setup.id, 0, window);
        }
    }

    /// The keyboard came or went; the space bar does not hold on to a button that it left.
    void turn(bool gained) {
        if (!gained && isHeld && !window.hasCapture()) {
            isHeld = false;
            isPressed = false;
        }
        window.invalidate();
        if (setup.onFocus) {
            setup.onFocus(gained);
        }
    }

    void paint(Canvas& canvas) const {
        Rect rect = window.area();
        canvas.fill(rect, look::face);
        if (setup.isDefault) {
            canvas.frame(rect, look::darkShadow);
            rect = rect.grownBy(-1);
        }
        drawButtonEdge(canvas, rect, isPressed);
        const Rect box = isPressed ? rect.movedBy({1, 1}) : rect;
        const TextLayout layout{.across = Align::middle, .down = Align::middle, .mnemonics = true};
        drawLabel(canvas, *setup.font, box, setup.text, window.isEnabled(), layout);
        if (window.hasFocus()) {
            constexpr int focusInset = 3;
            drawFocusFrame(canvas, rect.grownBy(-focusInset));
        }
    }

    bool key(const KeyEvent& event) {
        if (event.key != Key::space || event.repeat) {
            return event.key == Key::space;
        }
        if (event.down) {
            hold();
        } else {
            letGo();
        }
        return true;
    }
};

namespace {

template <typename State>
WindowHandlers buttonHandlers(const std::shared_ptr<State>& state) {
    WindowHandlers handlers;
    handlers.paint = [state](Canvas& canvas, const Rect&) { state->paint(canvas); };
    handlers.press = [state](const MouseInput& mouse) {
        if (mouse.button != MouseButton::left) {
            return;
        }
        if (state->setup.takesFocus) {
            state->window.focus();
        }
        state->window.capture();
        state->hold();
    };
    handlers.move = [state](const MouseInput& mouse) {
        if (state->isHeld) {
            state->setPressed(state->window.area().contains(mouse.position));
        }
    };
    handlers.release = [state](const MouseInput& mouse) {
        if (mouse.button == MouseButton::left && state->isHeld) {
            state->window.releaseCapture();
            state->letGo();
        }
    };
    handlers.captureLost = [state] {
        state->isHeld = false;
        state->setPressed(false);
    };
    handlers.key = [state](const KeyEvent& event) { return state->key(event); };
    handlers.focus = [state](bool gained) { state->turn(gained); };
    handlers.cursor = [state](Point) -> std::optional<Cursor> {
        if (state->setup.cursor != nullptr) {
            return state->setup.cursor;
        }
        return StandardCursor::arrow;
    };
    return handlers;
}

} // namespace

Button createButton(Desktop& desktop, ButtonSetup setup) {
    auto state = std::make_shared<Button::State>();
    state->setup = std::move(setup);
    state->window = desktop.create({.parent = state->setup.parent,
                                    .id = state->setup.id,
                                    .bounds = state->setup.bounds,
                                    .enabled = state->setup.enabled,
                                    .handlers = buttonHandlers(state)});
    Button button;
    button.window = state->window;
    button.state_ = std::move(state);
    return button;
}

void Button::setText(std::string text) const {
    state_->setup.text = std::move(text);
    window.invalidate();
}

const std::string& Button::text() const {
    return state_->setup.text;
}

void Button::setDefault(bool isDefault) const {
    if (state_->setup.isDefault != isDefault) {
        state_->setup.isDefault = isDefault;
        window.invalidate();
    }
}

void Button::enable(bool enabled) const {
    window.enable(enabled);
    window.invalidate();
}

void Button::showPressed(bool pressed) const {
    if (!state_->isHeld) {
        state_->setPressed(pressed);
    }
}

void Button::press() const {
    if (window.isEnabled()) {
        window.sendCommand(state_->setup.id, 0, window);
    }
}

} // namespace ventrel
