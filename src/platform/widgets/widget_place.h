// Where dialogs stand and how large they are.

#pragma once

#include "base/geometry.h"

namespace ventrel {

// A dialog unit is a quarter of 6 pixels across and an eighth of 13 pixels down, rounded half up.
inline constexpr int dialogUnitWidth = 6;
inline constexpr int dialogUnitHeight = 13;

constexpr int dialogUnitsAcross(int units) {
    return (units * dialogUnitWidth + 2) / 4;
}
constexpr int dialogUnitsDown(int units) {
    return (units * dialogUnitHeight + 4) / 8;
}

constexpr Rect dialogUnitsToPixels(const Rect& units) {
    return {dialogUnitsAcross(units.left), dialogUnitsDown(units.top), dialogUnitsAcross(units.right),
            dialogUnitsDown(units.bottom)};
}

/// A rectangle of that size in the middle of `reference`, moved inside the screen from its left and top edge
/// on.
constexpr Rect centredIn(const Rect& reference, Size size) {
    const auto place = [](int from, int to, int length) {
        const int start = (from + to) / 2 - length / 2;
        return start < 0 ? 0 : start + length > to ? to - length : start;
    };
    return Rect::at({place(reference.left, reference.right, size.width),
                     place(reference.top, reference.bottom, size.height)},
                    size);
}

} // namespace ventrel
