// Where the grid lies on the earth. The country is taken as flat: a degree of longitude is as long everywhere
// as in the grid's middle.

#pragma once

#include "base/geometry.h"
#include "tools/chart/outline.h"

namespace ventrel::apt {

/// The middle of the grid on the earth, in degrees, and its scale.
struct GridPlace {
    double latitude = 0;
    double longitude = 0;
    double nauticalMilesPerCell = 0;
};

/// The cell of a place on the earth, the shorter way around it.
Cell cellOf(const GridPlace& grid, double latitude, double longitude);

/// The place on the picture. A point stands on the corner of its cell, so this lies half a cell to the upper
/// left of the place within its cell: points lie on the average where they do in the country.
chart::Spot spotOf(const GridPlace& grid, double latitude, double longitude);

} // namespace ventrel::apt
