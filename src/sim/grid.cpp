#include "sim/grid.h"

namespace ventrel {

std::optional<ScopeLayout> scopeLayoutFor(int windowWidth) {
    for (const ScopeLayout& layout : {smallLayout, largeLayout}) {
        if (layout.windowWidth == windowWidth) {
            return layout;
        }
    }
    return std::nullopt;
}

Cell stepCell(Cell cell, int heading) {
    switch (heading) {
    case 0: return {cell.x, cell.y - 1};
    case 45: return {cell.x + 1, cell.y - 1};
    case 90: return {cell.x + 1, cell.y};
    case 135: return {cell.x + 1, cell.y + 1};
    case 180: return {cell.x, cell.y + 1};
    case 225: return {cell.x - 1, cell.y + 1};
    case 270: return {cell.x - 1, cell.y};
    case 315: return {cell.x - 1, cell.y - 1};
    default: return cell;
    }
}

Quadrant quadrantOf(Cell cell) {
    if (cell.x < gridMiddle && cell.y < gridMiddle) {
        return Quadrant::upperLeft;
    }
    if (cell.x < gridMiddle && cell.y > gridMiddle) {
        return Quadrant::lowerLeft;
    }
    if (cell.x > gridMiddle && cell.y < gridMiddle) {
        return Quadrant::upperRight;
    }
    return Quadrant::lowerRight;
}

bool isOutsideScope(Cell cell) {
    switch (quadrantOf(cell)) {
    case Quadrant::upperLeft: return cell.x + cell.y < cornerCut;
    case Quadrant::upperRight: return (gridSize - cell.x) + cell.y < cornerCut;
    case Quadrant::lowerLeft: return (gridSize - cell.y) + cell.x < cornerCut;
    case Quadrant::lowerRight: return 2 * gridSize - cell.x - cell.y < cornerCut;
    }
    return false;
}

} // namespace ventrel
