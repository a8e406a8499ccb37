// An airspace as its author writes it: a TOML text, read strictly.
//
// Positions are cells, or places on the earth with the grid's middle and scale. A source serves both screen
// layouts; one that names its points' own pixel positions also names the only layout that it is for.

#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/colour.h"
#include "base/geometry.h"
#include "sim/vor.h"
#include "tools/apt/faults.h"
#include "tools/apt/grid_place.h"
#include "tools/chart/chart.h"

namespace ventrel::apt {

struct SourcePoint {
    Vor vor;                    ///< all but its place
    std::optional<Cell> cell;   ///< as given, or from its place on the earth
    std::optional<Point> pixel; ///< only where no cell fits
    KeyLines lines;
};

/// A picture that is drawn when the source is compiled, for the layout's size.
struct ChartSource {
    std::string outline; ///< name of the file beside the source, in UTF-8
    chart::Chart chart;  ///< but for its outline
};

struct AirspaceSource {
    std::string name;
    std::optional<int> layoutWidth; ///< the only layout that it is written for
    std::optional<GridPlace> grid;
    Colour routeColour;
    Colour selectedFlightColour;
    Colour flightColour;
    std::map<int, std::string> pictures; ///< names of files beside the source, in UTF-8, by layout width
    std::optional<ChartSource> chart;    ///< with it there are no pictures
    std::vector<SourcePoint> points;

    KeyLines lines;
    KeyLines colourLines;
    KeyLines pictureLines;

    bool serves(int width) const { return layoutWidth.value_or(width) == width; }
};

/// A source, and all of its faults in the order of their lines. With faults, the airspace holds what of it is
/// sound.
struct SourceReading {
    AirspaceSource airspace;
    Faults faults;
};

/// Reads a source, whatever the text is. An airspace without an exit or an airport is faulty.
SourceReading parseAirspace(std::string_view toml);

/// The line of the source that a problem at that layout width is about.
int lineOf(const AirspaceSource& source, const Problem& problem, int width);

/// The names of the places of a label, by the number that the airport file has for them.
inline constexpr std::array<std::string_view, 4> vorLabelPlaces{"above", "left", "right", "below"};
inline constexpr std::array<std::string_view, 4> airportLabelPlaces{"upper left", "upper right", "lower left",
                                                                    "lower right"};

} // namespace ventrel::apt
