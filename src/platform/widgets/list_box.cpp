#include "platform/widgets/list_box.h"

#include <algorithm>

#include "base/letters.h"
#include "platform/widgets/scroll_bar.h"

namespace ventrel {

namespace {

constexpr int edge = 2;
constexpr int textIndent = 2;

// Letters that follow each other faster make one word to look for.
constexpr Millis typingPause = 900;

bool beginsWith(std::string_view line, std::string_view word) {
    return std::ranges::equal(line.substr(0, word.size()), word, {}, lowered, lowered);
}

bool comesFirst(std::string_view a, std::string_view b) {
    return std::ranges::lexicographical_compare(a, b, {}, lowered, lowered);
}

} // namespace

struct ListBox::State {
    ListBoxSetup setup;
    Window window;
    std::vector<std::string> lines;
    int selected = noListItem;
    int tabWidth = 0;
    ScrollBar bar;
    bool isChoosing = false; // the mouse is held over the lines
    std::string typed;       // letters of the word that is looked for
    Millis typedAt = 0;

    int count() const { return static_cast<int>(lines.size()); }
    int lineHeight() const { return setup.font->lineHeight(); }
    Rect inner() const { return window.area().grownBy(-edge); }
    Rect linesArea() const {
        const Rect area = inner();
        return {area.left, area.top, area.right - ScrollBar::width, area.bottom};
    }
    Rect barArea() const {
        const Rect area = inner();
        return {area.right - ScrollBar::width, area.top, area.right, area.bottom};
    }
    int page() const { return std::max(1, linesArea().height() / lineHeight()); }

    /// After a change of the lines or of the size.
    void layOut() {
        bar.lie(window, barArea());
        bar.setLines(count(), page());
        window.invalidate();
    }

    void select(int index, bool tells) {
        if (lines.empty()) {
            return;
        }
        selected = std::clamp(index, 0, count() - 1);
        if (selected < bar.top()) {
            bar.scrollTo(selected);
        } else if (selected >= bar.top() + page()) {
            bar.scrollTo(selected - page() + 1);
        }
        window.invalidate();
        if (tells) {
            window.sendCommand(setup.id, listSelectionChanged, window);
        }
    }

    int lineAt(Point p) const { return bar.top() + (p.y - linesArea().top) / lineHeight(); }

    void press(const MouseInput& mouse) {
        if (mouse.button != MouseButton::left) {
            return;
        }
        window.focus();
        if (bar.place().contains(mouse.position)) {
            bar.press(mouse.position);
            return;
        }
        const int line = lineAt(mouse.position);
        if (line >= count()) {
            return;
        }
        select(line, true);
        if (mouse.doubleClick) {
            window.sendCommand(setup.id, listDoubleClicked, window);
        } else {
            isChoosing = true;
            window.capture();
        }
    }

    void move(const MouseInput& mouse) {
        if (bar.isHeld()) {
            bar.move(mouse.position);
        } else if (isChoosing) {
            select(lineAt(mouse.position), true);
        }
    }

    void letGo() {
        isChoosing = false;
        bar.letGo();
    }

    bool key(const KeyEvent& event) {
        if (!event.down || event.modifiers.alt || event.modifiers.control) {
            return false;
        }
        switch (event.key) {
        case Key::up: select(selected - 1, true); return true;
        case Key::down: select(selected + 1, true); return true;
        case Key::pageUp: select(selected - page(), true); return true;
        case Key::pageDown: select(selected + page(), true); return true;
        case Key::home: select(0, true); return true;
        case Key::end: select(count() - 1, true); return true;
        default: return false;
        }
    }

    /// Chooses a line by its first letters; the same letter again and again walks the lines that begin with
    /// it.
    bool type(std::string_view words) {
        const Millis now = window.desktop()->now();
        if (now - typedAt > typingPause) {
            typed.clear();
        }
        typedAt = now;
        for (const char letter : words) {
            const bool isAgain = typed.size() == 1 && lowered(typed.front()) == lowered(letter);
            typed += isAgain ? std::string_view() : std::string_view(&letter, 1);
            chooseTyped();
        }
        return true;
    }

