#include "controls/captions.h"

#include "console/console_layout.h"
#include "controls/tight_line.h"

namespace ventrel {

namespace {

constexpr FontRequest captionFont{Face::arial, -11, false};
constexpr Colour plate = Colour::rgb(16, 18, 20);
constexpr Colour plateEdge = Colour::rgb(92, 98, 102);
constexpr Colour captionLetters = Colour::rgb(255, 190, 130);
constexpr int margin = 5; // pixels left and right of the line

constexpr Millis longestShown = 5000;
constexpr Millis shortestShown = 1600; // while others wait
constexpr std::size_t mostLines = 6;

Millis endOf(const Captions& captions) {
    return captions.shownAt + (captions.lines.size() > 1 ? shortestShown : longestShown);
}

void paint(Captions& captions, Canvas& canvas) {
    const Rect area = captions.window.area();
    canvas.fill(area, plate);
    canvas.frame(area, plateEdge);
    if (captions.lines.empty()) {
        return;
    }
    const Font& font = captions.sources.fonts.font(captionFont);
    const int top = (area.height() - font.lineHeight()) / 2;
    const Rect line{margin, top, area.right - margin, top + font.lineHeight()};
    drawTightLine(canvas, font, line, captions.lines.front(), {captionLetters, plate});
}

void showFirst(Captions& captions) {
    captions.shownAt = captions.sources.desktop.now();
    captions.window.show();
    captions.window.invalidate();
}

} // namespace

void CaptionsCreate(Captions& captions, const Window& parent, int mainWindowWidth) {
    WindowHandlers handlers;
    handlers.paint = [&captions](Canvas& canvas, const Rect&) { paint(captions, canvas); };
    handlers.cursor = [&captions](Point) { return std::optional<Cursor>(&captions.sources.arrow); };
    captions.window = captions.sources.desktop.create({.parent = parent,
                                                       .id = captionsId,
                                                       .bounds = consoleLayoutFor(mainWindowWidth).captions,
                                                       .visible = false,
                                                       .handlers = std::move(handlers)});
}

void CaptionsAdd(Captions& captions, std::string line) {
    captions.lines.push_back(std::move(line));
    if (captions.lines.size() == 1) {
        showFirst(captions);
    } else if (captions.lines.size() > mostLines) {
        captions.lines.erase(captions.lines.begin() + 1);
    }
}

std::optional<Millis> CaptionsTick(Captions& captions) {
    if (captions.lines.empty()) {
        return std::nullopt;
    }
    if (captions.sources.desktop.now() < endOf(captions)) {
        return endOf(captions);
    }
    captions.lines.pop_front();
    if (captions.lines.empty()) {
        captions.window.hide();
        return std::nullopt;
    }
    showFirst(captions);
    return endOf(captions);
}

void CaptionsClear(Captions& captions) {
    captions.lines.clear();
    captions.window.hide();
}

} // namespace ventrel
