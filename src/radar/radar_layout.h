// The radar's geometry at the two sizes of the main window, and the rule from cells to radar pixels.
//
// Radar pixel (0, 0) is the top-left corner of cell (0, 0). A flight is drawn at its cell's top-left corner,
// a map point at its own pixel position; nothing is scaled.

#pragma once

#include "base/geometry.h"
#include "sim/grid.h"

namespace ventrel {

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

inline constexpr RadarLayout smallRadarLayout{800, {16, 61}, 539, 11, {27, 15, 535, 520}, 8, 12, {253, 507}};
inline constexpr RadarLayout largeRadarLayout{1024, {70, 70}, 686, 14, {0, 0, 686, 686}, 9, 16, {316, 668}};

/// The layout for a main window of that width: the large one for 1024, else the small one.
constexpr const RadarLayout& radarLayoutFor(int windowWidth) {
    return windowWidth == largeRadarLayout.windowWidth ? largeRadarLayout : smallRadarLayout;
}

/// The whole radar picture.
constexpr Rect scopeSquare(const RadarLayout& layout) {
    return {0, 0, layout.scopeSize, layout.scopeSize};
}

/// Where a flight in that cell is drawn.
constexpr Point radarPoint(const RadarLayout& layout, Cell cell) {
    return {cell.x * layout.cellSize, cell.y * layout.cellSize};
}

} // namespace ventrel
