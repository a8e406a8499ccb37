// The country under the radar: how outlines are read, and what is painted of them.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "airspace_stage.h"
#include "console/radar_layout.h"
#include "console/signal_colours.h"
#include "platform/images/image.h"
#include "tools/apt/colour_sight.h"
#include "tools/chart/chart_painter.h"
#include "tools/chart/distance.h"
#include "tools/chart/strokes.h"

namespace ventrel {
namespace {

using namespace chart;

/// An island in the middle, with a lake and a river.
constexpr std::string_view island = "# An island.\n"
                                    "land 12,12 36,12 36,36\n"
                                    "  12,36\n"
                                    "land 20,20 28,20 28,28 20,28\r\n"
                                    "river 1 14,16 34,16\n"
                                    "border 2 30.5,12 30.5,36\n";

TEST(Outline, LinesGoOnAfterABlank) {
    const auto outline = parseOutline(island, "island");
    ASSERT_TRUE(outline.has_value());
    ASSERT_EQ(outline->land.size(), 2U);
    EXPECT_EQ(outline->land[0].size(), 4U);
    EXPECT_EQ(outline->land[1].size(), 4U);
    ASSERT_EQ(outline->borders.size(), 1U);
    EXPECT_EQ(outline->borders[0].grade, 2);
    EXPECT_EQ(outline->borders[0].line[1].x, 30.5);
    EXPECT_EQ(outline->rivers.size(), 1U);
}

TEST(Outline, IsRefusedByLineAndReason) {
    constexpr std::array<std::array<const char*, 2>, 11> faulty{{
        {"sea 1,1 2,2 3,3", "x:1: a line begins with land"},
        {"\n# a\n  1,1", "x:3: '1,1' is no place"},
        {"land 1,1 2,2", "x:1: the line before has too few places"},
        {"land 1,1 2,2\nland 1,1 2,2 3,3", "x:2: the line before"},
        {"river 1 1,1", "x:1: the line before"},
        {"river 5 1,1 2,2", "x:1: a grade"},
        {"river 1,1 2,2", "x:1: a grade"},
        {"border", "x:1: a grade"},
        {"land 1,1 2;2 3,3", "x:1: '2;2' is no place"},
        {"land 1,1 2,nan 3,3", "x:1: '2,nan' is no place"},
        {"land 1,1 2,1e9 3,3", "x:1: '2,1e9' is no place"},
    }};
    for (const auto& [text, said] : faulty) {
        const auto outline = parseOutline(text, "x");
        ASSERT_FALSE(outline.has_value()) << text;
        EXPECT_TRUE(outline.error().text.starts_with(said)) << outline.error().text;
    }
}

double sum(const Plane& plane) {
    double total = 0;
    for (int y = 0; y < plane.side(); ++y) {
        for (const float value : plane.row(y)) {
            total += static_cast<double>(value);
        }
    }
    return total;
}

TEST(Strokes, CoverWhatTheyEncloseAlsoBetweenPixels) {
    const Line square{{2.25, 2.5}, {7.25, 2.5}, {7.25, 7}, {2.25, 7}};
    const Plane whole = filled(12, {square});
    EXPECT_NEAR(sum(whole), 5 * 4.5, 0.01);
    EXPECT_FLOAT_EQ(whole.at(2, 5), 0.25F);
    EXPECT_FLOAT_EQ(whole.at(4, 5), 1);
    const Line hole{{4, 4}, {5, 4}, {5, 5}, {4, 5}};
    EXPECT_NEAR(sum(filled(12, {square, hole})), 5 * 4.5 - 1, 0.01);
    // What leaves the picture is cut at its edge, whose pixels reach half a pixel out.
    EXPECT_NEAR(sum(filled(4, {{{-9, -9}, {99, -9}, {99, 99}, {-9, 99}}})), 16, 0.01);
    EXPECT_EQ(sum(filled(4, {{{50, 1}, {60, 1}, {60, 3}}})), 0);
    Plane line(12);
    stroke(line, {{1, 5}, {9, 5}, {9, 5}}, {.width = 1});
    EXPECT_FLOAT_EQ(line.at(5, 5), 1);
    EXPECT_FLOAT_EQ(line.at(5, 6), 0);
    Plane dashes(12);
    stroke(dashes, {{-4, 5}, {4, 5}, {11, 5}}, {.width = 1, .dash = 2, .gap = 4});
    EXPECT_FLOAT_EQ(dashes.at(3, 5), 1);
    EXPECT_FLOAT_EQ(dashes.at(6, 5), 0);
    EXPECT_FLOAT_EQ(dashes.at(9, 5), 1);
}

TEST(Distance, IsThatToTheNearestPixelOfTheSide) {
    Plane covered(9);
    covered.at(1, 2) = 1;
    covered.at(8, 8) = 0.6F;
    const Plane away = distanceTo(Side::covered, covered);
    EXPECT_EQ(away.at(1, 2), 0);
    EXPECT_NEAR(away.at(4, 6), std::sqrt(20.0), 1e-5);
    EXPECT_NEAR(away.at(7, 7), std::sqrt(2.0), 1e-5);
    EXPECT_EQ(distanceTo(Side::clear, covered).at(1, 2), 1);
    EXPECT_GT(distanceTo(Side::covered, Plane(9)).at(4, 4), 1000);
}

Chart islandChart() {
    Chart chart;
    chart.outline = parseOutline(island, "island").value();
    chart.land = Colour::rgb(0x28, 0x38, 0x28);
    chart.highland = Colour::rgb(0x40, 0x40, 0x30);
    chart.water = Colour::rgb(0x0C, 0x24, 0x38);
    chart.shallows = Colour::rgb(0x30, 0x60, 0x70);
    chart.shelf = 1;
    chart.rings = 6;
    return chart;
}

/// Means of the colours around a place in cells.
Colour colourAt(const Bitmap& picture, double x, double y, int cellSize) {
    unsigned red = 0;
    unsigned green = 0;
    unsigned blue = 0;
    const Point middle{static_cast<int>(x * cellSize), static_cast<int>(y * cellSize)};
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            const Colour colour = toColour(picture.at(middle.x + dx, middle.y + dy));
            red += colour.red();
            green += colour.green();
            blue += colour.blue();
        }
    }
    return Colour::rgb(red / 9, green / 9, blue / 9);
}

