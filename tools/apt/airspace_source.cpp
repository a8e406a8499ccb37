#include "tools/apt/airspace_source.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

#include "base/windows1252.h"
#include "sim/airport_file.h"
#include "sim/grid.h"
#include "tools/apt/toml_reader.h"

namespace ventrel::apt {

namespace {

constexpr double minutesPerDegree = 60; // of latitude; one is a nautical mile
constexpr int mostNudge = 3; // cells between a point's place on the earth and the cell given for it
constexpr int largestPixel = std::numeric_limits<std::uint16_t>::max();
constexpr int mostPoints = std::numeric_limits<std::uint16_t>::max();

/// Colours of the points that have none of their own.
struct PointColours {
    Colour label;
    Colour symbol;
    Colour runway;
};

class SourceReader {
public:
    SourceReader(const toml::table& root, const std::filesystem::path& file) : root_(root), file_(file) {}

    AirspaceSource read() {
        TableReader reader(root_, file_, "airspace");
        source_.name = reader.text("name", airport_layout::nameSize - 1);
        if (reader.has("layout")) {
            readLayout(reader);
        }
        if (reader.has("grid")) {
            readGrid(reader.table("grid"));
        }
        readColours(reader.table("colours"));
        if (reader.has("picture")) {
            readPictures(reader.table("picture"));
        }
        const toml::array& points = reader.tables("point");
        if (points.size() > mostPoints) {
            reader.fail("there are too many points", "point");
        }
        for (const toml::node& point : points) {
            readPoint(*point.as_table());
        }
        reader.finish();
        return std::move(source_);
    }

private:
    void readLayout(TableReader& reader) {
        const int width = reader.integer("layout", smallLayout.windowWidth, largeLayout.windowWidth);
        if (!scopeLayoutFor(width)) {
            reader.fail("'layout' must be 800 or 1024", "layout");
        }
        source_.layoutWidth = width;
    }

    void readGrid(const toml::table& table) {
        TableReader reader(table, file_, "grid");
        source_.grid = GridPlace{reader.real("latitude", -89, 89), reader.real("longitude", -180, 180),
                                 reader.real("nm_per_cell", 0.01, 100)};
        reader.finish();
    }

    void readColours(const toml::table& table) {
        TableReader reader(table, file_, "colours");
        source_.flightColour = reader.colour("aircraft");
        source_.selectedFlightColour = reader.colour("selected");
        source_.routeColour = reader.colour("route");
        colours_ = {reader.colour("label"), reader.colour("symbol"), reader.colour("runway")};
        reader.finish();
    }

    void readPictures(const toml::table& table) {
        TableReader reader(table, file_, "picture");
        for (const ScopeLayout& layout : {smallLayout, largeLayout}) {
            const std::string width = std::to_string(layout.windowWidth);
            if (reader.has(width)) {
                constexpr std::size_t longestName = 255;
                source_.pictures[layout.windowWidth] =
                    file_.parent_path() / toUtf8(reader.text(width, longestName));
            }
        }
        reader.finish();
    }

    void readPoint(const toml::table& table) {
        const std::size_t number = source_.points.size() + 1;
        TableReader reader(table, file_, "point " + std::to_string(number));
        SourcePoint point;
        Vor& vor = point.vor;
        vor.ident = reader.text("ident", airport_layout::identSize - 1);
        const bool isTaken = std::ranges::any_of(
            source_.points, [&](const SourcePoint& p) { return p.vor.ident == vor.ident; });
        if (isTaken) {
            reader.fail("another point is called '" + toUtf8(vor.ident) + "' already", "ident");
        }
        vor.description = reader.text("name", airport_layout::descriptionSize - 1);
        vor.isExit = reader.flag("exit", false);
        vor.isAirport = reader.flag("airport", false);
        vor.isMajor = reader.flag("major", false);
        if (vor.isAirport) {
            readRunway(reader, vor);
        }
        readLook(reader, vor);
        readPlace(reader, point);
        reader.finish();
        source_.points.push_back(std::move(point));
    }

