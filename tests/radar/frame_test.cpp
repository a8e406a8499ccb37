// One frame of the radar: its layers and their order, the flights' tags, clouds, and what blinks.

#include "radar/radar_frame.h"

#include <gtest/gtest.h>

#include "golden.h"
#include "radar/clouds.h"
#include "radar_stage.h"

namespace ventrel {
namespace {

constexpr Colour cloudWhite = Colour::rgb(200, 200, 210);

Cloud cloudAt(Point position, int heading = 90) {
    return {.appearAt = 10_s,
            .start = position,
            .position = position,
            .size = cloudSize,
            .driftHeading = heading,
            .image = 3};
}

TEST(FrameTest, EveryHeadingAndStateOfAFlightLooksAsItDid) {
    struct Look {
        Alert alert;
        bool selected;
    };
    RadarStage stage(largeRadarLayout);
    stage.options.mapDetails = 0; // on black
    stage.buildMap();
    int row = 0;
    for (const Look& look : {Look{Alert::none, false}, Look{Alert::none, true}, Look{Alert::nearMiss, true},
                             Look{Alert::success, false}, Look{Alert::failure, false}}) {
        for (int heading = 0; heading < fullCircle; heading += headingStep) {
            Flight& flight = stage.flyAt({11 + heading / headingStep * 4, 15 + row * 4}, heading);
            flight.alert = look.alert;
            flight.selected = look.selected;
            flight.current().altitude = row + 6;
        }
        ++row;
    }
    stage.frame();
    expectGolden(crop(stage.radar.backBuffer, {140, 180, 588, 460}), "radar_flights");
}

TEST(FrameTest, TheTagOfAChosenFlightStillTellsOfItsAlert) {
    const FlightColours colours{Colour::rgb(1, 0, 0), Colour::rgb(2, 0, 0), {}, usualSignals};
    Flight flight;
    for (const auto& [alert, chosen, usual] :
         {std::tuple{Alert::none, colours.selected, colours.flight},
          {Alert::nearMiss, usualSignals.nearMiss, usualSignals.nearMiss},
          {Alert::success, usualSignals.success, usualSignals.success},
          {Alert::failure, colours.selected, colours.flight}}) {
        flight.alert = alert;
        flight.selected = true;
        EXPECT_EQ(tagColour(flight, colours), chosen);
        flight.selected = false;
        EXPECT_EQ(tagColour(flight, colours), usual);
    }
}

TEST(FrameTest, ACrowdedPausedScopeLooksAsItDid) {
    RadarStage stage;
    stage.options.mapDetails = 0; // on black
    stage.buildMap();
    stage.paused = true;
    Flight& steered = stage.flyAt({18, 22}, 90);
    const auto along = [](int k) {
        return PlanStep{
            .cell = {18 + 3 * k, 22 + k}, .altitude = 4, .heading = 90, .directTarget = PointIndex{0}};
    };
    steered.plan = {along(0), along(1), along(2), along(3)};
    stage.flyAt({27, 24}, 315).alert = Alert::nearMiss;
    stage.flyAt({24, 21}, 180).selected = true;
    stage.game.clouds.push_back(cloudAt({285, 235}));
    stage.flyAt({23, 45}, 90);
    stage.game.clouds.push_back(cloudAt({230, 488})); // over an aircraft and a part of the score
    stage.frame();
    expectGolden(crop(stage.radar.backBuffer, {170, 215, 370, 525}), "radar_paused");
}

TEST(FrameTest, NothingIsDrawnOutsideTheScope) {
    for (const RadarLayout* layout : {&smallRadarLayout, &largeRadarLayout}) {
        RadarStage stage(*layout);
        for (const Cell cell :
             {Cell{0, 24}, {24, 0}, {48, 24}, {24, 48}, {-1, 20}, {7, 7}, {41, 41}, {50, 50}}) {
            Flight& flight = stage.flyAt(cell, 45);
            flight.alert = Alert::failure;
            flight.activatedAt = stage.clock;
            flight.current().directTarget = PointIndex{0};
            flight.plan = {flight.plan[0], flight.plan[0]};
            flight.plan[1].cell = {-5, 60};
        }
        for (const Point corner : {Point{-10, 100}, {layout->scopeSize - 20, 300}, {0, 0}}) {
            stage.game.clouds.push_back(cloudAt(corner));
        }
        stage.options.showGrid = 1;
        stage.options.radarSweep = 1;
        stage.buildMap();
        stage.frame();
        blinkNewFlights(stage.radar, stage.clock);
        const Bitmap shown = stage.shown();
        const Region outside = Region(scopeSquare(*layout)).minus(stage.radar.scope);
        for (const auto& run : outside.runs()) {
            for (int x = run.left; x < run.right; ++x) {
                ASSERT_EQ(toColour(shown.at(x, run.y)), frameColour) << x << ", " << run.y;
            }
        }
    }
}

TEST(FrameTest, ACloudShowsAfterItsTimeDriftsWithEveryFrameAndIsGoneForGood) {
    RadarStage stage;
    stage.game.clouds.push_back(cloudAt({200, 270}));
    Cloud& cloud = stage.game.clouds.front();
    const auto shown = [&] { return stage.count(cloudWhite, scopeSquare(stage.radar.layout)); };
    cloud.appearAt = stage.clock;
    stage.frame();
    EXPECT_EQ(shown(), 0) << "its second has only begun";
    stage.clock += 1_s;
    stage.frame();
    EXPECT_EQ(cloud.position, (Point{200, 270})) << "first it shows where it starts";
    EXPECT_GT(shown(), 0);
    stage.frame();
    EXPECT_EQ(cloud.position, (Point{202, 270}));
    stage.game.cloudCover = false;
    stage.frame();
    EXPECT_EQ(cloud.position.x, 202) << "without a cover nothing drifts";
    stage.game.cloudCover = true;
    cloud.position.x = stage.radar.layout.scopeSize - 2;
    stage.frame();
    EXPECT_TRUE(cloud.visible);
    stage.frame();
    EXPECT_FALSE(cloud.visible);
    cloud.position.x = 200;
    EXPECT_EQ((stage.frame(), shown()), 0);
    EXPECT_EQ(cloud.position.x, 200);
}

TEST(FrameTest, ARouteGoesFromTheAircraftToItsLastQueuedStep) {
    RadarStage stage;
    Flight& flight = stage.flyAt({20, 20}, 90);
    flight.planIndex = 1;
    flight.plan = {{.cell = {18, 20}}, {.cell = {20, 20}}, {.cell = {24, 20}}};
    const auto routePixels = [&] {
        stage.frame();
        return stage.count(routeBlue, {0, 220, 210, 221}) + stage.count(routeBlue, {245, 220, 539, 221});
    };
    EXPECT_EQ(routePixels(), 0) << "on no direct course";
    flight.current().directTarget = PointIndex{2};
    EXPECT_EQ(routePixels(), 264 - 245);
    stage.options.showRoutes = 0;
    EXPECT_EQ(routePixels(), 0);
}

TEST(BlinkTest, ANewFlightShowsOnEvenSecondsUntilItsFifteenth) {
    RadarStage stage;
    Flight& fresh = stage.flyAt({20, 20}, 90);
    fresh.activatedAt = 304_s;
    fresh.callsign = std::string_view{"NW888H"};
    stage.flyAt({30, 20}, 90).activatedAt = 200_s;
    constexpr Rect box{220 - 8, 220 - 16, 220 + 32, 220 + 16};
    stage.clock = 303_s;
    stage.frame();
    const int shown = stage.count(flightGreen, box);
    const int other = stage.count(flightGreen, blinkBox({330, 220}));
    EXPECT_GT(shown, 20);
    for (stage.clock = 304_s; stage.clock <= 322_s; stage.clock += 1_s) {
        RadarTick(stage.radar);
        const bool isFrame = stage.clock % 5_s == 0_s;
        const bool isHidden = stage.clock < 319_s && stage.clock % 2_s != 0_s && !isFrame;
        EXPECT_EQ(stage.count(flightGreen, box), isHidden ? 0 : shown) << stage.clock.count();
        EXPECT_EQ(stage.count(flightGreen, blinkBox({330, 220})), other) << "it is long in the air";
    }
}

} // namespace
} // namespace ventrel
