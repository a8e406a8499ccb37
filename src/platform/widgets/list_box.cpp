#include "platform/widgets/list_box.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr int edge = 2;
constexpr int barWidth = 16;
constexpr int textIndent = 2;
constexpr int shortestThumb = 8;
constexpr int wheelLines = 3;

char lowered(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
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

    void pressBar(Point p) {
        if (upArrow().contains(p)) {
            scrollTo(top - 1);
        } else if (downArrow().contains(p)) {
            scrollTo(top + 1);
        } else if (thumb().contains(p)) {
            thumbGrip = p.y - thumb().top;
            window.capture();
        } else if (lastTop() > 0) {
            scrollTo(p.y < thumb().top ? top - page() : top + page());
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
        } else if (isChoosing) {
            select(lineAt(mouse.position), true);
        }
    }

    void letGo() {
        isChoosing = false;
        thumbGrip.reset();
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

    /// The next line that begins with the letter.
    bool type(std::string_view words) {
        for (int step = 1; step <= count() && !words.empty(); ++step) {
            const int index = (std::max(selected, noListItem) + step) % count();
            const std::string& line = lines[static_cast<std::size_t>(index)];
            if (!line.empty() && lowered(line.front()) == lowered(words.front())) {
                select(index, true);
                break;
            }
        }
        return true;
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
        const std::pair<Rect, ArrowDirection> arrows[]{{upArrow(), ArrowDirection::up},
                                                       {downArrow(), ArrowDirection::down}};
        for (const auto& [box, direction] : arrows) {
            canvas.fill(box, look::face);
            drawRaisedEdge(canvas, box);
            drawArrow(canvas, box, direction, arrow);
        }
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
    state_->select(index, false);
}

void ListBox::setTabWidth(int pixels) const {
    state_->tabWidth = pixels;
    window.invalidate();
}

} // namespace ventrel
