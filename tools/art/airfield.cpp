#include "tools/art/airfield.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "base/random.h"
#include "tools/art/daylight.h"

namespace ventrel::art {

namespace {

constexpr double halfRunway = runwayWidth / 2;

/// A flat piece of ground from corner to corner.
struct Patch {
    double west;
    double east;
    double south;
    double north;
};

void drawPatch(Svg& svg, const Camera& camera, const Patch& patch, std::string_view look) {
    const std::array<Vec, 4> corners{{{patch.west, patch.south, 0},
                                      {patch.east, patch.south, 0},
                                      {patch.east, patch.north, 0},
                                      {patch.west, patch.north, 0}}};
    const std::string data = seenPath(camera, corners);
    if (!data.empty()) {
        svg.path(data, look);
    }
}

constexpr std::string_view markingPaint = "fill=\"#d8d2c0\" opacity=\".62\"";

void drawMarkings(Svg& svg, const Camera& camera) {
    constexpr double stripe = 1.8;
    for (int i = 0; i < 12; ++i) {
        const double y = (i < 6 ? -20.5 : 2.9) + (i % 6) * 3.1;
        drawPatch(svg, camera, {6, 36, y, y + stripe}, markingPaint);
    }
    for (double x = 66; x < runwayLength - 60; x += 50) {
        drawPatch(svg, camera, {x, x + 30, -0.5, 0.5}, markingPaint);
    }
    for (const double side : {-1.0, 1.0}) {
        const double edge = side * (halfRunway - 1.2);
        drawPatch(svg, camera, {0, runwayLength, edge - 0.45, edge + 0.45}, markingPaint);
        drawPatch(svg, camera, {300, 345, side * 9 - 3, side * 9 + 3}, markingPaint);
        for (const double x : {150.0, 450.0, 600.0}) {
            drawPatch(svg, camera, {x, x + 22.5, side * 9 - 1.5, side * 9 + 1.5}, markingPaint);
        }
    }
}

void drawTarmac(Svg& svg, const Camera& camera) {
    constexpr std::string_view asphalt = "fill=\"url(#asphalt)\"";
    constexpr std::string_view taxi = "fill=\"url(#asphalt)\" opacity=\".8\"";
    drawPatch(svg, camera, {-90, runwayLength + 90, 150, 172}, taxi);
    for (const double x : {-10.0, 760.0, 1500.0, 2380.0}) {
        drawPatch(svg, camera, {x, x + 24, halfRunway, 150}, taxi);
    }
    drawPatch(svg, camera, {300, 1900, 172, 330}, taxi);
    drawPatch(svg, camera, {-60, runwayLength + 60, -halfRunway - 3, halfRunway + 3}, asphalt);
    // The dark marks that tyres leave.
    drawPatch(svg, camera, {240, 620, -5, 5}, "fill=\"#14171a\" opacity=\".30\"");
    drawPatch(svg, camera, {290, 520, -4, 4}, "fill=\"#101316\" opacity=\".30\"");
    drawMarkings(svg, camera);
}

struct Lamp {
    Vec at;
    std::string_view glow;
    double size; ///< metres, as bright as it looks
};

void addRow(std::vector<Lamp>& lamps, const Lamp& first, const Vec& step, int count) {
    for (int i = 0; i < count; ++i) {
        Lamp lamp = first;
        lamp.at = first.at + step * i;
        lamps.push_back(lamp);
    }
}

/// The longer the lens, the larger the glare of the far ones.
void drawGlows(Svg& svg, const Camera& camera, std::vector<Lamp> lamps) {
    const double smallest = std::clamp(camera.focal / 1500, 0.75, 1.5); // pixels
    constexpr double largest = 26;
    constexpr double glare = 1.3;
    std::ranges::stable_sort(lamps, std::ranges::greater{},
                             [&](const Lamp& lamp) { return camera.depth(lamp.at); });
    for (const Lamp& lamp : lamps) {
        if (const auto spot = camera.seen(lamp.at)) {
            const double radius = std::clamp(camera.scaleAt(lamp.at) * lamp.size * glare, smallest, largest);
            svg.circle(*spot, radius, "fill=\"url(#" + std::string(lamp.glow) + ")\"");
        }
    }
}

/// The lights of a town beyond the field, to the west and the north.
void addTown(std::vector<Lamp>& lamps) {
    constexpr int count = 420;
    RandomGenerator random{77};
    for (int i = 0; i < count; ++i) {
        const double bearing = Random(random, 2200, 4200) / 10.0 * std::numbers::pi / 180;
        const double distance = 3400 + Random(random, 3800);
        const Vec at{distance * std::sin(bearing), distance * std::cos(bearing), -1.0 + Random(random, 16)};
        lamps.push_back({at, RandomPercent(random) < 70 ? "glowAmber" : "glowWhite", 2.4});
    }
}

/// A building with rows of lit windows towards the south.
struct House {
    double west;
    double east;
    double south;
    double north;
    double height;
    int floors; ///< with windows; 0: a hangar
};
constexpr std::array<House, 11> houses{{
    {-1400, -1310, 820, 860, 12, 1},
    {-700, -640, 640, 690, 9, 1},
    {120, 210, 372, 440, 19, 0},
    {235, 325, 372, 440, 19, 0},
    {420, 760, 350, 400, 15, 2},
    {790, 1120, 350, 410, 22, 3},
    {1150, 1420, 350, 400, 15, 2},
    {1500, 1590, 372, 440, 19, 0},
    {1620, 1710, 372, 440, 19, 0},
    {1900, 1960, 420, 460, 26, 5},
    {2500, 2620, 560, 620, 14, 1},
}};

void drawWall(Svg& svg, const Camera& camera, const std::array<Vec, 4>& corners, const Vec& normal,
              double dimming) {
    const Vec towardsEye = unit(camera.at - corners[0]);
    if (dot(normal, towardsEye) <= 0) {
        return;
    }
    const std::string data = seenPath(camera, corners);
    if (!data.empty()) {
        svg.path(data, "fill=\"" + hex(lit(evening, tint(0x767f88) * dimming, normal, towardsEye, 0)) + '"');
    }
}

/// The upright piece of a house's south wall between two places and two heights.
std::string onSouthWall(const Camera& camera, const House& house, double west, double east, double low,
                        double high) {
    const std::array<Vec, 4> corners{{{west, house.south, low},
                                      {east, house.south, low},
                                      {east, house.south, high},
                                      {west, house.south, high}}};
    return seenPath(camera, corners);
}

void drawWindowRows(Svg& svg, const Camera& camera, const House& house) {
    const double storey = house.height / (house.floors + 0.5);
    for (int floor = 0; floor < house.floors; ++floor) {
        const double low = storey * (floor + 0.45);
        std::string panes;
        for (double x = house.west + 3; x < house.east - 5; x += 6) {
            panes += onSouthWall(camera, house, x, x + 4.4, low, low + storey * 0.55);
        }
        if (!panes.empty()) {
            svg.path(panes,
                     floor % 2 == 0 ? "fill=\"#ffcf86\" opacity=\".9\"" : "fill=\"#ffdca8\" opacity=\".7\"");
        }
    }
}

/// Half open, with light inside.
void drawHangarDoor(Svg& svg, const Camera& camera, const House& house) {
    constexpr int leaves = 6;
    const double west = house.west + 8;
    const double leaf = (house.east - house.west - 16) / leaves;
    for (int i = 0; i < leaves; ++i) {
        const bool isOpen = i == 2 || i == 3;
        const std::string data = onSouthWall(camera, house, west + leaf * i + 0.6,
                                             west + leaf * (i + 1) - 0.6, 0, house.height * 0.72);
        if (!data.empty()) {
            svg.path(data, isOpen ? "fill=\"#d9984c\"" : "fill=\"#3a4046\"");
        }
    }
}

void drawHouse(Svg& svg, const Camera& camera, const House& house) {
    const auto [west, east, south, north, height, floors] = house;
    const auto wall = [&](double x1, double y1, double x2, double y2, const Vec& normal) {
        drawWall(svg, camera, {{{x1, y1, 0}, {x2, y2, 0}, {x2, y2, height}, {x1, y1, height}}}, normal, 0.34);
    };
    wall(west, north, west, south, {-1, 0, 0});
    wall(east, south, east, north, {1, 0, 0});
    wall(west, south, east, south, {0, -1, 0});
    drawWall(svg, camera,
             {{{west, south, height}, {east, south, height}, {east, north, height}, {west, north, height}}},
             {0, 0, 1}, 0.3);
    if (floors == 0) {
        drawHangarDoor(svg, camera, house);
    }
    drawWindowRows(svg, camera, house);
}

/// The lit boards that name the turn-offs, along the runway's south side.
void drawBoards(Svg& svg, const Camera& camera) {
    constexpr std::array<std::string_view, 4> names{"B1", "B2", "B3", "B4"};
    constexpr double first = 250; // metres along the runway
    constexpr double pitch = 130;
    constexpr double widthOfBoard = 4.4;
    constexpr double heightOfBoard = 1.9;
    constexpr double foot = 0.5;
    constexpr double tooNear = 40;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const Vec at{first + pitch * static_cast<double>(i), -35, foot};
        const auto spot = camera.seen(at);
        if (!spot || camera.depth(at) < tooNear) {
            continue;
        }
        const double scale = camera.scaleAt(at);
        const Box board(spot->x - widthOfBoard / 2 * scale, spot->y - heightOfBoard * scale,
                        widthOfBoard * scale, heightOfBoard * scale);
        svg.rect({board.x, board.bottom(), board.width, foot * scale}, 0, "fill=\"#0b0e10\"");
        svg.rect(board.grownBy(0.16 * scale), 0.1 * scale, "fill=\"#14181a\"");
        svg.rect(board, 0, "fill=\"#e8a93c\"");
        svg.words({board.middle().x, board.bottom() - 0.36 * scale}, names[i],
                  "font-family=\"Liberation Sans Narrow\" font-weight=\"bold\" text-anchor=\"middle\" "
                  "fill=\"#15110a\" font-size=\"" +
                      number(1.75 * scale) + '"');
    }
}

} // namespace

