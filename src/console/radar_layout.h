// The radar's places at the two sizes of the main window.
//
// Its window is a square of cells, and the round scope lies within it. Radar pixel (0, 0) is the top-left
// corner of cell (0, 0).

#pragma once

#include "console/window_size.h"

namespace ventrel {

/// Cells along each side of the radar's square.
inline constexpr int radarCells = 49;

struct RadarLayout {
    int windowWidth = 0;    ///< of the main window: 800 or 1024
    Point corner;           ///< of the radar window in the main window
    int scopeSize = 0;      ///< pixels of the square radar window and of its pictures
    int cellSize = 0;       ///< pixels of one cell
    Rect scopeEllipse;      ///< the round scope within the square
    int labelHeight = 0;    ///< pixels of the map labels' characters
    int markerDiameter = 0; ///< of the circle of a map point
    Point scorePosition;    ///< top left of the score text
};

inline constexpr RadarLayout smallRadarLayout{
    .windowWidth = smallWindow.width,
    .corner = {16, 61},
    .scopeSize = 539,
    .cellSize = 11,
    .scopeEllipse = {27, 15, 535, 520},
    .labelHeight = 8,
    .markerDiameter = 12,
    .scorePosition = {253, 507},
};
inline constexpr RadarLayout largeRadarLayout{
    .windowWidth = largeWindow.width,
    .corner = {70, 70},
    .scopeSize = 686,
    .cellSize = 14,
    .scopeEllipse = {0, 0, 686, 686},
    .labelHeight = 9,
    .markerDiameter = 16,
    .scorePosition = {316, 668},
};

/// The layout for a main window of that width: the large one for 1024, else the small one.
constexpr const RadarLayout& radarLayoutFor(int windowWidth) {
    return windowWidth == largeRadarLayout.windowWidth ? largeRadarLayout : smallRadarLayout;
}

/// The whole radar picture.
constexpr Rect scopeSquare(const RadarLayout& layout) {
    return {0, 0, layout.scopeSize, layout.scopeSize};
}

/// The radar's window in the main window.
constexpr Rect radarWindowRect(const RadarLayout& layout) {
    return scopeSquare(layout).movedBy(layout.corner);
}

/// Where a flight in that cell is drawn.
constexpr Point radarPoint(const RadarLayout& layout, Cell cell) {
    return {cell.x * layout.cellSize, cell.y * layout.cellSize};
}

constexpr bool fitsItsCells(const RadarLayout& layout) {
    return layout.scopeSize == radarCells * layout.cellSize &&
           scopeSquare(layout).contains(layout.scopeEllipse) &&
           layout.scopeEllipse.contains(layout.scorePosition);
}
static_assert(fitsItsCells(smallRadarLayout) && fitsItsCells(largeRadarLayout));

} // namespace ventrel
