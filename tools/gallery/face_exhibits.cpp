#include <array>
#include <string>

#include "platform/text/text.h"
#include "tools/gallery/exhibits.h"

namespace ventrel {

namespace {

constexpr Colour dim = Colour::rgb(0x20, 0x48, 0x38);

struct FaceSample {
    FontRequest request;
    std::string_view text;
    Colour colour;
};

constexpr std::array faceSamples{std::to_array<FaceSample>({
    {{Face::smallFonts, -8, false}, "6 pt: ATL MIA 90\xB0 UA482 7K S8B6", green},
    {{Face::smallFonts, 10, false}, "Tags: UA482 DL274H 10K 3K 9K 0O", green},
    {{Face::msSansSerif, -11, false}, "Dialogs: quick brown foxes, 12%", white},
    {{Face::arial, -11, false}, "Panel: turn 90\xB0, descend 3000 ft", amber},
    {{Face::arial, -11, true}, "Bold: caption of a dialog", white},
    {{Face::arial, 14, false},
     "Clock: 15:00  Fa\xE7"
     "ade \x80 9",
     amber},
    {{Face::courierNew, -12, false}, "Press: Washington, DC :", white},
    {{Face::arial, 16, true}, "Ticker: UA482 lands", amber},
    {{Face::arial, -18, true}, "Scores: 1125", white},
})};

constexpr FontRequest largestFace{Face::arial, -40, true};
constexpr FontRequest layoutFace{Face::arial, -11, false};

constexpr int margin = 8;
constexpr int rightColumn = 208; // of the layout samples
constexpr int smallPanelHeight = 200;

/// The same words with their ground filled, wrapped and centred, in columns, and cut off by their box.
void paintLayouts(Canvas& canvas, Point corner, int width, const Font& font) {
    const int line = font.lineHeight();
    int y = corner.y;
    const auto box = [&](int lines) {
        const Rect next = Rect::at({corner.x, y}, {width, lines * line + 2});
        canvas.frame(next.grownBy(1), dim);
        y = next.bottom + 4;
        return next;
    };
    drawTextInside(canvas, font, box(1).topLeft(), "Opaque ground", {Colour::rgb(0, 0, 0), amber},
                   Rect::at({corner.x, corner.y}, {width, line + 2}));
    constexpr int wrappedLines = 3;
    drawTextBox(canvas, font, box(wrappedLines), "Wrapped and centred between the edges", {white, {}},
                {.across = Align::middle, .down = Align::middle, .wrap = true});
    drawTextBox(canvas, font, box(1), "right", {white, {}}, {.across = Align::far, .singleLine = true});
    constexpr int tabWidth = 40;
    drawTabbedText(canvas, font, box(1).topLeft(), "tab\tstops\tline", tabWidth, {green, {}});
    drawTextBox(canvas, font, box(1), "Cut off where its box ends", {white, {}}, {.singleLine = true});
}

/// All that can be typed, 32 to a row.
void paintCharacters(Canvas& canvas, Point corner, const Font& font) {
    constexpr int firstCharacter = 0x20;
    constexpr int perRow = 32;
    constexpr int step = 11;
    for (int code = firstCharacter; code < static_cast<int>(Font::glyphCount); ++code) {
        const int place = code - firstCharacter;
        const std::string character(1, static_cast<char>(code));
        const Point at{place % perRow * step, place / perRow * (font.lineHeight() + 1)};
        font.draw(canvas, corner + at, character, green);
    }
}

} // namespace

void paintFaces(Canvas& canvas, const Rect& panel, FontSet& fonts) {
    const bool isRoomy = panel.height() > smallPanelHeight;
    const int gap = isRoomy ? 14 : 1;
    int y = panel.top + (isRoomy ? 14 : 6);
    for (const FaceSample& sample : faceSamples) {
        const Font& font = fonts.font(sample.request);
        drawText(canvas, font, {panel.left + margin, y}, sample.text, {sample.colour, {}});
        y += font.lineHeight() + gap;
    }
    const int width = panel.right - margin - 2 - (panel.left + rightColumn);
    const Point corner{panel.left + rightColumn, panel.top + margin + 2};
    const Point roomy{isRoomy ? 36 : 0, isRoomy ? 8 : 0};
    paintLayouts(canvas, corner + roomy, width - roomy.x, fonts.font(layoutFace));
    if (isRoomy) {
        constexpr Point characters{rightColumn - 16, 150};
        paintCharacters(canvas, panel.topLeft() + characters, fonts.font(layoutFace));
    }
    const Font& largest = fonts.font(largestFace);
    const int x = panel.right - margin - largest.width("PAUSE");
    drawText(canvas, largest, {x, panel.bottom - largest.lineHeight() - 2}, "PAUSE", {white, {}});
}

} // namespace ventrel
