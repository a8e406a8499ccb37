#include "platform/widgets/edit.h"

#include <algorithm>

#include "platform/widgets/edit_text.h"

namespace ventrel {

namespace {

constexpr int inset = 4; // of the text inside the field's edge
constexpr int blinkTimer = 1;
constexpr Millis blinkPeriod = 530;

} // namespace

struct Edit::State {
    EditSetup setup;
    Window window;
    EditText line;
    int scrolled = 0; // pixels of the text that are hidden at the left
    bool caretShown = false;
    bool isDragging = false;

    int textWidth(std::size_t characters) const {
        return setup.font->width(std::string_view(line.text).substr(0, characters));
    }
    int innerWidth() const { return window.size().width - 2 * inset; }

    /// The place between characters that is nearest to a position in the window.
    std::size_t placeAt(int x) const {
        const int wanted = x - inset + scrolled;
        std::size_t place = 0;
        while (place < line.text.size() && (textWidth(place) + textWidth(place + 1)) / 2 < wanted) {
            ++place;
        }
        return place;
    }

    /// Keeps the caret in view and shows it at once.
    void refresh() {
        const int caret = textWidth(line.caret);
        if (caret < scrolled) {
            scrolled = std::max(0, caret - innerWidth() / 4);
        } else if (caret > scrolled + innerWidth() - 1) {
            scrolled = caret - innerWidth() + 1;
        }
        blink();
    }

    /// The caret blinks from now on, unless there is none: without the keyboard, or with a selection.
    void blink() {
        caretShown = window.hasFocus() && !line.hasSelection();
        if (caretShown) {
            window.startTimer(blinkTimer, blinkPeriod);
        } else {
            window.stopTimer(blinkTimer);
        }
        window.invalidate();
    }

    void change(bool changes) {
        refresh();
        if (changes) {
            window.sendCommand(setup.id, editChanged, window);
        }
    }

    void move(std::size_t place, bool extend) {
        line.moveTo(place, extend);
        refresh();
    }

    void copy() const {
        if (line.hasSelection()) {
            window.desktop()->backend().setClipboard(line.selected());
        }
    }

    bool editsKey(const KeyEvent& event) {
        const bool control = event.modifiers.control;
        const bool shift = event.modifiers.shift;
        const bool copies = control && (event.key == Key::c || event.key == Key::insert);
        const bool cuts = (control && event.key == Key::x) || (shift && event.key == Key::del);
        const bool pastes = (control && event.key == Key::v) || (shift && event.key == Key::insert);
        if (copies || cuts) {
            copy();
        }
        if (setup.readOnly || copies) {
            return copies || cuts || pastes;
        }
        if (cuts) {
            if (!line.hasSelection()) {
                return true;
            }
            line.erase(true);
        } else if (pastes) {
            line.insert(window.desktop()->backend().clipboard());
        } else if (event.key == Key::backspace || event.key == Key::del) {
            line.erase(event.key == Key::del);
        } else {
            return false;
        }
        change(true);
        return true;
    }

    bool movesKey(const KeyEvent& event) {
        const bool control = event.modifiers.control;
        const bool extend = event.modifiers.shift;
        switch (event.key) {
        case Key::up:
        case Key::left:
            move(control ? line.wordLeft() : line.caret - (line.caret > 0 ? 1 : 0), extend);
            return true;
        case Key::down:
        case Key::right: move(control ? line.wordRight() : line.caret + 1, extend); return true;
        case Key::home: move(0, extend); return true;
        case Key::end: move(line.text.size(), extend); return true;
        case Key::a:
            if (control) {
                line.selectAll();
                refresh();
            }
            return control;
        default: return false;
        }
    }

    bool key(const KeyEvent& event) {
        if (!event.down || event.modifiers.alt) {
            return false;
        }
        return editsKey(event) || movesKey(event);
    }

    bool type(std::string_view words) {
        if (!setup.readOnly) {
            line.insert(words);
            change(true);
        }
        return true;
    }

    void press(const MouseInput& mouse) {
        if (mouse.button != MouseButton::left) {
            return;
        }
        window.focus();
        if (mouse.doubleClick) {
            line.selectWordAt(line.caret);
            refresh();
            return;
        }
        window.capture();
        isDragging = true;
        move(placeAt(mouse.position.x), mouse.modifiers.shift);
    }

    void paintSelection(Canvas& canvas, const Rect& inner, Point corner) const {
        const Rect chosen{corner.x + textWidth(line.selectionStart()), corner.y,
                          corner.x + textWidth(line.selectionEnd()), corner.y + setup.font->lineHeight()};
        const Rect visible = chosen.intersectedWith(inner);
        if (!visible.isEmpty()) {
            canvas.fill(visible, look::selection);
            setup.font->draw(canvas, corner, line.text, look::selectedText, visible);
        }
    }

    void paint(Canvas& canvas) const {
        const Rect area = window.area();
        canvas.fill(area, setup.readOnly || !window.isEnabled() ? look::face : look::field);
        drawSunkenEdge(canvas, area);
        const Rect inner = area.grownBy(-2);
        const Point corner{inset - scrolled, (area.height() - setup.font->lineHeight()) / 2};
        setup.font->draw(canvas, corner, line.text, window.isEnabled() ? look::text : look::greyText, inner);
        if (!window.hasFocus()) {
            return;
        }
        if (line.hasSelection()) {
            paintSelection(canvas, inner, corner);
        } else if (caretShown) {
            const int x = corner.x + textWidth(line.caret);
            canvas.line({x, corner.y}, {x, corner.y + setup.font->lineHeight()}, look::text);
        }
    }
};

Edit createEdit(Desktop& desktop, EditSetup setup) {
    auto state = std::make_shared<Edit::State>();
    state->line.limit = setup.limit;
    state->setup = std::move(setup);
    WindowHandlers handlers;
    handlers.paint = [state](Canvas& canvas, const Rect&) { state->paint(canvas); };
    handlers.press = [state](const MouseInput& mouse) { state->press(mouse); };
    handlers.move = [state](const MouseInput& mouse) {
        if (state->isDragging) {
            state->move(state->placeAt(mouse.position.x), true);
        }
    };
    handlers.release = [state](const MouseInput&) {
        state->isDragging = false;
        state->window.releaseCapture();
    };
    handlers.captureLost = [state] { state->isDragging = false; };
    handlers.key = [state](const KeyEvent& event) { return state->key(event); };
    handlers.text = [state](std::string_view words) { return state->type(words); };
    handlers.cursor = [](Point) { return std::optional<Cursor>(StandardCursor::beam); };
    handlers.timer = [state](int) {
        state->caretShown = !state->caretShown;
        state->window.invalidate();
    };
    handlers.focus = [state](bool) { state->blink(); };
    state->window = desktop.create({.parent = state->setup.parent,
                                    .id = state->setup.id,
                                    .bounds = state->setup.bounds,
                                    .handlers = std::move(handlers)});
    Edit edit;
    edit.window = state->window;
    edit.state_ = std::move(state);
    return edit;
}

void Edit::setText(std::string text) const {
    state_->line.text = std::move(text);
    state_->line.moveTo(0, false);
    state_->refresh();
}

const std::string& Edit::text() const {
    return state_->line.text;
}

void Edit::selectAll() const {
    state_->line.selectAll();
    state_->refresh();
}

} // namespace ventrel
