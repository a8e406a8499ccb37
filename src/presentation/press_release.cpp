#include "presentation/press_release.h"

#include <memory>

#include "platform/text/text.h"
#include "presentation/framed_picture.h"
#include "presentation/full_screen_window.h"

namespace ventrel {

namespace {

constexpr Size pageSize{450, 580};
constexpr Colour ink = Colour::rgb(0, 0, 0);
constexpr Colour white = Colour::rgb(255, 255, 255);
constexpr Colour shadow = Colour::rgb(128, 128, 128);
constexpr int shadowWidth = 2;
constexpr int shadowOffset = 1;
constexpr int letterheadTop = 20;
constexpr int textBelowLetterhead = 10;
constexpr int leftMargin = 5;
constexpr int rightMargin = 50;
constexpr FontRequest typewriter{Face::courierNew, -12, false};
constexpr TextLayout wrapped{.wrap = true};

constexpr Millis pageLockedFor = 1000;

/// One open page; lives as long as its window.
struct Page {
    PressReleaseParts parts;
    Window window = {};
    bool isClosable = false;

    void paint(Canvas& canvas) const;
    void dismiss() const {
        if (isClosable) {
            window.destroy();
        }
    }
};

void drawSheet(Canvas& canvas, const Rect& sheet) {
    const Rect below{sheet.left + shadowOffset, sheet.bottom, sheet.right + shadowWidth,
                     sheet.bottom + shadowWidth};
    const Rect beside{sheet.right, sheet.top + shadowOffset, sheet.right + shadowWidth,
                      sheet.bottom + shadowWidth};
    canvas.fill(below, shadow);
    canvas.fill(beside, shadow);
    canvas.fill(sheet, white);
}

void Page::paint(Canvas& canvas) const {
    const Rect sheet = Rect::at(centredCorner(parts.desktop.size(), pageSize), pageSize);
    drawSheet(canvas, sheet);
    const Point letterhead{sheet.left + (pageSize.width - letterheadSize.width) / 2,
                           sheet.top + letterheadTop};
    canvas.draw(letterhead, parts.letterhead);

    const Font& font = parts.fonts.font(typewriter);
    Rect box{sheet.left + leftMargin, letterhead.y + letterheadSize.height + textBelowLetterhead,
             sheet.right - rightMargin, sheet.bottom};
    const auto paragraph = [&](const std::string& text, int linesAfter) {
        const int height = drawTextBox(canvas, font, box, text, {ink, white}, wrapped);
        box.top += height + linesAfter * font.lineHeight();
    };
    paragraph(parts.text.heading, 2);
    paragraph(parts.text.accident, 1);
    paragraph(parts.text.controller, 0);
}

} // namespace

void showPressRelease(PressReleaseParts parts) {
    const auto page = std::make_shared<Page>(Page{std::move(parts)});
    page->window =
        createFullScreenWindow(page->parts.desktop, {.background = screenBlack,
                                                     .paint = [page](Canvas& canvas) { page->paint(canvas); },
                                                     .timer =
                                                         [page](int timer) {
                                                             page->window.stopTimer(timer);
                                                             page->isClosable = true;
                                                         },
                                                     .dismiss = [page](const auto&) { page->dismiss(); },
                                                     .destroyed = [page] { page->parts.closed(); }});
    page->window.capture();
    page->parts.desktop.setCursor(StandardCursor::arrow);
    page->window.startTimer(lockTimer, pageLockedFor);
}

} // namespace ventrel
