// The airspace grid: 49 x 49 cells with the corners cut off, headings, and the two sizes in which it is
// drawn.
//
// A position may leave the grid; a flight whose cell is outside the scope is lost.
// Headings are degrees, 0 to 315 in steps of 45; 0 is up (north) and 90 right (east).

#pragma once

#include <optional>

#include "base/geometry.h"

namespace ventrel {

inline constexpr int gridSize = 49;
inline constexpr int gridMiddle = gridSize / 2;
inline constexpr int cornerCut = 15; ///< cells that a corner's diagonal cuts off each side

inline constexpr int headingStep = 45; ///< degrees that a flight turns in one move at most
inline constexpr int fullCircle = 360;

/// What depends on the size of the main window, as far as it reaches the simulation.
struct ScopeLayout {
    int windowWidth = 0;
    int cellSize = 0;    ///< pixels of one cell on the radar picture
    int cloudImages = 0; ///< how many of the cloud pictures are in use

    constexpr int pictureSize() const { return gridSize * cellSize; } ///< pixels of the square radar picture
};

inline constexpr ScopeLayout smallLayout{800, 11, 11};
inline constexpr ScopeLayout largeLayout{1024, 14, 16};

/// The layout for a window of that width; none but the two exist.
std::optional<ScopeLayout> scopeLayoutFor(int windowWidth);

/// The quarters of the grid, by their numbers in the schedule's draws.
enum class Quadrant { upperLeft = 0, upperRight = 1, lowerLeft = 2, lowerRight = 3 };

/// The neighbouring cell in that heading; the same cell for a number that is no heading.
Cell stepCell(Cell cell, int heading);

/// The quarter of the cell. The middle column and row belong to the lower right.
Quadrant quadrantOf(Cell cell);

/// Whether the cell lies beyond the diagonal of its own quadrant's corner.
bool isOutsideScope(Cell cell);

/// Whether the cells are the same or touch, sideways or diagonally.
constexpr bool areNeighbours(Cell a, Cell b) {
    return a.x - b.x <= 1 && b.x - a.x <= 1 && a.y - b.y <= 1 && b.y - a.y <= 1;
}

/// Whether a flight can fly it.
constexpr bool isHeading(int degrees) {
    return degrees >= 0 && degrees < fullCircle && degrees % headingStep == 0;
}

/// The heading after a turn of `degrees`, at most one full circle either way.
constexpr int turned(int heading, int degrees) {
    return (heading + degrees + fullCircle) % fullCircle;
}

} // namespace ventrel