std::string airfieldMaterials(double depth) {
    const auto down = [&](std::string_view id) {
        return "<linearGradient id=\"" + std::string(id) +
               "\" gradientUnits=\"userSpaceOnUse\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"" + number(depth) + "\">";
    };
    return down("grass") +
           "<stop offset=\"0\" stop-color=\"#57484a\"/><stop offset=\".06\" stop-color=\"#38383c\"/><stop "
           "offset=\".3\" stop-color=\"#20292a\"/><stop offset=\"1\" "
           "stop-color=\"#0f1718\"/></linearGradient>\n" +
           down("asphalt") +
           "<stop offset=\"0\" stop-color=\"#8d7466\"/><stop offset=\".1\" stop-color=\"#62595a\"/><stop "
           "offset=\".4\" stop-color=\"#3f4349\"/><stop offset=\"1\" "
           "stop-color=\"#2a2f34\"/></linearGradient>\n"
           "<linearGradient id=\"mist\" gradientUnits=\"userSpaceOnUse\" x1=\"0\" y1=\"0\" x2=\"0\" y2=\"" +
           number(depth * 0.22) +
           "\"><stop offset=\"0\" stop-color=\"#d99a74\" stop-opacity=\".28\"/><stop offset=\".35\" "
           "stop-color=\"#a8867c\" stop-opacity=\".16\"/><stop offset=\"1\" stop-color=\"#80787c\" "
           "stop-opacity=\"0\"/></linearGradient>\n"
           "<filter id=\"meadow\" x=\"0\" y=\"0\" width=\"100%\" height=\"100%\" "
           "color-interpolation-filters=\"sRGB\"><feTurbulence type=\"fractalNoise\" baseFrequency=\"0.012 "
           "0.22\" numOctaves=\"4\" seed=\"21\"/><feColorMatrix values=\"0 0 0 0 .02  0 0 0 0 .03  0 0 0 0 "
           ".03  1.1 .5 0 0 -.58\"/></filter>\n";
}

