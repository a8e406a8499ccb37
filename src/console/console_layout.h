// Where everything stands on the console, at both sizes of the main window: the one table that the windows,
// the hit areas, the menus and the drawing of the console read.
//
// Positions are the main window's pixels, unless said otherwise. To move something, change its number here;
// what is drawn and what answers to the mouse follow.

#pragma once

#include <array>
#include <optional>

#include "console/panel_layout.h"
#include "console/radar_layout.h"

namespace ventrel {

struct TopBarLayout {
    Rect systemSquare; ///< lies in the drag strip and takes its own clicks
    Rect dragStrip;
    Rect fileButton;
    Rect optionsButton;
    Rect helpButton;
    Rect smallScope;
    Rect smallScopeFace;       ///< the round face, in the small scope's own pixels
    Rect clock;                ///< the window
    Point clockText;           ///< top left of the time, in the clock's own pixels
    std::array<Rect, 3> lamps; ///< green, yellow, red
    Rect lampGlass;            ///< what shows of a lamp's picture, an ellipse in the lamp's own pixels
    Rect ticker;
    int tickerStep; ///< milliseconds of real time for one pixel
};

/// The flight strips and what stands beside them.
struct StripsLayout {
    int count;
    int pitch;     ///< pixels from one strip to the next
    Rect column;   ///< the window
    int margin;    ///< pixels of the column's own colour left of it, for its text begins at its very edge
    int routeLine; ///< top of a strip's first line below the strip's own top, which the column's first is
    int stateLine; ///< and of its second
    Rect firstButton;
    Rect scrollUp;
    Rect scrollDown;