TEST(Chart, LandLakesRiversAndMountainsLieWhereTheOutlineHasThem) {
    for (const RadarLayout& layout : {smallRadarLayout, largeRadarLayout}) {
        SCOPED_TRACE(layout.windowWidth);
        Chart chart = islandChart();
        const Bitmap picture = paintedChart(chart, layout);
        EXPECT_EQ(picture.size(), scopeSquare(layout).size());
        const auto at = [&](double x, double y) { return colourAt(picture, x, y, layout.cellSize); };
        const auto isWater = [](Colour colour) { return colour.blue() > colour.green() + 4; };
        EXPECT_TRUE(isWater(at(8, 24)));
        EXPECT_TRUE(isWater(at(24.3, 24.3))) << "the lake";
        EXPECT_FALSE(isWater(at(16, 32)));
        EXPECT_GT(at(11.5, 30).blue(), at(8.2, 30).blue() + 10) << "shallow at the shore";
        EXPECT_GT(at(22, 16).blue(), at(22, 14.6).blue() + 15) << "the river";
        // Light comes from the top left.
        chart.ridges.push_back({.height = 1, .width = 3, .crest = {{32, 32}}});
        const Bitmap raised = paintedChart(chart, layout);
        EXPECT_GT(apt::luminanceOf(colourAt(raised, 31, 31, layout.cellSize)),
                  1.3 * apt::luminanceOf(colourAt(raised, 33.3, 33.3, layout.cellSize)));
        EXPECT_EQ(paintedChart(chart, layout), raised) << "painted twice";
    }
}

constexpr std::string_view drawnPicture = R"(
[grid]
latitude = 47
longitude = 9
nm_per_cell = 4

[picture]
outline = "island.outline"
land = "#26372b"
highland = "#41433a"
water = "#0c2231"
shallows = "#2c5866"
unevenness = 0.5
shelf = 3
rings = 20
snow = 0.8

[[picture.ridge]]
height = 1
width = 8
crest = [[47, 9], [46.5, 9.5]]

[[picture.town]]
latitude = 46.5
longitude = 8.5
radius = 5
)";

/// A source with its picture drawn from the island, one text of it exchanged.
void writeDrawn(const TempFolder& folder, std::string_view from = {}, std::string_view to = {}) {
    writeText(folder / "island.outline", std::string(island));
    std::string picture(drawnPicture);
    picture.replace(picture.find(from), from.size(), to);
    writeSource(folder / "drawn.toml", picture);
}

TEST(DrawnPicture, TravelsInTheFileAtItsSize) {
    const TempFolder folder;
    writeDrawn(folder);
    EXPECT_EQ(checked(folder / "drawn.toml", apt::success), "");
    for (const int width : {800, 1024}) {
        EXPECT_EQ(built(folder / "drawn.toml", folder / "drawn.apt", apt::success, width), "");
        EXPECT_EQ(checked(folder / "drawn.apt", apt::success), "");
        printedBy(apt::success, [&] { return apt::show(folder / "drawn.apt", folder / "out.jpg"); });
        Image image;
        ASSERT_EQ(ImageLoadFile(image, folder / "out.jpg", ImageFormat::jpeg), ImageError::none);
        EXPECT_EQ(image.width, static_cast<std::uint32_t>(radarLayoutFor(width).scopeSize));
    }
    expectSays(built(folder / "drawn.toml", folder / "island.outline", apt::faulty), "it is the same file");
}