    void readRunway(TableReader& reader, Vor& vor) {
        vor.runwayHeading = reader.integer("runway", 0, fullCircle - 1);
        if (vor.runwayHeading % headingStep != 0) {
            reader.fail("'runway' must be a multiple of 45", "runway");
        }
        vor.reverseChance = reader.has("reverse_chance") ? reader.integer("reverse_chance", 0, 100) : 0;
    }

    void readLook(TableReader& reader, Vor& vor) const {
        const auto own = [&](std::string_view key, Colour shared) {
            return reader.has(key) ? reader.colour(key) : shared;
        };
        vor.labelColour = own("label_colour", colours_.label);
        vor.symbolColour = own("symbol_colour", colours_.symbol);
        vor.runwayColour = own("runway_colour", colours_.runway);
        const auto& places = vor.isAirport ? airportLabelPlaces : vorLabelPlaces;
        constexpr std::size_t longestPlace = 16;
        const std::string place = reader.text("label", longestPlace);
        const auto found = std::ranges::find(places, place);
        if (found == places.end()) {
            std::string known;
            for (const std::string_view name : places) {
                known += (known.empty() ? "\"" : ", \"") + std::string(name) + '"';
            }
            reader.fail("'label' must be one of " + known, "label");
        }
        vor.labelPlace = static_cast<int>(found - places.begin());
    }

    void readPlace(TableReader& reader, SourcePoint& point) {
        if (reader.has("pixel")) {
            if (!source_.layoutWidth) {
                reader.fail("a 'pixel' position needs the airspace's 'layout'", "pixel");
            }
            point.pixel = reader.pair("pixel", 0, largestPixel);
            return;
        }
        if (reader.has("cell")) {
            const Point cell = reader.pair("cell", 0, gridSize - 1);
            point.cell = Cell{cell.x, cell.y};
        }
        const bool hasPlaceOnEarth = reader.has("latitude") || reader.has("longitude");
        if (hasPlaceOnEarth) {
            readPlaceOnEarth(reader, point);
        } else if (!point.cell) {
            reader.finish(); // a misspelt key says more than the one that it was meant for
            reader.fail("a 'cell', a 'latitude' and 'longitude', or a 'pixel' is missing");
        }
    }

    void readPlaceOnEarth(TableReader& reader, SourcePoint& point) {
        const double latitude = reader.real("latitude", -90, 90);
        const double longitude = reader.real("longitude", -180, 180);
        if (!source_.grid) {
            reader.fail("a place on the earth needs a [grid]", "latitude");
        }
        const Cell cell = cellOf(*source_.grid, latitude, longitude);
        const bool isOnGrid = cell.x >= 0 && cell.x < gridSize && cell.y >= 0 && cell.y < gridSize;
        if (!point.cell && !isOnGrid) {
            reader.fail("its place lies outside the grid", "latitude");
        }
        const Cell used = point.cell.value_or(cell);
        if (std::abs(used.x - cell.x) > mostNudge || std::abs(used.y - cell.y) > mostNudge) {
            reader.fail("'cell' is more than " + std::to_string(mostNudge) + " cells from its place, [" +
                            std::to_string(cell.x) + ", " + std::to_string(cell.y) + "]",
                        "cell");
        }
        point.cell = used;
    }

    const toml::table& root_;
    const std::filesystem::path& file_;
    AirspaceSource source_;
    PointColours colours_;
};

} // namespace

Cell cellOf(const GridPlace& grid, double latitude, double longitude) {
    constexpr double middle = gridSize / 2.0;
    const double shrink = std::cos(grid.latitude * std::numbers::pi / 180);
    const double east = (longitude - grid.longitude) * minutesPerDegree * shrink / grid.nauticalMilesPerCell;
    const double south = (grid.latitude - latitude) * minutesPerDegree / grid.nauticalMilesPerCell;
    return {static_cast<int>(std::floor(middle + east)), static_cast<int>(std::floor(middle + south))};
}

AirspaceSource parseAirspace(std::string_view text, const std::filesystem::path& file) {
    try {
        const toml::table root = toml::parse(text);
        return SourceReader(root, file).read();
    } catch (const toml::parse_error& error) {
        throw faultAt(file, error.source(), std::string(error.description()));
    }
}

} // namespace ventrel::apt
