#include "tools/chart/landscape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "tools/chart/distance.h"
#include "tools/chart/noise.h"
#include "tools/chart/scope_light.h"
#include "tools/chart/strokes.h"

namespace ventrel::chart {

namespace {

constexpr std::uint32_t hillSeed = 101;
constexpr std::uint32_t crestSeed = 211;
constexpr std::uint32_t townSeed = 307;
constexpr std::uint32_t bendSeed = 601;
constexpr double hillScale = 0.26; // bumps for each cell
constexpr int hillLayers = 5;
constexpr double hillHeight = 0.3; // of a country of unevenness 1
constexpr double crestScale = 0.36;
constexpr int crestLayers = 5;
constexpr double bendScale = 0.3; // bends of a range for each cell
constexpr int bendLayers = 2;
constexpr double bendWidth = 1.1;   // how far they go, in cells
constexpr double beach = 0.9;       // cells in which plain land rises from the shore
constexpr double steepShore = 0.3;  // the same where a ridge meets the sea
constexpr double valleyWidth = 1.3; // cells on either side of a river
constexpr double valleyFloor = 0.3; // of the height that there would be without the river

/// What a height is made of, as parts of that of its range: a body, and what crests or bumps add.
struct Form {
    double body = 0;
    double uneven = 0;

    double at(double unevenness) const { return body + uneven * unevenness; }
};
constexpr Form roundForm{0.5, 0.7};
constexpr Form ruggedForm{0.3, 1.1};
constexpr Form peakForm{0.85, 0.35};
constexpr double roundHeight = 0.1;   // ranges up to here are round
constexpr double ruggedHeight = 0.55; // and from here on rugged

constexpr Form townForm{0.75, 1.1};
constexpr double townReach = 2;     // times its radius, where it ends
constexpr double townFalloff = 1.6; // the higher, the sharper its edge
constexpr double townScale = 1.3;   // quarters for each cell
constexpr int townLayers = 4;

double squaredDistanceToPiece(Spot p, Spot a, Spot b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double length = dx * dx + dy * dy;
    const double along = (p.x - a.x) * dx + (p.y - a.y) * dy;
    const double part = length > 0 ? std::clamp(along / length, 0.0, 1.0) : 0.0;
    const double x = p.x - a.x - part * dx;
    const double y = p.y - a.y - part * dy;
    return x * x + y * y;
}

double distanceToLine(Spot p, const Line& line) {
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < line.size(); ++i) {
        least = std::min(least, squaredDistanceToPiece(p, line[i], line[std::min(i + 1, line.size() - 1)]));
    }
    return std::sqrt(least);
}

/// A range or a single peak, with the box of spots that it may reach.
struct Reach {
    const Ridge* ridge = nullptr;
    double width = 0; ///< with its foothills
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;