    constexpr Rect button(int strip) const { return firstButton.movedBy({0, pitch * strip}); }
    /// The recess that holds the column.
    constexpr Rect well() const { return {column.left - margin, column.top, column.right, column.bottom}; }
    /// Strips, buttons and arrows together: where the wheel scrolls. It reaches to the window's edge.
    constexpr Rect wheelArea(Size window) const {
        return {firstButton.left, scrollUp.top, window.width, scrollDown.bottom};
    }
};

struct ConsoleLayout {
    Size size; ///< of the main window
    TopBarLayout topBar;
    StripsLayout strips;
    Rect controlPanel; ///< its window; `panelLayout` tells what stands in it
    Rect execButton;
    Rect captions; ///< what the pilots say, when the player wants to read it
    RadarLayout radar;
};

/// What the size of the main window decides.
struct ConsoleSizes {
    Size window;
    int tickerWidth;
    int tickerStep;
    int captionsLeft; ///< clear of the bearings on the rim
    int strips;
    int stripColumnHeight;
    int scrollDownTop;
};

constexpr TopBarLayout topBarOf(const ConsoleSizes& sizes) {
    constexpr Size menuButton{52, 19};
    constexpr Size lamp{28, 28};
    return {
        .systemSquare = {2, 1, 8, 7},
        .dragStrip = {0, 0, sizes.window.width, 5},
        .fileButton = Rect::at({31, 20}, menuButton),
        .optionsButton = Rect::at({93, 20}, menuButton),
        .helpButton = Rect::at({155, 20}, menuButton),
        .smallScope = Rect::at({215, 14}, {30, 30}),
        .smallScopeFace = {4, 4, 28, 28},
        .clock = Rect::at({261, 21}, {51, 15}),
        .clockText = {8, 0},
        .lamps = {Rect::at({320, 16}, lamp), Rect::at({348, 16}, lamp), Rect::at({376, 16}, lamp)},
        .lampGlass = {1, 1, 27, 27},
        .ticker = Rect::at({443, 19}, {sizes.tickerWidth, 20}),
        .tickerStep = sizes.tickerStep,
    };
}

/// Strips, panel and EXEC keep their distance from the window's right and lower edges.
constexpr StripsLayout stripsOf(const ConsoleSizes& sizes) {
    constexpr Size arrow{11, 9};
    const int right = sizes.window.width;
    return {
        .count = sizes.strips,
        .pitch = 37,
        .column = Rect::at({right - 155, 71}, {139, sizes.stripColumnHeight}),
        .margin = 3,
        .routeLine = 2,
        .stateLine = 16,
        .firstButton = Rect::at({right - 190, 81}, {20, 12}),
        .scrollUp = Rect::at({right - 172, 69}, arrow),
        .scrollDown = Rect::at({right - 172, sizes.scrollDownTop}, arrow),
    };
}

constexpr ConsoleLayout consoleOf(const ConsoleSizes& sizes, const RadarLayout& radar) {
    const Point lowerRight{sizes.window.width, sizes.window.height};
    return {
        .size = sizes.window,
        .topBar = topBarOf(sizes),
        .strips = stripsOf(sizes),
        .controlPanel = Rect::at(lowerRight - Point{200, 128}, panelLayout.size),
        .execButton = Rect::at(lowerRight - Point{32, 112}, {14, 68}),
        .captions = Rect{sizes.captionsLeft, 41, topBarOf(sizes).ticker.right, 56},
        .radar = radar,
    };
}

inline constexpr ConsoleLayout smallConsole = consoleOf({.window = smallWindow,
                                                         .tickerWidth = 340,
                                                         .tickerStep = 14,
                                                         .captionsLeft = 443,
                                                         .strips = 10,
                                                         .stripColumnHeight = 371,
                                                         .scrollDownTop = 436},
                                                        smallRadarLayout);
inline constexpr ConsoleLayout largeConsole = consoleOf({.window = largeWindow,
                                                         .tickerWidth = 562,
                                                         .tickerStep = 11,
                                                         .captionsLeft = 490,
                                                         .strips = 14,
                                                         .stripColumnHeight = 541,
                                                         .scrollDownTop = 604},
                                                        largeRadarLayout);

/// The console of a main window of that width: the large one for 1024, else the small one.
constexpr const ConsoleLayout& consoleLayoutFor(int windowWidth) {
    return windowWidth == largeConsole.size.width ? largeConsole : smallConsole;
}

/// Where the menu of a button opens: just under it.
constexpr Point menuPlaceUnder(const Rect& button) {
    return {button.left, button.bottom};
}

/// The strip whose button is at that point; none elsewhere.
std::optional<int> stripButtonAt(const StripsLayout& strips, Point point);

constexpr bool partsStandApart(const ConsoleLayout& console) {
    const Rect window = Rect::at({}, console.size);
    const Rect radar = radarWindowRect(console.radar);
    const StripsLayout& strips = console.strips;
    return window.contains(radar) && window.contains(console.topBar.ticker) &&
           window.contains(strips.column) && window.contains(console.controlPanel) &&
           window.contains(console.execButton) && !radar.intersects(console.topBar.ticker) &&
           !radar.intersects(strips.button(0)) && !strips.button(0).intersects(strips.column) &&
           !strips.button(0).intersects(strips.scrollUp) && !strips.scrollUp.intersects(strips.well()) &&
           !strips.column.intersects(console.controlPanel) &&
           !console.controlPanel.intersects(console.execButton) && window.contains(console.captions) &&
           !console.captions.intersects(console.topBar.ticker) && !console.captions.intersects(radar) &&
           !console.captions.intersects(strips.column);
}
static_assert(partsStandApart(smallConsole) && partsStandApart(largeConsole));

/// Every strip has its button beside it, and its two lines within the column.
constexpr bool stripsFitTheirColumn(const StripsLayout& strips) {
    const int lastTop = strips.column.top + strips.pitch * (strips.count - 1);
    const Rect lastButton = strips.button(strips.count - 1);
    return lastTop + strips.stateLine < strips.column.bottom && lastButton.top > lastTop &&
           lastButton.bottom <= strips.column.bottom && lastButton.bottom <= strips.scrollDown.top;
}
static_assert(stripsFitTheirColumn(smallConsole.strips) && stripsFitTheirColumn(largeConsole.strips));

} // namespace ventrel
