#include "platform/widgets/list_box.h"

#include <algorithm>

#include "base/letters.h"

namespace ventrel {

namespace {

constexpr int edge = 2;
constexpr int barWidth = 16;
constexpr int textIndent = 2;
constexpr int shortestThumb = 8;
constexpr int wheelLines = 3;

// A part of the scroll bar that is held scrolls on.
constexpr int repeatTimer = 1;
constexpr Millis firstRepeat = 400;
constexpr Millis nextRepeats = 60;

// Letters that follow each other faster make one word to look for.
constexpr Millis typingPause = 900;

enum class BarPart { none, up, down, pageUp, pageDown };

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
    int top = 0;
    int tabWidth = 0;
    bool isChoosing = false;      // the mouse is held over the lines
    std::optional<int> thumbGrip; // pixels from the thumb's top to the mouse that holds it
    BarPart held = BarPart::none; // of the scroll bar, by the mouse
    Point heldAt;                 // where the mouse is meanwhile
    std::string typed;            // letters of the word that is looked for
    Millis typedAt = 0;

    int count() const { return static_cast<int>(lines.size()); }
    int lineHeight() const { return setup.font->lineHeight(); }
    Rect inner() const { return window.area().grownBy(-edge); }
    Rect linesArea() const {
        const Rect area = inner();
        return {area.left, area.top, area.right - barWidth, area.bottom};
    }
    Rect bar() const {
        const Rect area = inner();
        return {area.right - barWidth, area.top, area.right, area.bottom};
    }
    Rect upArrow() const { return {bar().left, bar().top, bar().right, bar().top + barWidth}; }
    Rect downArrow() const { return {bar().left, bar().bottom - barWidth, bar().right, bar().bottom}; }
    Rect track() const { return {bar().left, upArrow().bottom, bar().right, downArrow().top}; }
    int page() const { return std::max(1, linesArea().height() / lineHeight()); }
    int lastTop() const { return std::max(0, count() - page()); }

    Rect thumb() const {
        const Rect whole = track();
        if (lastTop() == 0) {
            return {};
        }
        const int height = std::max(shortestThumb, whole.height() * page() / count());
        const int y = whole.top + (whole.height() - height) * top / lastTop();
        return {whole.left, y, whole.right, y + height};
    }

    void scrollTo(int line) {
        top = std::clamp(line, 0, lastTop());
        window.invalidate();
    }

    void select(int index, bool tells) {
        if (lines.empty()) {
            return;
        }
        selected = std::clamp(index, 0, count() - 1);
        if (selected < top) {
            top = selected;
        } else if (selected >= top + page()) {
            top = selected - page() + 1;
        }
        window.invalidate();
        if (tells) {
            window.sendCommand(setup.id, listSelectionChanged, window);
        }
    }

    BarPart barPartAt(Point p) const {
        if (lastTop() == 0 || !bar().contains(p) || thumb().contains(p)) {
            return BarPart::none;
        }
        if (upArrow().contains(p)) {
            return BarPart::up;
        }
        if (downArrow().contains(p)) {
            return BarPart::down;
        }
        return p.y < thumb().top ? BarPart::pageUp : BarPart::pageDown;
    }

    void pressBar(Point p) {
        window.capture();
        if (thumb().contains(p)) {
            thumbGrip = p.y - thumb().top;
            return;
        }
        held = barPartAt(p);
        heldAt = p;
        if (held != BarPart::none) {
            scrollHeld();
            window.startTimer(repeatTimer, firstRepeat);
        }
    }

    /// The held part scrolls on for as long as the mouse is over it.
    void repeatHeld() {
        window.startTimer(repeatTimer, nextRepeats);
        if (barPartAt(heldAt) == held) {
            scrollHeld();
        }
    }

    void scrollHeld() {
        switch (held) {
        case BarPart::up: scrollTo(top - 1); break;
        case BarPart::down: scrollTo(top + 1); break;
        case BarPart::pageUp: scrollTo(top - page()); break;
        case BarPart::pageDown: scrollTo(top + page()); break;
        case BarPart::none: break;
        }
    }

    int lineAt(Point p) const { return top + (p.y - linesArea().top) / lineHeight(); }

    void press(const MouseInput& mouse) {
        if (mouse.button != MouseButton::left) {
            return;
        }
        window.focus();
        if (bar().contains(mouse.position)) {
            pressBar(mouse.position);
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
        if (thumbGrip) {
            const int way = track().height() - thumb().height();
            const int at = mouse.position.y - *thumbGrip - track().top;
            scrollTo(way > 0 ? (at * lastTop() + way / 2) / way : 0);
        } else if (held != BarPart::none) {
            heldAt = mouse.position;
            window.invalidate(bar());
        } else if (isChoosing) {
            select(lineAt(mouse.position), true);
        }
    }

    void letGo() {
        isChoosing = false;
        thumbGrip.reset();
        if (held != BarPart::none) {
            held = BarPart::none;
            window.stopTimer(repeatTimer);
            window.invalidate(bar());
        }
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

    void paintBar(Canvas& canvas) const {
        canvas.fill(bar(), look::softLight);
        const bool canScroll = lastTop() > 0;
        const Colour arrow = canScroll ? look::text : look::greyText;
        const auto paintArrow = [&](const Rect& box, ArrowDirection direction, BarPart part) {
            const bool isPressed = held == part && barPartAt(heldAt) == part;
            canvas.fill(box, look::face);
            isPressed ? drawButtonEdge(canvas, box, true) : drawRaisedEdge(canvas, box);
            drawArrow(canvas, isPressed ? box.movedBy({1, 1}) : box, direction, arrow);
        };
        paintArrow(upArrow(), ArrowDirection::up, BarPart::up);
        paintArrow(downArrow(), ArrowDirection::down, BarPart::down);
        if (canScroll) {
            canvas.fill(thumb(), look::face);
            drawRaisedEdge(canvas, thumb());
        }
    }

    void paint(Canvas& canvas) const {
        canvas.fill(window.area(), look::field);
        paintLines(canvas);
        paintBar(canvas);
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
    handlers.timer = [state](int) { state->repeatHeld(); };
    handlers.wheel = [state](int notches) {
        state->scrollTo(state->top - notches * wheelLines);
        return true;
    };
    handlers.key = [state](const KeyEvent& event) { return state->key(event); };
    handlers.text = [state](std::string_view words) { return state->type(words); };
    handlers.focus = [state](bool) { state->window.invalidate(); };
    state->window = desktop.create({.parent = state->setup.parent,
                                    .id = state->setup.id,
                                    .bounds = state->setup.bounds,
                                    .handlers = std::move(handlers)});
    ListBox list;
    list.window = state->window;
    list.state_ = std::move(state);
    return list;
}

void ListBox::clear() const {
    state_->lines.clear();
    state_->selected = noListItem;
    state_->scrollTo(0);
}

void ListBox::add(std::string line) const {
    auto& lines = state_->lines;
    const auto place =
        state_->setup.sorted ? std::upper_bound(lines.begin(), lines.end(), line, comesFirst) : lines.end();
    lines.insert(place, std::move(line));
    window.invalidate();
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
