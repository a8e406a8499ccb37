// A map as a picture for the radar: the outlines of the country, and how it lies and looks.

#pragma once

#include <optional>
#include <vector>

#include "base/colour.h"
#include "tools/chart/outline.h"

namespace ventrel::chart {

/// A range of hills or mountains along a line.
struct Ridge {
    double height = 0; ///< 0 flat to 1 for the highest mountains
    double width = 0;  ///< cells from the crest to the plain
    Line crest;        ///< one spot or more; one alone is a single peak
};

/// Built-up country, which fades into the rest.
struct Town {
    Spot middle;
    double radius = 0; ///< cells
};

struct Chart {
    Outline outline;
    Colour land;           ///< of flat country
    Colour highland;       ///< of hills
    Colour water;          ///< of the open sea
    Colour shallows;       ///< of water by the shore
    double unevenness = 0; ///< of the country where there are no ridges: 0 a table, 1 hills everywhere
    double shelf = 0;      ///< cells that the shallows reach out from the shore
    double rings = 0;      ///< cells from one range ring to the next
    std::optional<double> snowLine; ///< the height from which snow lies; none: there is no snow
    std::vector<Ridge> ridges;
    std::vector<Town> towns;
};

} // namespace ventrel::chart