void drawAirfield(Svg& svg, const Camera& camera, Size size) {
    // Measured from the horizon, as its materials are.
    Camera level = camera;
    level.middle.y = 0;
    const double depth = size.height - camera.middle.y;
    // The grass turns with the camera.
    const double turned = camera.bearing * std::numbers::pi / 180 * camera.focal;
    svg.open("transform=\"translate(0 " + number(camera.middle.y) + ")\"");
    svg.rect({0, 0, double(size.width), depth}, 0, "fill=\"url(#grass)\"");
    svg.open("transform=\"translate(" + number(-turned) + " 0)\"");
    svg.rect({turned, 0, double(size.width), depth}, 0, "filter=\"url(#meadow)\"");
    svg.close();
    svg.rect({0, 0, double(size.width), depth * 0.22}, 0, "fill=\"url(#mist)\"");
    std::vector<Lamp> town;
    addTown(town);
    drawGlows(svg, level, town);
    drawTarmac(svg, level);
    std::vector<House> byDistance(houses.begin(), houses.end());
    std::ranges::sort(byDistance, std::ranges::greater{}, [&](const House& house) {
        return level.depth({(house.west + house.east) / 2, house.south, 0});
    });
    for (const House& house : byDistance) {
        drawHouse(svg, level, house);
    }
    drawBoards(svg, level);
    svg.close();
}

