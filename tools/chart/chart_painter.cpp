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
constexpr Ink riverInk = inkOf(Colour::rgb(0x58, 0x96, 0xAA));
constexpr Ink borderInk = inkOf(Colour::rgb(0xC0, 0xA8, 0x98));
constexpr Ink townInk = inkOf(Colour::rgb(0x7A, 0x6C, 0x5C));
constexpr Ink snowInk = inkOf(Colour::rgb(0x74, 0x7E, 0x84));
constexpr Ink lineInk = inkOf(Colour::rgb(0x8F, 0xF0, 0xB8));
constexpr Ink glassInk = inkOf(Colour::rgb(0xDF, 0xF3, 0xEA));

constexpr double shoreStrength = 0.7;
constexpr double riverStrength = 0.7;
constexpr double borderStrength = 0.5;
constexpr double townStrength = 0.7;
constexpr double snowStrength = 0.85;
constexpr double fullSnow = 0.3; // above the snow line
constexpr double graticuleStrength = 0.13;
constexpr double longestShadow = 8; // pixels
constexpr double reliefStrength = 0.75;
constexpr std::uint32_t waveSeed = 401;
constexpr std::uint32_t grainSeed = 503;
constexpr std::uint32_t coverSeed = 557;

constexpr std::array<double, 4> riverWidths{1.5, 1.2, 1.0, 0.8};
constexpr std::array<float, 4> riverPresence{1.0F, 0.9F, 0.8F, 0.7F};

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
        strokeRing(lines.shores, inPixels(ring, layout.cellSize), {.width = 1});
    }
    for (const auto& [grade, line] : chart.outline.rivers) {
        const auto k = static_cast<std::size_t>(grade - 1);
        stroke(lines.rivers, inPixels(line, layout.cellSize),
               {.width = riverWidths[k], .strength = riverPresence[k]});
    }
    for (const auto& [grade, line] : chart.outline.borders) {
        const bool isOfCountries = grade == 1;
        stroke(lines.borders, inPixels(line, layout.cellSize),
               {.width = isOfCountries ? 1.2 : 1.0,
                .dash = isOfCountries ? 7.0 : 3.0,
                .gap = 4,
                .strength = isOfCountries ? 1.0F : 0.7F});
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
    Ink water(int x, int y) const {
        const double cells = scape_.offshore.at(x, y);
        const double near = chart_.shelf > 0 ? std::exp(-cells / chart_.shelf) : 0;
        Ink ink = mixed(inkOf(chart_.water), inkOf(chart_.shallows), near);
        const double cx = static_cast<double>(x) / layout_.cellSize;
        const double cy = static_cast<double>(y) / layout_.cellSize;
        const double wave = fractalNoise(cx * 0.5 + cy * 0.2, cy * 1.3, 4, waveSeed);
        ink = times(ink, 1 + 0.10 * wave);
        return times(ink, 1 - 0.5 * castShadow(x, y));
    }

    /// The land stands a little above the water, and its shadow falls to the lower right.
    double castShadow(int x, int y) const {
        double sum = 0;
        if (scape_.offshore.at(x, y) * static_cast<float>(layout_.cellSize) > longestShadow) {
            return 0;
        }
        constexpr std::array<Spot, 4> samples{{{1, 1.3}, {1.8, 2.2}, {2.6, 3.2}, {3.4, 4.2}}};
        for (const Spot offset : samples) {
            sum += scape_.land.between(x - offset.x, y - offset.y);
        }
        return sum / samples.size();
    }

    Ink country(int x, int y) const {
        const double height = scape_.height.at(x, y);
        const double cx = static_cast<double>(x) / layout_.cellSize;
        const double cy = static_cast<double>(y) / layout_.cellSize;
        const double cover = 0.5 + fractalNoise(cx * 0.33, cy * 0.33, 4, coverSeed); // woods and fields
        const double upland = smoothStep(0.05, 0.7, height);
        Ink ink = mixed(inkOf(chart_.land), inkOf(chart_.highland),
                        std::clamp(upland + 0.75 * (cover - 0.5), 0.0, 1.0));
        ink = mixed(ink, townInk, townStrength * scape_.towns.at(x, y));
        if (chart_.snowLine) {
            const double snow = smoothStep(*chart_.snowLine, *chart_.snowLine + fullSnow, height);
            ink = mixed(ink, snowInk, snowStrength * snow);
        }
        const double grain = fractalNoise(cx * 1.7, cy * 1.7, 3, grainSeed);
        return times(ink, 1 + reliefStrength * scape_.light.at(x, y) + 0.08 * grain);
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
