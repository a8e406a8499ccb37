#include "review/log_view.h"

#include <algorithm>
#include <array>

#include "base/format.h"
#include "platform/text/text_layout.h"

namespace ventrel {

namespace {

constexpr int edge = 2;
constexpr int margin = 3; // between columns and edges
constexpr int timeWidth = 34;
constexpr int flightWidth = 48;
constexpr int kindWidth = 34;
constexpr int wordsLeft = edge + margin + timeWidth + flightWidth + kindWidth;

constexpr Colour markedGround = Colour::rgb(0xD8, 0xE4, 0xF4);
constexpr Colour gain = Colour::rgb(0x00, 0x60, 0x00);
constexpr Colour trouble = Colour::rgb(0x90, 0x48, 0x00);
constexpr Colour emergency = Colour::rgb(0xC0, 0x00, 0x00);
constexpr Colour spoken = Colour::rgb(0x00, 0x00, 0x90);
constexpr Colour ordered = Colour::rgb(0x60, 0x00, 0x70);

Colour lineColour(MessageClass messageClass) {
    switch (messageClass) {
    case MessageClass::success: return gain;
    case MessageClass::trouble: return trouble;
    case MessageClass::emergency: return emergency;
    case MessageClass::information: break;
    }
    return look::text;
}

Colour colourOf(const LogEntry& entry) {
    switch (entry.kind) {
    case LogKind::line: return lineColour(entry.messageClass);
    case LogKind::call: return spoken;
    case LogKind::order: return ordered;
    case LogKind::points: return entry.points > 0 ? gain : emergency;
    }
    return look::text;
}

Rect linesArea(const LogView& view) {
    const Rect inner = view.window.area().grownBy(-edge);
    return {inner.left, inner.top, inner.right - ScrollBar::width, inner.bottom};
}

int pageOf(const LogView& view) {
    return std::max(1, linesArea(view).height() / view.font.lineHeight());
}

void layOutEntry(LogView& view, std::size_t number) {
    const LogEntry& entry = view.log.story().entries[number];
    if (!passesFilter(entry, view.filter, view.flight)) {
        return;
    }
    const int width = linesArea(view).right - margin - wordsLeft;
    const LaidOutText text = layOutText(view.font, entryWords(entry), width, {.wrap = true});
    for (const TextLine& line : text.lines) {
        view.rows.push_back({number, &line == text.lines.data(), std::string(text.line(line))});
    }
}

std::string_view emptyText(const LogView& view) {
    if (!view.log.story().exists()) {
        return "No shift has been played yet.";
    }
    return view.filter == LogFilter::flight && !view.flight
               ? "Select a flight, or click a line that concerns it."
               : "Nothing yet.";
}

void paintRow(const LogView& view, Canvas& canvas, const LogRow& row, const Rect& place) {
    const ShiftStory& story = view.log.story();
    const LogEntry& entry = story.entries[row.entry];
    const TextStyle style{colourOf(entry), {}};
    if (view.marked == row.entry) {
        canvas.fill(place, markedGround);
    }
    if (row.isFirst) {
        const std::array columns{
            std::pair{timeWidth, FormatMinutesSeconds(entry.clock.count())},
            std::pair{flightWidth, whomItConcerns(story, entry)},
            std::pair{kindWidth, std::string(kindWord(entry.kind))},
        };
        int x = place.left + margin;
        for (const auto& [width, text] : columns) {
            drawText(canvas, view.font, {x, place.top}, text, style);
            x += width;
        }
    }
    drawText(canvas, view.font, {wordsLeft, place.top}, row.words, style);
}

void paint(const LogView& view, Canvas& canvas) {
    const Rect area = linesArea(view);
    canvas.fill(view.window.area(), look::field);
    canvas.setClip(area);
    if (view.rows.empty()) {
        drawTextBox(canvas, view.font, area.grownBy(-margin), emptyText(view), {look::greyText, {}},
                    {.across = Align::middle, .down = Align::middle, .wrap = true});
    }
    const auto count = static_cast<int>(view.rows.size());
    const int height = view.font.lineHeight();
    for (int i = view.bar.top(); i < count && (i - view.bar.top()) * height < area.height(); ++i) {
        const int y = area.top + (i - view.bar.top()) * height;
        paintRow(view, canvas, view.rows[static_cast<std::size_t>(i)],
                 {area.left, y, area.right, y + height});
    }
    canvas.clearClip();
    view.bar.paint(canvas);
    drawSunkenEdge(canvas, view.window.area());
}

void noteScrolling(LogView& view) {
    view.follows = view.bar.top() == view.bar.lastTop();
}

/// Marks the entry there; a second press lets go of it.
void chooseAt(LogView& view, Point p) {
    const int row = view.bar.top() + (p.y - linesArea(view).top) / view.font.lineHeight();
    if (row >= static_cast<int>(view.rows.size())) {
        return;
    }
    const std::size_t entry = view.rows[static_cast<std::size_t>(row)].entry;
    view.marked = view.marked == entry ? std::nullopt : std::optional(entry);
    view.window.invalidate();
    if (const auto flight = view.log.story().entries[entry].flight; view.marked && flight && view.chosen) {
        view.chosen(*flight);
    }
}

void press(LogView& view, const MouseInput& mouse) {
    if (mouse.button != MouseButton::left) {
        return;
    }
    if (view.bar.place().contains(mouse.position)) {
        view.bar.press(mouse.position);
        noteScrolling(view);
    } else if (linesArea(view).contains(mouse.position)) {
        chooseAt(view, mouse.position);
    }
}

WindowHandlers handlersOf(LogView& view) {
    WindowHandlers handlers;
    handlers.paint = [&view](Canvas& canvas, const Rect&) { paint(view, canvas); };
    handlers.press = [&view](const MouseInput& mouse) { press(view, mouse); };
    handlers.move = [&view](const MouseInput& mouse) {
        if (view.bar.isHeld()) {
            view.bar.move(mouse.position);
            noteScrolling(view);
        }
    };
    handlers.release = [&view](const MouseInput&) {
        view.bar.letGo();
        view.window.releaseCapture();
    };
    handlers.captureLost = [&view] { view.bar.letGo(); };
    handlers.timer = [&view](int number) {
        view.bar.timer(number);
        noteScrolling(view);
    };
    handlers.wheel = [&view](int notches) {
        view.bar.scrollBy(-notches * ScrollBar::wheelLines);
        noteScrolling(view);
        return true;
    };
    return handlers;
}

} // namespace

void LogViewCreate(LogView& view, const Window& parent, const Rect& bounds) {
    view.window =
        parent.desktop()->create({.parent = parent, .bounds = bounds, .handlers = handlersOf(view)});
    const Rect area = linesArea(view);
    view.bar.lie(view.window, {area.right, area.top, area.right + ScrollBar::width, area.bottom});
}

void LogViewFilter(LogView& view, LogFilter filter, std::optional<FlightIndex> flight) {
    view.filter = filter;
    view.flight = flight;
    view.edition = -1;
    view.follows = true;
    LogViewRefresh(view);
}

void LogViewRefresh(LogView& view) {
    const auto& entries = view.log.story().entries;
    if (view.edition != view.log.edition()) {
        view.edition = view.log.edition();
        view.rows.clear();
        view.laidOut = 0;
        view.marked.reset();
    } else if (view.laidOut == entries.size()) {
        return;
    }
    for (; view.laidOut < entries.size(); ++view.laidOut) {
        layOutEntry(view, view.laidOut);
    }
    view.bar.setLines(static_cast<int>(view.rows.size()), pageOf(view));
    view.bar.scrollTo(view.follows ? view.bar.lastTop() : view.bar.top());
}

bool LogViewKey(LogView& view, Key key) {
    switch (key) {
    case Key::home: view.bar.scrollTo(0); break;
    case Key::end: view.bar.scrollTo(view.bar.lastTop()); break;
    case Key::pageUp: view.bar.scrollBy(-pageOf(view)); break;
    case Key::pageDown: view.bar.scrollBy(pageOf(view)); break;
    default: return false;
    }
    noteScrolling(view);
    return true;
}

} // namespace ventrel
