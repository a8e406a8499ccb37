#include "platform/canvas/damage.h"

namespace ventrel {

Damage::Damage(Size size) : size_(size), rows_(static_cast<std::size_t>(size.height)) {}

void Damage::add(const Rect& rect) {
    const int end = std::min(rect.bottom, size_.height);
    for (int y = std::max(rect.top, 0); y < end; ++y) {
        addRun(y, rect.left, rect.right);
    }
}

void Damage::addRun(int y, int left, int right) {
    left = std::max(left, 0);
    right = std::min(right, size_.width);
    if (y < 0 || y >= size_.height || left >= right) {
        return;
    }
    Interval& row = rows_[static_cast<std::size_t>(y)];
    row = row.left < row.right ? Interval{std::min(row.left, left), std::max(row.right, right)}
                               : Interval{left, right};
    firstRow_ = isEmpty() ? y : std::min(firstRow_, y);
    endRow_ = std::max(endRow_, y + 1);
}

void Damage::addAll() {
    add({0, 0, size_.width, size_.height});
}

void Damage::clear() {
    std::fill(rows_.begin() + firstRow_, rows_.begin() + endRow_, Interval{});
    firstRow_ = 0;
    endRow_ = 0;
}

std::vector<Rect> Damage::rectangles(int slack) const {
    std::vector<Rect> result;
    int narrowest = 0; // of the intervals in the last rectangle
    for (int y = firstRow_; y < endRow_; ++y) {
        const Interval row = rows_[static_cast<std::size_t>(y)];
        if (row.left >= row.right) {
            continue;
        }
        const Rect alone{row.left, y, row.right, y + 1};
        if (!result.empty() && result.back().bottom == y) {
            const Rect together = result.back().unitedWith(alone);
            const int narrowestTogether = std::min(narrowest, alone.width());
            if (together.width() - narrowestTogether <= slack) {
                result.back() = together;
                narrowest = narrowestTogether;
                continue;
            }
        }
        result.push_back(alone);
        narrowest = alone.width();
    }
    return result;
}

} // namespace ventrel
