#include "controls/top_bar_drawing.h"

#include <array>

#include "base/format.h"
#include "console/console_layout.h"
#include "platform/text/text.h"

namespace ventrel {

namespace {

constexpr Colour barGround = Colour::rgb(0, 0, 0);
constexpr Colour clockRed = Colour::rgb(220, 0, 0);

/// The instruments stand alike at both sizes.
constexpr const TopBarLayout& barPlaces = smallConsole.topBar;

constexpr Point scopeMiddle{barPlaces.smallScope.width() / 2, barPlaces.smallScope.height() / 2};
constexpr int trailStep = 2; // sweep positions between two lines
constexpr std::array<Colour, 6> sweepPens{Colour::rgb(0, 255, 0), Colour::rgb(0, 225, 0),
                                          Colour::rgb(0, 195, 0), Colour::rgb(0, 165, 0),
                                          Colour::rgb(0, 135, 0), Colour::rgb(0, 105, 0)};

/// The position of the next trail line; from the first positions of a turn it goes on at its last.
int trailBehind(int position) {
    const int behind = position - trailStep;
    return behind < 0 ? sweepPositions - 1 : behind;
}

} // namespace

void paintClock(Canvas& canvas, const Game& game, const Font& font) {
    const Rect whole = Rect::at({}, barPlaces.clock.size());
    canvas.fill(whole, barGround);
    if (game.isRunning()) {
        drawText(canvas, font, barPlaces.clockText, FormatMinutesSeconds(game.clock.count()),
                 {clockRed, barGround});
    }
}

void paintSmallScope(Canvas& canvas, const Bitmap& background, std::span<const Blip> blips, int sweepIndex,
                     Colour flightColour, Colour selectedColour) {
    canvas.draw({0, 0}, background);
    canvas.setClip(Region::ellipse(barPlaces.smallScopeFace));
    for (const Blip& blip : blips) {
        canvas.setPixel(blip.position, blip.selected ? selectedColour : flightColour);
    }
    int position = sweepIndex;
    for (const Colour pen : sweepPens) {
        canvas.line(scopeMiddle, sweepPoint(position), pen);
        position = trailBehind(position);
    }
    canvas.clearClip();
}

void paintLamp(Canvas& canvas, const Bitmap& background, const Bitmap& lamp) {
    canvas.draw({0, 0}, background);
    canvas.setClip(Region::ellipse(barPlaces.lampGlass));
    canvas.draw({0, 0}, lamp);
    canvas.clearClip();
}

} // namespace ventrel