    bool contains(Spot p) const { return p.x > left && p.x < right && p.y > top && p.y < bottom; }
    bool isPeak() const { return ridge->crest.size() == 1; }
};

Reach reachOf(const Ridge& ridge) {
    constexpr double foothills = 1.7; // times the width that the highest part has
    const double width = ridge.width * foothills;
    const double around = width + bendWidth;
    const auto [left, right] = std::ranges::minmax(ridge.crest, {}, &Spot::x);
    const auto [top, bottom] = std::ranges::minmax(ridge.crest, {}, &Spot::y);
    return {&ridge, width, left.x - around, top.y - around, right.x + around, bottom.y + around};
}

/// How high the ranges and the peaks are, without their crests and valleys.
struct Massif {
    double range = 0;
    double peak = 0;
};

/// The ranges bend a little, and run out into foothills.
Massif massifAt(const std::vector<Reach>& ridges, Spot p) {
    Massif massif;
    if (std::ranges::none_of(ridges, [&](const Reach& reach) { return reach.contains(p); })) {
        return massif;
    }
    const Spot bent{p.x + bendWidth * fractalNoise(p.x * bendScale, p.y * bendScale, bendLayers, bendSeed),
                    p.y + bendWidth *
                              fractalNoise(p.y * bendScale, p.x * bendScale, bendLayers, bendSeed + 50)};
    for (const Reach& reach : ridges) {
        const double away = reach.contains(p)
                                ? distanceToLine(reach.isPeak() ? p : bent, reach.ridge->crest) / reach.width
                                : 1;
        if (away < 1) {
            const double part = 1 - away;
            double& highest = reach.isPeak() ? massif.peak : massif.range;
            highest = std::max(highest, reach.ridge->height * part * part * (2 - part));
        }
    }
    return massif;
}

/// How far the place is from what lies low, in cells.
struct LowPlaces {
    double water = 0;
    double river = 0;
};

double heightAt(const Chart& chart, const std::vector<Reach>& ridges, Spot p, LowPlaces away) {
    const double bumps = 0.5 + fractalNoise(p.x * hillScale, p.y * hillScale, hillLayers, hillSeed);
    const double hills = chart.unevenness * hillHeight * std::max(bumps, 0.0);
    const auto [range, peak] = massifAt(ridges, p);
    double mountains = 0;
    if (range > 0 || peak > 0) {
        const double crest = crestedNoise(p.x * crestScale, p.y * crestScale, crestLayers, crestSeed);
        const double rugged = smoothStep(roundHeight, ruggedHeight, range);
        mountains = std::max(range * mixed(roundForm.at(bumps), ruggedForm.at(crest), rugged),
                             peak * peakForm.at(crest));
    }
    const double valley = mixed(valleyFloor, 1, smoothStep(0, valleyWidth, away.river));
    return hills * smoothStep(0, beach, away.water) +
           mountains * valley * smoothStep(0, steepShore, away.water);
}

double townAt(const Chart& chart, Spot p) {
    double most = 0;
    for (const Town& town : chart.towns) {
        const double away = std::hypot(p.x - town.middle.x, p.y - town.middle.y) / town.radius;
        if (away < townReach) {
            most = std::max(most, std::exp(-away * away * townFalloff));
        }
    }
    if (most <= 0) {
        return 0;
    }
    const double quarters = fractalNoise(p.x * townScale, p.y * townScale, townLayers, townSeed);
    return most * std::clamp(townForm.at(quarters), 0.0, 1.0);
}

/// The light on a slope that rises by that much in a cell to the right and down.
double lightOn(double right, double down) {
    constexpr double steepness = 2.6;                             // how much the heights are raised
    constexpr std::array<double, 3> sun{-0.4545, -0.4545, 0.766}; // towards it: left, up, out of the picture
    const double x = -right * steepness;
    const double y = -down * steepness;
    const double lit = (x * sun[0] + y * sun[1] + sun[2]) / std::sqrt(x * x + y * y + 1);
    return std::clamp(lit / sun[2] - 1, -1.0, 1.0);
}

void scale(Plane& plane, double factor) {
    for (int y = 0; y < plane.side(); ++y) {
        for (float& value : plane.row(y)) {
            value = static_cast<float>(value * factor);
        }
    }
}

/// Cells to the nearest river.
Plane riverDistance(const Chart& chart, const RadarLayout& layout) {
    Plane rivers(layout.scopeSize);
    for (const GradedLine& river : chart.outline.rivers) {
        stroke(rivers, inPixels(river.line, layout.cellSize), {.width = 2});
    }
    Plane distance = distanceTo(Side::covered, rivers);
    scale(distance, 1.0 / layout.cellSize);
    return distance;
}

void raise(Landscape& scape, const Chart& chart, const RadarLayout& layout) {
    const Plane rivers = riverDistance(chart, layout);
    std::vector<Reach> ridges;
    ridges.reserve(chart.ridges.size());
    for (const Ridge& ridge : chart.ridges) {
        ridges.push_back(reachOf(ridge));
    }
    for (int y = 0; y < scape.land.side(); ++y) {
        for (int x = 0; x < scape.land.side(); ++x) {
            const Spot place{static_cast<double>(x) / layout.cellSize,
                             static_cast<double>(y) / layout.cellSize};
            if (scape.land.at(x, y) > 0 && isSeen(layout, x, y)) {
                const LowPlaces away{scape.inland.at(x, y), rivers.at(x, y)};
                scape.height.at(x, y) = static_cast<float>(heightAt(chart, ridges, place, away));
                scape.towns.at(x, y) = static_cast<float>(townAt(chart, place));
            }
        }
    }
}

void shine(Landscape& scape, int cellSize) {
    const Plane& height = scape.height;
    const double toSlope = cellSize / 2.0;
    for (int y = 0; y < height.side(); ++y) {
        for (int x = 0; x < height.side(); ++x) {
            const double right = (height.nearest(x + 1, y) - height.nearest(x - 1, y)) * toSlope;
            const double down = (height.nearest(x, y + 1) - height.nearest(x, y - 1)) * toSlope;
            scape.light.at(x, y) = static_cast<float>(lightOn(right, down));
        }
    }
}

} // namespace

Line inPixels(const Line& cells, int cellSize) {
    Line pixels;
    pixels.reserve(cells.size());
    for (const Spot spot : cells) {
        pixels.push_back({spot.x * cellSize, spot.y * cellSize});
    }
    return pixels;
}

Landscape landscapeOf(const Chart& chart, const RadarLayout& layout) {
    const int side = layout.scopeSize;
    const int cellSize = layout.cellSize;
    std::vector<Line> rings;
    rings.reserve(chart.outline.land.size());
    for (const Line& ring : chart.outline.land) {
        rings.push_back(inPixels(ring, cellSize));
    }
    Plane land = filled(side, rings);
    Plane inland = distanceTo(Side::clear, land);
    Plane offshore = distanceTo(Side::covered, land);
    scale(inland, 1.0 / cellSize);
    scale(offshore, 1.0 / cellSize);
    Landscape scape{std::move(land), std::move(inland), std::move(offshore),
                    Plane(side),     Plane(side),       Plane(side)};
    raise(scape, chart, layout);
    shine(scape, cellSize);
    return scape;
}

} // namespace ventrel::chart
