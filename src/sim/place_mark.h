// A cell and an altitude in one number, so that very many pairs of places are compared at once.

#pragma once

#include <cstdint>

#include "base/geometry.h"

namespace ventrel {

/// Made by `placeMark`, or one of those below.
using PlaceMark = std::uint32_t;

// The fields of a mark. Each has room above it, so that the difference of two never reaches the next field.
inline constexpr unsigned markCellBits = 10;
inline constexpr unsigned markRowShift = 12;
inline constexpr unsigned markAltitudeShift = 24;
inline constexpr PlaceMark markCellMask = (1U << markCellBits) - 1;
inline constexpr PlaceMark markAltitudeMask = 0x7F;

/// Of somebody who stands nowhere, and of somebody who does not look round: they touch nobody.
inline constexpr PlaceMark standsNowhere = 0x80U << markAltitudeShift;
inline constexpr PlaceMark looksNowhere = 0xC0U << markAltitudeShift;

/// Of the numbers the low bits alone: places 1024 cells or 128 altitudes apart have the same mark.
constexpr PlaceMark placeMark(Cell cell, int altitude) {
    return (static_cast<PlaceMark>(cell.x) & markCellMask) |
           (static_cast<PlaceMark>(cell.y) & markCellMask) << markRowShift |
           (static_cast<PlaceMark>(altitude) & markAltitudeMask) << markAltitudeShift;
}

/// Whether somebody who looks round `here` may have a neighbour of his altitude `there`. Always true of
/// neighbours, seldom of others.
constexpr bool mayTouch(PlaceMark here, PlaceMark there) {
    constexpr PlaceMark borrow = 1U << (markCellBits + 1);
    // With this a neighbour's columns and rows differ by 0 to 2.
    constexpr PlaceMark towardNeighbours = (borrow + 1) | (borrow + 1) << markRowShift;
    constexpr PlaceMark far = markCellMask & ~3U;
    constexpr PlaceMark farAway = far | far << markRowShift | ~PlaceMark{0} << markAltitudeShift;
    return ((there + towardNeighbours - here) & farAway) == 0;
}

} // namespace ventrel