    void chooseTyped() {
        const int first = typed.size() == 1 ? selected + 1 : std::max(selected, 0);
        for (int step = 0; step < count(); ++step) {
            const int index = (first + step) % count();
            if (beginsWith(lines[static_cast<std::size_t>(index)], typed)) {
                select(index, true);
                return;
            }
        }
    }

    void paintLines(Canvas& canvas) const {
        const Rect area = linesArea();
        canvas.setClip(area);
        const int top = bar.top();
        for (int i = top; i < count() && (i - top) * lineHeight() < area.height(); ++i) {
            const int y = area.top + (i - top) * lineHeight();
            const Rect row{area.left, y, area.right, y + lineHeight()};
            const bool isSelected = i == selected;
            if (isSelected) {
                canvas.fill(row, look::selection);
            }
            const TextStyle style{isSelected ? look::selectedText : look::text, {}};
            drawTabbedText(canvas, *setup.font, {row.left + textIndent, y},
                           lines[static_cast<std::size_t>(i)], tabWidth, style);
            if (isSelected && window.hasFocus()) {
                drawFocusFrame(canvas, row);
            }
        }
        canvas.clearClip();
    }

    void paint(Canvas& canvas) const {
        canvas.fill(window.area(), look::field);
        paintLines(canvas);
        bar.paint(canvas);
        drawSunkenEdge(canvas, window.area());
    }
};

ListBox createListBox(Desktop& desktop, ListBoxSetup setup) {
    auto state = std::make_shared<ListBox::State>();
    state->setup = std::move(setup);
    WindowHandlers handlers;
    handlers.paint = [state](Canvas& canvas, const Rect&) { state->paint(canvas); };
    handlers.press = [state](const MouseInput& mouse) { state->press(mouse); };
    handlers.move = [state](const MouseInput& mouse) { state->move(mouse); };
    handlers.release = [state](const MouseInput&) {
        state->letGo();
        state->window.releaseCapture();
    };
    handlers.captureLost = [state] { state->letGo(); };
    handlers.timer = [state](int number) { state->bar.timer(number); };
    handlers.wheel = [state](int notches) {
        state->bar.scrollBy(-notches * ScrollBar::wheelLines);
        return true;
    };
    handlers.key = [state](const KeyEvent& event) { return state->key(event); };
    handlers.text = [state](std::string_view words) { return state->type(words); };
    handlers.focus = [state](bool) { state->window.invalidate(); };
    handlers.resized = [state](Size) { state->layOut(); };
    state->window = desktop.create({.parent = state->setup.parent,
                                    .id = state->setup.id,
                                    .bounds = state->setup.bounds,
                                    .handlers = std::move(handlers)});
    state->layOut();
    ListBox list;
    list.window = state->window;
    list.state_ = std::move(state);
    return list;
}

void ListBox::clear() const {
    state_->lines.clear();
    state_->selected = noListItem;
    state_->layOut();
}

void ListBox::add(std::string line) const {
    auto& lines = state_->lines;
    const auto place =
        state_->setup.sorted ? std::upper_bound(lines.begin(), lines.end(), line, comesFirst) : lines.end();
    lines.insert(place, std::move(line));
    state_->layOut();
}

int ListBox::count() const {
    return state_->count();
}

const std::string& ListBox::line(int index) const {
    return state_->lines[static_cast<std::size_t>(index)];
}

int ListBox::selected() const {
    return state_->selected;
}

void ListBox::select(int index) const {
    if (index == noListItem) {
        state_->selected = noListItem;
        window.invalidate();
        return;
    }
    state_->select(index, false);
}

void ListBox::setTabWidth(int pixels) const {
    state_->tabWidth = pixels;
    window.invalidate();
}

} // namespace ventrel
