#include "controls/scroller.h"

#include "platform/canvas/text.h"

namespace ventrel {

namespace {

constexpr FontRequest lineFont{Face::arial, -16, true};
constexpr Colour black = Colour::rgb(0, 0, 0);

constexpr Point corner{443, 19};
constexpr int stripHeight = 20;
constexpr int lineTop = 1; // of the line's picture in the strip

/// What depends on the size of the main window.
struct Strip {
    int mainWindowWidth;
    int width;
    Millis stepLength;
};
constexpr Strip smallStrip{800, 340, 13};
constexpr Strip largeStrip{1024, 562, 10};

const MessageSlot& lineUnderWay(const Scroller& scroller) {
    return scroller.queue.slots[static_cast<std::size_t>(scroller.state.slot)];
}

void makeLinePicture(Scroller& scroller) {
    const MessageSlot& slot = lineUnderWay(scroller);
    scroller.line = Bitmap(Size{slot.width, stripHeight});
    Canvas canvas(scroller.line);
    drawText(canvas, scroller.sources.fonts.font(lineFont), {0, 0}, slot.text,
             {messageColour(slot.messageClass), black});
}

} // namespace

void ScrollerCreate(Scroller& scroller, const Window& parent, int mainWindowWidth) {
    const Strip& strip = mainWindowWidth == largeStrip.mainWindowWidth ? largeStrip : smallStrip;
    scroller.state.stripWidth = strip.width;
    scroller.state.stepLength = strip.stepLength;
    WindowHandlers handlers;
    handlers.cursor = [&scroller](Point) { return std::optional<Cursor>(&scroller.sources.arrow); };
    scroller.window = scroller.sources.desktop.create({.parent = parent,
                                                       .id = scrollerId,
                                                       .bounds = Rect::at(corner, {strip.width, stripHeight}),
                                                       .background = black,
                                                       .handlers = std::move(handlers)});
}

bool ScrollerPost(Scroller& scroller, std::string_view text, MessageClass messageClass) {
    const Font& font = scroller.sources.fonts.font(lineFont);
    return postMessage(scroller.queue, text, messageClass,
                       [&font](std::string_view line) { return font.width(line); });
}

std::optional<Millis> ScrollerTick(Scroller& scroller) {
    const Millis now = scroller.sources.desktop.now();
    const ScrollerTickResult result = tickScroller(scroller.state, scroller.queue, now);
    switch (result.step) {
    case ScrollerStep::idle: return std::nullopt;
    case ScrollerStep::emptied: scroller.gameOverShown(); return std::nullopt;
    case ScrollerStep::started: makeLinePicture(scroller); break;
    case ScrollerStep::moved: scroller.window.canvas().draw({result.drawAt, lineTop}, scroller.line); break;
    case ScrollerStep::waiting: break;
    }
    const Millis nextStep = scroller.state.lastStep + scroller.state.stepLength + 1;
    return result.done ? now : nextStep;
}

void ScrollerClear(Scroller& scroller) {
    clearScroller(scroller.state, scroller.queue);
    scroller.line = {};
    scroller.window.invalidate();
}

void ScrollerSetPostGameOver(Scroller& scroller, bool armed) {
    scroller.state.postGameOver = armed;
}

} // namespace ventrel
