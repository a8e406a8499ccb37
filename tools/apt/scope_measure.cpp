#include "tools/apt/scope_measure.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace ventrel::apt {

namespace {

int pixelsOutside(const Rect& ellipse, Point p) {
    // Twice the distances from the middle, so that they are whole numbers.
    const double x = 2 * p.x - ellipse.left - ellipse.right;
    const double y = 2 * p.y - ellipse.top - ellipse.bottom;
    const double reach = std::hypot(x / ellipse.width(), y / ellipse.height()); // 1 on the edge
    const double beyond = std::hypot(x, y) / 2 * (1 - 1 / reach);
    return reach <= 1 ? 0 : std::max(1, static_cast<int>(std::lround(beyond)));
}

bool isInScope(Cell cell) {
    const bool isOnGrid = cell.x >= 0 && cell.x < gridSize && cell.y >= 0 && cell.y < gridSize;
    return isOnGrid && !isOutsideScope(cell);
}

} // namespace

int pixelsOutside(const RadarLayout& layout, std::span<const Point> points) {
    int farthest = 0;
    for (const Point p : points) {
        farthest = std::max(farthest, pixelsOutside(layout.scopeEllipse, p));
    }
    return farthest;
}

int pixelsOutside(const RadarLayout& layout, const Rect& box) {
    const std::array<Point, 4> corners{{box.topLeft(),
                                        {box.right - 1, box.top},
                                        {box.left, box.bottom - 1},
                                        {box.right - 1, box.bottom - 1}}};
    return pixelsOutside(layout, corners);
}

int cellsOutside(Cell cell) {
    if (isInScope(cell)) {
        return 0;
    }
    int nearest = std::max(std::abs(cell.x - gridMiddle), std::abs(cell.y - gridMiddle));
    for (int y = 0; y < gridSize; ++y) {
        for (int x = 0; x < gridSize; ++x) {
            if (isInScope({x, y})) {
                nearest = std::min(nearest, std::max(std::abs(cell.x - x), std::abs(cell.y - y)));
            }
        }
    }
    return nearest;
}

} // namespace ventrel::apt
