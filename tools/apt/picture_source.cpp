#include "tools/apt/picture_source.h"

#include <algorithm>
#include <filesystem>

#include "base/windows1252.h"
#include "sim/grid.h"

namespace ventrel::apt {

namespace {

constexpr std::size_t longestName = 255;
constexpr double mostMiles = 500;
constexpr double leastMiles = 0.1;
constexpr double mostMilesBetweenRings = 1000;
constexpr std::size_t mostSpots = 100; // of a crest
constexpr std::size_t mostShapes = 100;

/// The name of a file beside the source, in UTF-8; empty when it was refused.
std::string fileName(TableReader& reader, const std::string& key) {
    const std::filesystem::path name = toUtf8(reader.text(key, longestName));
    if (name.is_absolute() || std::ranges::find(name, "..") != name.end()) {
        reader.fail('\'' + key + "' must lie in the source's folder or below: no '/' at its start, no '..'",
                    key);
        return {};
    }
    return name.string();
}

chart::Ridge readRidge(TableReader& reader, const GridPlace& grid) {
    chart::Ridge ridge;
    ridge.height = reader.real("height", 0, 1);
    ridge.width = reader.real("width", leastMiles, mostMiles) / grid.nauticalMilesPerCell;
    for (const auto& [latitude, longitude] : reader.places("crest", mostSpots)) {
        ridge.crest.push_back(spotOf(grid, latitude, longitude));
    }
    return ridge;
}

chart::Town readTown(TableReader& reader, const GridPlace& grid) {
    const double latitude = reader.real("latitude", -90, 90);
    const double longitude = reader.real("longitude", -180, 180);
    return {spotOf(grid, latitude, longitude),
            reader.real("radius", leastMiles, mostMiles) / grid.nauticalMilesPerCell};
}

/// All tables of that name, each read by `read`.
template <typename Shape>
std::vector<Shape> readShapes(TableReader& picture, const std::string& name, const GridPlace& grid,
                              Faults& faults, Shape (*read)(TableReader&, const GridPlace&)) {
    std::vector<Shape> shapes;
    const toml::array* tables = picture.has(name) ? picture.tables(name) : nullptr;
    if (tables == nullptr) {
        return shapes;
    }
    if (tables->size() > mostShapes) {
        picture.fail("there are more than " + std::to_string(mostShapes) + " of '" + name + '\'', name);
        return shapes;
    }
    for (const toml::node& table : *tables) {
        TableReader reader(*table.as_table(), faults, name + ' ' + std::to_string(shapes.size() + 1));
        shapes.push_back(read(reader, grid));
        reader.finish();
    }
    return shapes;
}

/// A chart with a fault is none: nothing is painted of it.
void readChart(TableReader& reader, AirspaceSource& source, Faults& faults) {
    const std::size_t faultsBefore = faults.size();
    if (!source.grid) {
        reader.fail("a picture from an outline needs a [grid]", "outline");
    }
    const GridPlace grid = source.grid.value_or(GridPlace{.nauticalMilesPerCell = 1});
    const double mile = 1 / grid.nauticalMilesPerCell;
    ChartSource drawn;
    drawn.outline = fileName(reader, "outline");
    chart::Chart& chart = drawn.chart;
    chart.land = reader.colour("land");
    chart.highland = reader.colour("highland");
    chart.water = reader.colour("water");
    chart.shallows = reader.colour("shallows");
    chart.unevenness = reader.real("unevenness", 0, 1);
    chart.shelf = reader.real("shelf", leastMiles, mostMiles) * mile;
    chart.rings = reader.real("rings", 1, mostMilesBetweenRings) * mile;
    if (reader.has("snow")) {
        chart.snowLine = reader.real("snow", 0, 1);
    }
    chart.ridges = readShapes(reader, "ridge", grid, faults, readRidge);
    chart.towns = readShapes(reader, "town", grid, faults, readTown);
    reader.finish();
    if (faults.size() == faultsBefore) {
        source.chart = std::move(drawn);
    }
}

} // namespace

void readPicture(const toml::table& table, AirspaceSource& source, Faults& faults) {
    TableReader reader(table, faults, "picture");
    source.pictureLines = reader.lines();
    if (reader.has("outline")) {
        readChart(reader, source, faults);
        return;
    }
    for (const ScopeLayout& layout : {smallLayout, largeLayout}) {
        const std::string width = std::to_string(layout.windowWidth);
        if (reader.has(width)) {
            if (const std::string name = fileName(reader, width); !name.empty()) {
                source.pictures[layout.windowWidth] = name;
            }
        }
    }
    reader.finish();
}

} // namespace ventrel::apt