TEST(DrawnPicture, ItsFaultsAreNamedWithTheirLines) {
    constexpr std::array<std::array<const char*, 3>, 12> changes{{
        {"[grid]\nlatitude = 47\nlongitude = 9\nnm_per_cell = 4\n", "",
         "a picture from an outline needs a [grid]"},
        {"island.outline", "../island.outline", "picture: 'outline' must lie in the source's folder"},
        {"island.outline", "none.outline", "none.outline"},
        {"snow = 0.8", "snow = 8", "picture: 'snow' must be a number from 0 to 1"},
        {"snow = 0.8", "800 = \"map.jpg\"", "picture: unknown key '800'"},
        {"land = \"#26372b\"", "land = \"green\"", "picture: 'land' must be a colour"},
        {"width = 8", "width = 0", "ridge 1: 'width' must be a number from 0.1"},
        {"[[47, 9], [46.5, 9.5]]", "[]", "ridge 1: 'crest' must be 1 to 100 pairs"},
        {"[46.5, 9.5]", "[96.5, 9.5]", "ridge 1: 'crest' must be 1 to 100 pairs"},
        {"[46.5, 9.5]", "46.5", "ridge 1: 'crest' must be 1 to 100 pairs"},
        {"[[picture.town]]", "[picture.town]", "picture: 'town' must be one or more [[town]]"},
        {"radius = 5", "size = 5", "town 1: 'radius' is missing"},
    }};
    const TempFolder folder;
    for (const auto& [from, to, said] : changes) {
        writeDrawn(folder, from, to);
        expectSays(checked(folder / "drawn.toml", apt::faulty), said);
        expectSays(built(folder / "drawn.toml", folder / "x.apt", apt::faulty), said);
    }
    writeDrawn(folder);
    writeText(folder / "island.outline", "land 1,1\n");
    expectSays(checked(folder / "drawn.toml", apt::faulty), "island.outline:1: the line before has too few");
}

TEST(DrawnPicture, WhatCannotBeSeenOnItIsTold) {
    const TempFolder folder;
    writeDrawn(folder, "#0c2231", "#8090a0");
    const std::string said = checked(folder / "drawn.toml", apt::faulty);
    expectSays(said, ":7: the route colour is hard to see on the picture: its contrast is ");
    expectSays(said, "the circle of 'NNN' is hard to see on the picture: its contrast is 1.");
    expectSays(said, "the label of 'NNN' is hard to see");
}

TEST(ColourSight, GreenAndYellowAreOneToAnEyeWithoutRed) {
    using namespace apt;
    const Colour green = Colour::rgb(0x5C, 0xFF, 0x94);
    const Colour yellow = Colour::rgb(0xFF, 0xF2, 0x7A);
    EXPECT_GT(distanceSeen(green, yellow, Sight::full), 50);
    EXPECT_LT(distanceSeen(green, yellow, Sight::withoutRed), 20);
    EXPECT_LT(distanceSeen(green, yellow, Sight::withoutGreen), 30);
    const Colour white = Colour::rgb(255, 255, 255);
    EXPECT_NEAR(distanceSeen(white, Colour{}, Sight::withoutRed), 100, 0.5);
    EXPECT_NEAR(contrast(luminanceOf(white), luminanceOf(Colour{})), 21, 0.01);
}

TEST(ColourSight, TheClearColoursAreToldApartByAllEyes) {
    using namespace apt;
    constexpr double atAGlance = 20;
    constexpr double readable = 3;
    const SignalColours& colours = clearSignals;
    const auto expectApart = [&](const std::vector<Colour>& together) {
        for (const Colour a : together) {
            EXPECT_GT(contrast(luminanceOf(a), luminanceOf(Colour::rgb(64, 8, 0))), readable) << a.value;
            for (const Colour b : together) {
                for (const Sight sight :
                     {Sight::full, Sight::withoutRed, Sight::withoutGreen, Sight::withoutBlue}) {
                    EXPECT_TRUE(a == b || distanceSeen(a, b, sight) >= atAGlance)
                        << std::hex << a.value << " and " << b.value << ", sight " << static_cast<int>(sight)
                        << ": " << distanceSeen(a, b, sight);
                }
            }
        }
    };
    expectApart({*colours.flight, *colours.selected, colours.nearMiss, colours.success, colours.announced});
    expectApart({colours.nearMissRing, colours.successRing, colours.failureRing, colours.conflictRing});
    expectApart({colours.successLine, colours.troubleLine, colours.emergencyLine, colours.informationLine});
}

} // namespace
} // namespace ventrel
