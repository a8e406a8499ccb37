#include "tools/apt/airspace_source.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <set>

#include "base/windows1252.h"
#include "sim/airport_file.h"
#include "sim/grid.h"
#include "tools/apt/picture_source.h"
#include "tools/apt/source_limits.h"
#include "tools/apt/toml_reader.h"

namespace ventrel::apt {

namespace {

constexpr int mostNudge = 3; // cells between a point's place on the earth and the cell given for it
constexpr int largestPixel = std::numeric_limits<std::uint16_t>::max();
constexpr int mostPointsOfFile = std::numeric_limits<std::uint16_t>::max();

/// Colours of the points that have none of their own.
struct PointColours {
    Colour label;
    Colour symbol;
    Colour runway;
};

class SourceReader {
public:
    explicit SourceReader(const toml::table& root) : root_(root) {}

    SourceReading read() {
        TableReader reader(root_, faults_, "airspace");
        source_.lines = reader.lines();
        source_.colourLines.table = source_.lines.table; // where the table is missing
        source_.pictureLines.table = source_.lines.table;
        source_.name = reader.text("name", airport_layout::nameSize - 1);
        if (reader.has("layout")) {
            readLayout(reader);
        }
        if (reader.has("grid")) {
            readGrid(reader.table("grid"));
        }
        readColours(reader.table("colours"));
        if (reader.has("picture")) {
            if (const toml::table* picture = reader.table("picture")) {
                readPicture(*picture, source_, faults_);
            }
        }
        readPoints(reader);
        reader.finish();
        std::ranges::stable_sort(faults_, {}, &Fault::line);
        return {std::move(source_), std::move(faults_)};
    }

private:
    void readLayout(TableReader& reader) {
        const int width = reader.integer("layout", smallLayout.windowWidth, largeLayout.windowWidth);
        if (reader.isSound() && !scopeLayoutFor(width)) {
            reader.fail("'layout' must be 800 or 1024", "layout");
        }
        if (scopeLayoutFor(width)) {
            source_.layoutWidth = width;
        }
    }

    void readGrid(const toml::table* table) {
        if (table == nullptr) {
            return;
        }
        TableReader reader(*table, faults_, "grid");
        const GridPlace grid{reader.real("latitude", -89, 89), reader.real("longitude", -180, 180),
                             reader.real("nm_per_cell", 0.01, 100)};
        reader.finish();
        if (reader.isSound()) {
            source_.grid = grid;
        }
    }

    void readColours(const toml::table* table) {
        if (table == nullptr) {
            return;
        }
        TableReader reader(*table, faults_, "colours");
        source_.colourLines = reader.lines();
        source_.flightColour = reader.colour("aircraft");
        source_.selectedFlightColour = reader.colour("selected");
        source_.routeColour = reader.colour("route");
        colours_ = {reader.colour("label"), reader.colour("symbol"), reader.colour("runway")};
        reader.finish();
    }

    void readPoints(TableReader& reader) {
        const toml::array* points = reader.tables("point");
        if (points == nullptr) {
            return;
        }
        if (points->size() > mostPointsOfFile) {
            reader.fail("there are " + std::to_string(points->size()) + " points; a file holds " +
                            std::to_string(mostPointsOfFile),
                        "point");
            return;
        }
        for (const toml::node& point : *points) {
            readPoint(*point.as_table());
        }
        // A point that is refused may be the one.
        if (faults_.empty()) {
            refuseUnplayable(reader);
        }
    }

    void refuseUnplayable(TableReader& reader) const {
        const auto has = [&](bool Vor::* kind) {
            return std::ranges::any_of(source_.points, [&](const SourcePoint& p) { return p.vor.*kind; });
        };
        if (!has(&Vor::isExit)) {
            reader.fail("no point is an exit, through which flights may leave");
        }
        if (!has(&Vor::isAirport)) {
            reader.fail("no point is an airport");
        }
    }

