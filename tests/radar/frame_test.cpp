// One frame of the radar: its layers and their order, the flights' tags, clouds, and what blinks.

#include "radar/radar_frame.h"

#include <gtest/gtest.h>

#include "golden.h"
#include "radar/clouds.h"
#include "radar_stage.h"

namespace ventrel {
namespace {

constexpr Colour cloudWhite = Colour::rgb(200, 200, 210);
constexpr Colour pauseWhite = Colour::rgb(255, 255, 255);

Cloud cloudAt(Point position, int heading = 90) {
    return {.appearAt = 10, .start = position, .position = position, .driftHeading = heading, .image = 3};
}

/// Every heading in every state of a flight.
void flyEverything(RadarStage& stage) {
    struct Look {
        Alert alert;
        bool selected;
    };
    constexpr std::array<Look, 5> looks{{{Alert::none, false},
                                         {Alert::none, true},
                                         {Alert::nearMiss, true},
                                         {Alert::success, false},
                                         {Alert::failure, false}}};
    for (int row = 0; row < static_cast<int>(looks.size()); ++row) {
        for (int heading = 0; heading < fullCircle; heading += headingStep) {
            Flight& flight = stage.flyAt({11 + heading / headingStep * 4, 15 + row * 4}, heading);
            flight.alert = looks[static_cast<std::size_t>(row)].alert;
            flight.selected = looks[static_cast<std::size_t>(row)].selected;
            flight.current().altitude = row + 6;
        }
    }
}

TEST(FrameTest, EveryHeadingAndStateOfAFlightLooksAsItDid) {
    RadarStage stage(largeRadarLayout);
    flyEverything(stage);
    stage.frame();
    expectGolden(crop(stage.radar.backBuffer, {140, 180, 588, 460}), "radar_flights");
}

TEST(FrameTest, ACrowdedPausedScopeLooksAsItDid) {
    RadarStage stage;
    stage.paused = true;
    Flight& steered = stage.flyAt({18, 22}, 90);
    steered.planLength = 4;
    for (int k = 0; k < steered.planLength; ++k) {
        steered.plan[static_cast<std::size_t>(k)] = {18 + 3 * k, 22 + k, 4, 90, normalSpeed, 0, 0};
    }
    stage.flyAt({27, 24}, 315).alert = Alert::nearMiss;
    stage.flyAt({24, 21}, 180).selected = true;
    stage.game.clouds.push_back(cloudAt({285, 235}));
    stage.frame();
    expectGolden(crop(stage.radar.backBuffer, {170, 215, 370, 325}), "radar_paused");
}

TEST(FrameTest, NothingIsDrawnOutsideTheScope) {
    for (const RadarLayout* layout : {&smallRadarLayout, &largeRadarLayout}) {
        RadarStage stage(*layout);
        for (const Cell cell :
             {Cell{0, 24}, {24, 0}, {48, 24}, {24, 48}, {-1, 20}, {7, 7}, {41, 41}, {50, 50}}) {
            Flight& flight = stage.flyAt(cell, 45);
            flight.alert = Alert::failure;
            flight.activatedAt = stage.clock;
            flight.current().directTarget = 0;
            flight.planLength = 2;
            flight.plan[1] = flight.plan[0];
            flight.plan[1].setCell({-5, 60});
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

TEST(FrameTest, CloudsHideAircraftAndScoreAndPauseLiesAboveThem) {
    RadarStage stage;
    stage.flyAt({10, 20});
    const Rect tags = blinkBox({110, 220});
    stage.frame();
    EXPECT_GT(stage.count(flightGreen, tags), 20);
    stage.game.clouds.push_back(cloudAt({100, 200}));
    stage.game.clouds.push_back(cloudAt({253, 500}));
    stage.game.clouds.push_back(cloudAt({250, 255}));
    stage.paused = true;
    stage.frame();
    EXPECT_EQ(stage.count(flightGreen, tags), 0);
    EXPECT_EQ(stage.count(Colour::rgb(0, 0xD0, 0), {256, 504, 289, 520}), 0) << "the score";
    EXPECT_GT(stage.count(pauseWhite, {250, 255, 290, 285}), 50);
    stage.options.stormTrak = 0;
    stage.frame();
    EXPECT_EQ(stage.count(cloudWhite, scopeSquare(stage.radar.layout)), 0);
}

TEST(FrameTest, ACloudShowsAfterItsTimeDriftsWithEveryFrameAndIsGoneForGood) {
    RadarStage stage;
    stage.game.clouds.push_back(cloudAt({-40, 270}));
    Cloud& cloud = stage.game.clouds.front();
    cloud.appearAt = stage.clock;
    stage.frame();
    EXPECT_EQ(cloud.position.x, -40) << "its second has only begun";
    ++stage.clock;
    stage.frame();
    EXPECT_EQ(cloud.position, (Point{-38, 270}));
    cloud.position.x = stage.radar.layout.scopeSize - 2;
    stage.frame();
    EXPECT_TRUE(cloud.visible);
    stage.frame();
    EXPECT_FALSE(cloud.visible);
    cloud.position.x = 200;
    stage.frame();
    EXPECT_EQ(stage.count(cloudWhite, scopeSquare(stage.radar.layout)), 0);
    EXPECT_EQ(cloud.position.x, 200);
}

TEST(FrameTest, ARouteGoesFromTheAircraftToItsLastQueuedStep) {
    RadarStage stage;
    Flight& flight = stage.flyAt({20, 20}, 90);
    flight.planLength = 3;
    flight.planIndex = 1;
    flight.plan = {PlanStep{18, 20}, PlanStep{20, 20}, PlanStep{24, 20}};
    const auto routePixels = [&] {
        stage.frame();
        return stage.count(routeBlue, {0, 220, 210, 221}) + stage.count(routeBlue, {245, 220, 539, 221});
    };
    EXPECT_EQ(routePixels(), 0) << "on no direct course";
    flight.current().directTarget = 2;
    EXPECT_EQ(routePixels(), 264 - 245);
    stage.options.showRoutes = 0;
    EXPECT_EQ(routePixels(), 0);
}

TEST(FrameTest, HandsTheLampsTheLevelOfItsFlightsAndTheTickerItsTurns) {
    RadarStage stage;
    const auto lampAfter = [&](std::initializer_list<Alert> alerts) {
        stage.game.flights.clear();
        for (const Alert alert : alerts) {
            stage.flyAt({20, 20}).alert = alert;
        }
        stage.scrollerTurns = 0;
        stage.frame();
        return stage.take();
    };
    EXPECT_EQ(lampAfter({}), Lines{"lamp 3"});
    EXPECT_EQ(stage.scrollerTurns, 1);
    EXPECT_EQ(lampAfter({Alert::nearMiss, Alert::failure}), Lines{"lamp 1"});
    EXPECT_EQ(stage.scrollerTurns, 3);
    EXPECT_EQ(lampAfter({Alert::failure, Alert::nearMiss, Alert::success}), Lines{"lamp 2"});
    EXPECT_EQ(lampAfter({Alert::none, Alert::success}), Lines{"lamp 0"});
}

TEST(BlinkTest, ANewFlightShowsOnEvenSecondsUntilItsFifteenth) {
    RadarStage stage;
    stage.flyAt({20, 20}, 90).activatedAt = 304;
    stage.flyAt({30, 20}, 90).activatedAt = 200;
    const Rect box = blinkBox({220, 220});
    stage.clock = 303;
    stage.frame();
    const int shown = stage.count(flightGreen, box);
    const int other = stage.count(flightGreen, blinkBox({330, 220}));
    EXPECT_GT(shown, 20);
    for (stage.clock = 304; stage.clock <= 322; ++stage.clock) {
        RadarTick(stage.radar);
        const bool isFrame = stage.clock % 5 == 0;
        const bool isHidden = stage.clock < 319 && stage.clock % 2 != 0 && !isFrame;
        EXPECT_EQ(stage.count(flightGreen, box), isHidden ? 0 : shown) << stage.clock;
        EXPECT_EQ(stage.count(flightGreen, blinkBox({330, 220})), other) << "it is long in the air";
    }
}

} // namespace
} // namespace ventrel
