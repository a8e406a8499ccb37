#include "controls/scroller.h"

#include <algorithm>

#include "console/console_layout.h"
#include "platform/text/text.h"

namespace ventrel {

namespace {

constexpr FontRequest lineFont{Face::arial, -16, true};
constexpr Colour tickerGround = Colour::rgb(0, 0, 0);

constexpr int widthMargin = 2; // pixels after a line
constexpr int lineTop = 1;     // of the line's picture in the strip

const MessageSlot& lineUnderWay(const Scroller& scroller) {
    return scroller.sources.queue.slots[static_cast<std::size_t>(scroller.state.slot)];
}

void makeLinePicture(Scroller& scroller) {
    const MessageSlot& slot = lineUnderWay(scroller);
    const Font& font = scroller.sources.fonts.font(lineFont);
    scroller.state.lineWidth = font.width(slot.text) + widthMargin;
    scroller.line = Bitmap(Size{scroller.state.lineWidth, scroller.window.size().height});
    Canvas canvas(scroller.line);
    const SignalColours& signals = signalColours(scroller.sources.options.aidColours);
    drawText(canvas, font, {0, 0}, slot.text, {messageColour(slot.messageClass, signals), tickerGround});
}

/// Moves it as far as it is due, and tells of what came last.
ScrollerTickResult moveLine(Scroller& scroller, Millis now) {
    ScrollerTickResult result;
    do {
        result =
            tickScroller(scroller.state, scroller.sources.queue, now, scroller.sources.desktop.frameTime());
        if (result.step == ScrollerStep::moved) {
            scroller.window.canvas().draw({result.drawAt, lineTop}, scroller.line);
        }
    } while (result.step == ScrollerStep::moved && !result.done);
    return result;
}

} // namespace

void ScrollerCreate(Scroller& scroller, const Window& parent, int mainWindowWidth) {
    const TopBarLayout& places = consoleLayoutFor(mainWindowWidth).topBar;
    scroller.state.stripWidth = places.ticker.width();
    scroller.state.stepTime = places.tickerStep;
    WindowHandlers handlers;
    handlers.cursor = [&scroller](Point) { return std::optional<Cursor>(&scroller.sources.arrow); };
    scroller.window = scroller.sources.desktop.create({.parent = parent,
                                                       .id = scrollerId,
                                                       .bounds = places.ticker,
                                                       .background = tickerGround,
                                                       .handlers = std::move(handlers)});
}

bool ScrollerPost(Scroller& scroller, std::string_view text, MessageClass messageClass) {
    return postMessage(scroller.sources.queue, text, messageClass);
}

std::optional<Millis> ScrollerTick(Scroller& scroller) {
    const Desktop& desktop = scroller.sources.desktop;
    const Millis now = desktop.now();
    const ScrollerTickResult result = moveLine(scroller, now);
    switch (result.step) {
    case ScrollerStep::idle: return std::nullopt;
    case ScrollerStep::emptied: scroller.gameOverShown(); return std::nullopt;
    case ScrollerStep::started: makeLinePicture(scroller); break;
    case ScrollerStep::moved:
    case ScrollerStep::waiting: break;
    }
    const Millis nextStep = scroller.state.lastStep + scroller.state.stepTime;
    return result.done ? now : std::max(nextStep, desktop.nextPicture());
}

void ScrollerRecolour(Scroller& scroller) {
    if (scroller.state.busy) {
        makeLinePicture(scroller);
    }
}

void ScrollerClear(Scroller& scroller) {
    clearScroller(scroller.state, scroller.sources.queue);
    scroller.line = {};
    scroller.window.invalidate();
}

void ScrollerSetPostGameOver(Scroller& scroller, bool armed) {
    scroller.state.postGameOver = armed;
}

} // namespace ventrel