namespace {

void addApproach(std::vector<Lamp>& lamps, double moment) {
    constexpr double pitch = 30;
    constexpr int bars = 24;
    constexpr double flashesASecond = 2;
    const double run = std::fmod(moment * flashesASecond, 1.0) * bars; // from the outermost inwards
    for (int i = 1; i <= bars; ++i) {
        const double x = -pitch * i;
        addRow(lamps, {{x, -4, 1.5}, "glowWhite", 1.1}, {0, 2, 0}, 5);
        if (i > 9 && std::abs((bars - i) - run) < 1.2) {
            lamps.push_back({{x, 0, 2}, "glowWhite", 7});
        }
    }
    addRow(lamps, {{-300, -15, 1.5}, "glowWhite", 1.1}, {0, 3, 0}, 11);
    for (const double side : {-1.0, 1.0}) {
        addRow(lamps, {{-30, side * 9, 1}, "glowRed", 1.2}, {-30, 0, 0}, 9);
        addRow(lamps, {{-30, side * 11.5, 1}, "glowRed", 1.2}, {-30, 0, 0}, 9);
    }
}

std::vector<Lamp> allLamps(double moment) {
    std::vector<Lamp> lamps;
    addApproach(lamps, moment);
    addRow(lamps, {{-2, -halfRunway, 0.5}, "glowGreen", 1.6}, {0, 3, 0}, 16);
    addRow(lamps, {{runwayLength + 2, -halfRunway, 0.5}, "glowRed", 1.4}, {0, 3, 0}, 16);
    for (const double side : {-1.0, 1.0}) {
        addRow(lamps, {{0, side * (halfRunway + 2), 0.5}, "glowWhite", 1.5}, {60, 0, 0}, 41);
        for (int bar = 0; bar < 28; ++bar) {
            addRow(lamps, {{30.0 + bar * 30, side * 9, 0.1}, "glowWhite", 0.6}, {0, side * 1.6, 0}, 3);
        }
    }
    addRow(lamps, {{30, 0, 0.1}, "glowWhite", 0.6}, {30, 0, 0}, 78);
    addRow(lamps, {{315, 48, 1}, "glowWhite", 2.6}, {0, 9, 0}, 2); // two white, two red: on the glide path
    addRow(lamps, {{315, 66, 1}, "glowRed", 2.6}, {0, 9, 0}, 2);
    addRow(lamps, {{-80, 148, 0.5}, "glowBlue", 1.3}, {45, 0, 0}, 57);
    addRow(lamps, {{-80, 174, 0.5}, "glowBlue", 1.3}, {45, 0, 0}, 10);
    addRow(lamps, {{340, 335, 14}, "glowAmber", 4}, {120, 0, 0}, 14);
    return lamps;
}

} // namespace

void drawAirfieldLamps(Svg& svg, const Camera& camera, double moment) {
    drawGlows(svg, camera, allLamps(moment));
}

} // namespace ventrel::art
