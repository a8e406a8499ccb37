// The control panel's places, in its own pixels; the same at both sizes of the main window.

#pragma once

#include "base/geometry.h"

namespace ventrel {

/// A lamp that is also a button.
struct SpeedLampPlace {
    Rect lens;  ///< what is lit
    Rect press; ///< where a press counts
    Rect hand;  ///< where the pointer becomes a hand
};

struct PanelLayout {
    Size size;

    Point dialMiddle; ///< the pivot of the needle, which reaches from there to the dial's marks
    int dialRadius;   ///< pixels of the round face, around the middle of the pivot's last row
    Rect dialPress;   ///< where a press chooses a heading

    Rect altitudeWell;
    Rect altitudePress; ///< where a press chooses an altitude, row by row from the top
    Rect altitudeZero;  ///< the bar of altitude 0, were there one; that of each thousand feet is a row higher
    int altitudeRow;    ///< pixels of one thousand feet

    SpeedLampPlace fast;
    SpeedLampPlace normal;
    SpeedLampPlace slow;

    Rect directButton;
    Rect directPress;
    Rect directLamp; ///< the ellipse on the button
    Rect targetBox;
    Rect targetUp;
    Rect targetDown;

    Rect preview;     ///< the line that tells what the flight is doing, written from its very edge
    Rect previewWell; ///< around it, with some air before the first letter

    /// The bar of an altitude in thousands of feet.
    constexpr Rect altitudeBar(int altitude) const {
        return altitudeZero.movedBy({0, -altitudeRow * altitude});
    }
};

constexpr SpeedLampPlace speedLampAt(Point corner) {
    constexpr Size lens{6, 5};
    return {.lens = Rect::at(corner, lens),
            .press = Rect{-2, -2, lens.width + 1, lens.height + 2}.movedBy(corner),
            .hand = Rect{-2, -2, lens.width + 2, lens.height + 3}.movedBy(corner)};
}

/// Where the parts stand that are made of several places. All of them follow one number.
struct PanelAnchors {
    Point dialMiddle;
    Point altitudeScale; ///< top left of its presses
    Point fastLamp;
    Point normalLamp;
    Point slowLamp;
    Point directButton;
};

constexpr PanelLayout panelLayoutAt(const PanelAnchors& at) {
    return {
        .size = {168, 109},
        .dialMiddle = at.dialMiddle,
        .dialRadius = 29,
        .dialPress = Rect{-30, -30, 30, 30}.movedBy(at.dialMiddle),
        .altitudeWell = Rect{0, 1, 41, 88}.movedBy(at.altitudeScale),
        .altitudePress = Rect{0, 0, 50, 89}.movedBy(at.altitudeScale),
        .altitudeZero = Rect{2, 93, 39, 96}.movedBy(at.altitudeScale),
        .altitudeRow = 9,
        .fast = speedLampAt(at.fastLamp),
        .normal = speedLampAt(at.normalLamp),
        .slow = speedLampAt(at.slowLamp),
        .directButton = Rect{0, 0, 15, 15}.movedBy(at.directButton),
        .directPress = Rect{0, -1, 15, 14}.movedBy(at.directButton),
        .directLamp = Rect{2, 2, 12, 12}.movedBy(at.directButton),
        .targetBox = {52, 76, 76, 89},
        .targetUp = {79, 73, 90, 82},
        .targetDown = {79, 83, 90, 92},
        .preview = {2, 93, 167, 105},
        .previewWell = {0, 93, 167, 105},
    };
}

inline constexpr PanelLayout panelLayout = panelLayoutAt({
    .dialMiddle = {47, 35},
    .altitudeScale = {111, 0},
    .fastLamp = {95, 13},
    .normalLamp = {95, 33},
    .slowLamp = {95, 53},
    .directButton = {3, 75},
});

constexpr bool staysInside(const PanelLayout& panel) {
    const Rect window = Rect::at({}, panel.size);
    return window.contains(panel.dialPress) && window.contains(panel.altitudePress) &&
           window.contains(panel.directButton) && window.contains(panel.targetUp) &&
           window.contains(panel.targetDown) && window.contains(panel.preview);
}
static_assert(staysInside(panelLayout));
static_assert(panelLayout.altitudeWell.contains(panelLayout.altitudeBar(1)) &&
              panelLayout.altitudeWell.contains(panelLayout.altitudeBar(10)));
static_assert(!panelLayout.targetUp.intersects(panelLayout.targetDown));

} // namespace ventrel
