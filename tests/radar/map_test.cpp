// The map: where everything of a map point stands, and what the display options leave of it.

#include "radar/map_drawing.h"

#include <gtest/gtest.h>

#include <array>

#include "golden.h"
#include "radar_stage.h"

namespace ventrel {
namespace {

constexpr Colour labelWhite = Colour::rgb(230, 230, 230);
constexpr Colour symbolCyan = Colour::rgb(0, 200, 220);
constexpr Colour runwayYellow = Colour::rgb(255, 255, 90);
constexpr Colour gridYellow = Colour::rgb(0xD0, 0xD0, 0);
constexpr Colour pictureGreen = Colour::rgb(10, 60, 20);

Vor point(Point pixel, int labelPlace) {
    Vor vor;
    vor.ident = "KMG";
    vor.pixel = pixel;
    vor.labelPlace = labelPlace;
    vor.labelColour = labelWhite;
    vor.symbolColour = symbolCyan;
    vor.runwayColour = runwayYellow;
    return vor;
}

Vor airport(Point pixel, int runwayHeading, int labelPlace = 0) {
    Vor vor = point(pixel, labelPlace);
    vor.isAirport = true;
    vor.runwayHeading = runwayHeading;
    return vor;
}

class MapTest : public ::testing::Test {
protected:
    const Font& labels(const RadarLayout& layout) {
        return fonts_.font({Face::smallFonts, -layout.labelHeight, false});
    }

    /// An airport of every heading with its label at two of its places, and a fix of each place.
    Bitmap sheet(const RadarLayout& layout) {
        constexpr int pitch = 110;
        // By runway axis: the places at which the label has to give way to a slanting runway come up.
        constexpr std::array<std::array<int, 2>, 4> places{{{0, 2}, {1, 2}, {1, 3}, {0, 3}}};
        Bitmap picture({4 * pitch, 5 * pitch});
        Canvas canvas(picture);
        const auto middle = [](int i) { return Point{i % 4 * pitch + pitch / 2, i / 4 * pitch + pitch / 2}; };
        for (int i = 0; i < 16; ++i) {
            const int labelPlace = places[static_cast<std::size_t>(i % 4)][static_cast<std::size_t>(i / 8)];
            DrawAirport(canvas, layout, airport(middle(i), i % 8 * headingStep, labelPlace), labels(layout));
        }
        for (int place = 0; place < 4; ++place) {
            DrawVor(canvas, layout, point(middle(16 + place), place), labels(layout));
        }
        return picture;
    }

private:
    FontSet fonts_{std::string(PROGRAM_FOLDER) + "/fonts"};
};

TEST_F(MapTest, MapPointsLookAsTheyDid) {
    expectGolden(sheet(smallRadarLayout), "radar_map_800");
    expectGolden(sheet(largeRadarLayout), "radar_map_1024");
}

TEST_F(MapTest, TheOptionsDecideOnPictureAndGrid) {
    RadarStage stage;
    const auto isInside = [&](Point p) { return stage.radar.scope.contains(p); };
    const auto map = [&](Point p) { return toColour(stage.radar.map->at(p.x, p.y)); };
    const Point inside{270, 271};
    EXPECT_EQ(map(inside), frameColour) << "the glass, for an airport without a picture";
    Bitmap picture({539, 300});
    Canvas(picture).fill(picture.bounds(), pictureGreen);
    stage.radar.airportImage = std::move(picture);
    stage.buildMap();
    EXPECT_EQ(map(inside), pictureGreen);
    EXPECT_EQ(map({270, 400}), black) << "below a picture that ends before the scope does";
    stage.options.mapDetails = 0;
    stage.options.showGrid = 1;
    stage.buildMap();
    int dots = 0;
    for (int y = 0; y < 539; ++y) {
        for (int x = 0; x < 539; ++x) {
            const bool isDot = x % 11 == 0 && y % 11 == 0;
            const Colour wanted = !isInside({x, y}) ? frameColour : isDot ? gridYellow : black;
            ASSERT_EQ(map({x, y}), wanted) << x << ", " << y;
            dots += isDot && isInside({x, y}) ? 1 : 0;
        }
    }
    EXPECT_GT(dots, 1500);
}

} // namespace
} // namespace ventrel