    void readPoint(const toml::table& table) {
        TableReader reader(table, faults_, "point " + std::to_string(++pointNumber_));
        SourcePoint point;
        point.lines = reader.lines();
        Vor& vor = point.vor;
        vor.ident = reader.text("ident", airport_layout::identSize - 1);
        if (!vor.ident.empty() && !idents_.insert(vor.ident).second) {
            reader.fail("another point is called '" + vor.ident + "' already", "ident");
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
        if (reader.isSound()) {
            source_.points.push_back(std::move(point));
        }
    }

    static void readRunway(TableReader& reader, Vor& vor) {
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
        if (found != places.end()) {
            vor.labelPlace = static_cast<int>(found - places.begin());
        } else if (!place.empty()) {
            std::string known;
            for (const std::string_view name : places) {
                known += (known.empty() ? "\"" : ", \"") + std::string(name) + '"';
            }
            reader.fail("'label' must be one of " + known, "label");
        }
    }

    void readPlace(TableReader& reader, SourcePoint& point) {
        const bool hasPlaceOnEarth = reader.has("latitude") || reader.has("longitude");
        if (reader.has("pixel")) {
            if (!root_.contains("layout")) {
                reader.fail("a 'pixel' position needs the airspace's 'layout'", "pixel");
            }
            point.pixel = reader.pair("pixel", 0, largestPixel);
            return;
        }
        if (reader.has("cell")) {
            const std::size_t faults = faults_.size();
            const Point cell = reader.pair("cell", 0, gridSize - 1);
            if (faults_.size() == faults) {
                point.cell = Cell{cell.x, cell.y};
            }
        }
        if (hasPlaceOnEarth) {
            readPlaceOnEarth(reader, point);
        } else if (!reader.has("cell")) {
            reader.fail("a 'cell', a 'latitude' and 'longitude', or a 'pixel' is missing");
        }
    }

    void readPlaceOnEarth(TableReader& reader, SourcePoint& point) {
        const std::size_t faults = faults_.size();
        const double latitude = reader.real("latitude", -90, 90);
        const double longitude = reader.real("longitude", -180, 180);
        if (!root_.contains("grid")) {
            reader.fail("a place on the earth needs a [grid]", "latitude");
        }
        if (!source_.grid || faults_.size() > faults) {
            return; // and the fault is told
        }
        const Cell cell = cellOf(*source_.grid, latitude, longitude);
        if (!reader.has("cell") && farthest(outside(cell.x), outside(cell.y)) > 0) {
            reader.fail("its place lies outside the grid" + farOutside(cell), "latitude");
        }
        const Cell used = point.cell.value_or(cell);
        const int nudge = farthest(used.x - cell.x, used.y - cell.y);
        if (nudge > mostNudge) {
            reader.fail("'cell' is " + counted(nudge, "cell") + " from its place, [" +
                            std::to_string(cell.x) + ", " + std::to_string(cell.y) + "]; at most " +
                            std::to_string(mostNudge) + " are allowed",
                        "cell");
        }
        point.cell = used;
    }

    /// Cells beyond either end of the grid, negative before its start.
    static int outside(int position) {
        return std::min(position, 0) + std::max(position - (gridSize - 1), 0);
    }

    static int farthest(int across, int down) { return std::max(std::abs(across), std::abs(down)); }

    /// Such as ", 3 cells west, 1 cell south".
    static std::string farOutside(Cell cell) {
        const auto way = [](int cells, const char* before, const char* beyond) {
            return cells == 0 ? "" : ", " + counted(std::abs(cells), "cell") + (cells < 0 ? before : beyond);
        };
        return way(outside(cell.x), " west", " east") + way(outside(cell.y), " north", " south");
    }

    const toml::table& root_;
    Faults faults_;
    AirspaceSource source_;
    PointColours colours_;
    std::size_t pointNumber_ = 0;
    std::set<std::string> idents_;
};

} // namespace

SourceReading parseAirspace(std::string_view toml) {
    if (auto fault = nestingFault(toml)) {
        return {{}, {std::move(*fault)}};
    }
    try {
        const toml::table root = toml::parse(toml);
        return SourceReader(root).read();
    } catch (const toml::parse_error& error) {
        return {{}, {{lineOf(error.source()), fromUtf8(error.description())}}};
    }
}

int lineOf(const AirspaceSource& source, const Problem& problem, int width) {
    const KeyLines& own = problem.point ? source.points[*problem.point].lines : source.lines;
    const auto colour = [&](const char* ownKey, const char* shared) {
        return own.keys.contains(ownKey) ? own.of(ownKey) : source.colourLines.of(shared);
    };
    switch (problem.subject) {
    case Subject::name: return own.of("name");
    case Subject::layout: return own.of("layout");
    case Subject::points: return own.of("point");
    case Subject::picture: return source.pictureLines.of(std::to_string(width), "outline");
    case Subject::flightColour: return source.colourLines.of("aircraft");
    case Subject::selectedColour: return source.colourLines.of("selected");
    case Subject::routeColour: return source.colourLines.of("route");
    case Subject::ident: return own.of("ident");
    case Subject::place: return own.of("cell", "pixel", "latitude");
    case Subject::kind: return own.of("exit", "airport");
    case Subject::runway: return own.of("runway");
    case Subject::reverseChance: return own.of("reverse_chance", "runway");
    case Subject::label: return own.of("label");
    case Subject::labelColour: return colour("label_colour", "label");
    case Subject::symbolColour: return colour("symbol_colour", "symbol");
    case Subject::runwayColour: return colour("runway_colour", "runway");
    }
    return own.table;
}

} // namespace ventrel::apt
