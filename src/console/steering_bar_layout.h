// Where the bar stands by which a game is watched, and what stands on it: in the corner under the scope, over
// what only adorns the console.

#pragma once

#include "console/console_layout.h"

namespace ventrel {

struct SteeringBarLayout {
    Rect whole; ///< in the main window, as is
    Rect plate; ///< of the title alone, where nothing is steered: over the engraved word under the knob

    // In the bar's own pixels.
    Rect title;
    Rect slower;
    Rect pace; ///< the readout
    Rect faster;
    Rect pause;
    Rect pauseBesideMore; ///< where there is one button more
    Rect more;
    Rect takeOver;
    Rect stop;
};

constexpr SteeringBarLayout steeringBarAt(Point corner, int plateTop) {
    constexpr Size whole{105, 84};
    constexpr int plateHeight = 19;
    constexpr Size button{47, 19};
    constexpr Size arrow{button.height, button.height};
    constexpr int gap = 3;
    constexpr int left = 4;
    constexpr int right = whole.width - 4;
    constexpr int paceTop = 17;
    constexpr int firstRow = 39;
    constexpr int secondRow = 61;
    constexpr int takeOverWidth = 59;
    return {
        .whole = Rect::at(corner, whole),
        .plate = Rect::at({corner.x, plateTop}, {whole.width, plateHeight}),
        .title = {2, 2, whole.width - 2, 16},
        .slower = Rect::at({left, paceTop}, arrow),
        .pace = {left + arrow.width + gap, paceTop, right - arrow.width - gap, paceTop + arrow.height},
        .faster = Rect::at({right - arrow.width, paceTop}, arrow),
        .pause = {left, firstRow, right, firstRow + button.height},
        .pauseBesideMore = Rect::at({left, firstRow}, button),
        .more = Rect::at({right - button.width, firstRow}, button),
        .takeOver = Rect::at({left, secondRow}, {takeOverWidth, button.height}),
        .stop = {left + takeOverWidth + gap, secondRow, right, secondRow + button.height},
    };
}

inline constexpr SteeringBarLayout smallSteeringBar = steeringBarAt({3, 513}, 566);
inline constexpr SteeringBarLayout largeSteeringBar = steeringBarAt({52, 671}, 731);

constexpr const SteeringBarLayout& steeringBarFor(int windowWidth) {
    return windowWidth == largeConsole.size.width ? largeSteeringBar : smallSteeringBar;
}

/// The corner of the bar that comes nearest lies outside the round scope.
constexpr bool leavesTheScopeFree(const SteeringBarLayout& bar, const RadarLayout& radar) {
    const Rect scope = radar.scopeEllipse.movedBy(radar.corner);
    const long radius = scope.width() / 2;
    const long dx = bar.whole.right - (scope.left + scope.right) / 2;
    const long dy = bar.whole.top - (scope.top + scope.bottom) / 2;
    return dx * dx + dy * dy > radius * radius;
}
static_assert(leavesTheScopeFree(smallSteeringBar, smallRadarLayout) &&
              leavesTheScopeFree(largeSteeringBar, largeRadarLayout));

} // namespace ventrel
