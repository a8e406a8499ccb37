#include "tools/chart/chart_painter.h"

#include <array>
#include <cmath>

#include "tools/chart/ink.h"
#include "tools/chart/landscape.h"
#include "tools/chart/noise.h"
#include "tools/chart/scope_light.h"
#include "tools/chart/strokes.h"

namespace ventrel::chart {

namespace {

constexpr Ink shoreInk = inkOf(Colour::rgb(0x86, 0xA3, 0x90));
constexpr Ink riverInk = inkOf(Colour::rgb(0x40, 0x76, 0x8C));
constexpr Ink borderInk = inkOf(Colour::rgb(0xC0, 0xA8, 0x98));
constexpr Ink townInk = inkOf(Colour::rgb(0x7A, 0x6C, 0x5C));
constexpr Ink snowInk = inkOf(Colour::rgb(0x74, 0x7E, 0x84));
constexpr Ink lineInk = inkOf(Colour::rgb(0x8F, 0xF0, 0xB8));
constexpr Ink glassInk = inkOf(Colour::rgb(0xDF, 0xF3, 0xEA));

// How much of an ink a place takes where it is laid on fully.
constexpr double shoreStrength = 0.7;
constexpr double riverStrength = 0.7;
constexpr double borderStrength = 0.5;
constexpr double townStrength = 0.7;
constexpr double snowStrength = 0.85;
constexpr double graticuleStrength = 0.13;

// Heights.
constexpr double lowland = 0.05; // up to here the country has its own colour
constexpr double highland = 0.7; // and from here that of hills
constexpr double fullSnow = 0.3; // above the snow line

// How much lighter or darker a place becomes.
constexpr double reliefStrength = 0.75;
constexpr double shadowStrength = 0.5;
constexpr double longestShadow = 8; // pixels

/// An unevenness of the ground: how many bumps there are in a cell, how many layers of ever smaller ones, and
/// how much they change.
struct Texture {
    double across = 1;
    double down = 1;
    double slant = 0; ///< how far the bumps lean
    int layers = 1;
    double strength = 0;
    std::uint32_t seed = 0;

    double at(Spot cell) const {
        return strength * fractalNoise(cell.x * across + cell.y * slant, cell.y * down, layers, seed);
    }
};
constexpr Texture waves{.across = 0.5, .down = 1.3, .slant = 0.2, .layers = 4, .strength = 0.1, .seed = 401};
constexpr Texture grain{.across = 1.7, .down = 1.7, .layers = 3, .strength = 0.08, .seed = 503};
constexpr Texture woods{.across = 0.33, .down = 0.33, .layers = 4, .strength = 0.75, .seed = 557};

constexpr Pen shorePen{.width = 1};
constexpr std::array<Pen, 4> riverPens{{{.width = 1.5},
                                        {.width = 1.2, .strength = 0.9F},
                                        {.width = 1, .strength = 0.8F},
                                        {.width = 0.8, .strength = 0.7F}}};
constexpr Pen countryPen{.width = 1.2, .dash = 7, .gap = 4};
constexpr Pen provincePen{.width = 1, .dash = 3, .gap = 4, .strength = 0.7F};

/// The lines of a chart, each kind in a plane of its own.
struct Lines {
    Plane shores;
    Plane rivers;
    Plane borders;
    Plane graticule;
};

Lines linesOf(const Chart& chart, const RadarLayout& layout) {
    const int side = layout.scopeSize;
    Lines lines{Plane(side), Plane(side), Plane(side), graticule(layout, chart.rings * layout.cellSize)};
    for (const Line& ring : chart.outline.land) {
        strokeRing(lines.shores, inPixels(ring, layout.cellSize), shorePen);
    }
    for (const auto& [grade, line] : chart.outline.rivers) {
        const Pen& pen = riverPens[static_cast<std::size_t>(grade - 1)];
        stroke(lines.rivers, inPixels(line, layout.cellSize), pen);
    }
    for (const auto& [grade, line] : chart.outline.borders) {
        stroke(lines.borders, inPixels(line, layout.cellSize), grade == 1 ? countryPen : provincePen);
    }
    return lines;
}

class Painter {
public:
    Painter(const Chart& chart, const RadarLayout& layout)
        : chart_(chart), layout_(layout), scape_(landscapeOf(chart, layout)), lines_(linesOf(chart, layout)) {
    }

    Ink at(int x, int y) const {
        const double land = scape_.land.at(x, y);
        Ink ink = land <= 0   ? water(x, y)
                  : land >= 1 ? country(x, y)
                              : mixed(water(x, y), country(x, y), land);
        ink = mixed(ink, shoreInk, shoreStrength * lines_.shores.at(x, y));
        ink = mixed(ink, riverInk, riverStrength * lines_.rivers.at(x, y) * land);
        ink = mixed(ink, borderInk, borderStrength * lines_.borders.at(x, y) * land);
        ink = times(ink, shadeAt(layout_, x, y));
        ink = mixed(ink, lineInk, graticuleStrength * lines_.graticule.at(x, y));
        return mixed(ink, glassInk, glareAt(layout_, x, y));
    }

private:
    Spot cellAt(int x, int y) const {
        return {static_cast<double>(x) / layout_.cellSize, static_cast<double>(y) / layout_.cellSize};
    }

    Ink water(int x, int y) const {
        const double near = chart_.shelf > 0 ? std::exp(-scape_.offshore.at(x, y) / chart_.shelf) : 0;
        const Ink ink = mixed(inkOf(chart_.water), inkOf(chart_.shallows), near);
        return times(times(ink, 1 + waves.at(cellAt(x, y))), 1 - shadowStrength * castShadow(x, y));
    }

    /// The land stands a little above the water, and its shadow falls to the lower right.
    double castShadow(int x, int y) const {
        if (scape_.offshore.at(x, y) * static_cast<float>(layout_.cellSize) > longestShadow) {
            return 0;
        }
        constexpr std::array<Spot, 4> samples{{{1, 1.3}, {1.8, 2.2}, {2.6, 3.2}, {3.4, 4.2}}}; // pixels
        double sum = 0;
        for (const Spot offset : samples) {
            sum += scape_.land.between(x - offset.x, y - offset.y);
        }
        return sum / samples.size();
    }

    Ink country(int x, int y) const {
        const double height = scape_.height.at(x, y);
        const double upland = smoothStep(lowland, highland, height) + woods.at(cellAt(x, y));
        Ink ink = mixed(inkOf(chart_.land), inkOf(chart_.highland), std::clamp(upland, 0.0, 1.0));
        ink = mixed(ink, townInk, townStrength * scape_.towns.at(x, y));
        if (chart_.snowLine) {
            const double snow = smoothStep(*chart_.snowLine, *chart_.snowLine + fullSnow, height);
            ink = mixed(ink, snowInk, snowStrength * snow);
        }
        return times(ink, 1 + reliefStrength * scape_.light.at(x, y) + grain.at(cellAt(x, y)));
    }

    const Chart& chart_;
    const RadarLayout& layout_;
    Landscape scape_;
    Lines lines_;
};

} // namespace

Bitmap paintedChart(const Chart& chart, const RadarLayout& layout) {
    const Painter painter(chart, layout);
    Bitmap picture(scopeSquare(layout).size());
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (isSeen(layout, x, y)) {
                picture.at(x, y) = pixelOf(painter.at(x, y));
            }
        }
    }
    return picture;
}

} // namespace ventrel::chart
