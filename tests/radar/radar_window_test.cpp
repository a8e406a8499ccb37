// The radar's window: clicks, what the clock makes due, and the rings of a collision.

#include "radar/radar_window.h"

#include <gtest/gtest.h>

#include "radar_stage.h"

namespace ventrel {
namespace {

/// The flight at a radar pixel of the small scope, or -1.
int hitAt(const RadarStage& stage, Point p) {
    const auto hit = flightAt(stage.radar.layout, stage.game.flights, p);
    return hit ? hit->flight.number() : -1;
}

TEST(HitTest, AFlightIsHitInItsBoxOfEighteenPixels) {
    RadarStage stage;
    stage.flyAt({20, 20});
    const Point at{220, 220};
    for (const Point near : {Point{13, 0}, {-4, 0}, {0, -10}, {0, 7}}) {
        EXPECT_EQ(hitAt(stage, at + near), 0);
    }
    for (const Point beside : {Point{14, 0}, {-5, 0}, {0, -11}, {0, 8}}) {
        EXPECT_EQ(hitAt(stage, at + beside), -1);
    }
}

TEST(HitTest, TheLowestNumberOfTheListedFlightsWins) {
    RadarStage stage;
    stage.flyAt({20, 20}).inPlay = false;
    stage.flyAt({10, 20});
    stage.flyAt({21, 20}).groundState = GroundState::waiting;
    stage.flyAt({20, 20});
    Flight& announced = stage.flyAt({30, 20});
    announced.activatedAt = 0_s;
    announced.announced = true;
    stage.flyAt({40, 20}).activatedAt = 0_s;
    const auto hit = flightAt(stage.radar.layout, stage.game.flights, {229, 221});
    ASSERT_TRUE(hit);
    EXPECT_EQ(hit->flight, FlightIndex{2}) << "also where it is not drawn";
    EXPECT_EQ(hit->listPlace, 2) << "the one out of play has no place";
    EXPECT_EQ(hitAt(stage, {330, 220}), 4);
    EXPECT_EQ(hitAt(stage, {440, 220}), -1);
}

TEST(RadarClickTest, EitherButtonSelectsAndTheRightOneOpensTheMenu) {
    RadarStage stage;
    stage.flyAt({20, 20});
    const Point onFlight = stage.radar.layout.corner + Point{222, 218};
    const Point beside = stage.radar.layout.corner + Point{300, 218};
    stage.frame();
    stage.take();
    stage.touched = true; // a press on the scope frees the selection
    stage.script.click(onFlight).then([&] { EXPECT_EQ(stage.take(), (Lines{"reset", "select 0 place 1"})); });
    stage.script.click(onFlight, MouseButton::right).then([&] {
        EXPECT_EQ(stage.take(), (Lines{"reset", "menu 238,279"}));
    });
    stage.script.click(beside, MouseButton::right).click(beside).then([&] {
        EXPECT_EQ(stage.take(), (Lines{"reset", "reset"}));
        stage.game.flight(FlightIndex{0}).selected = false;
        stage.game.phase = Phase::idle;
    });
    stage.script.click(onFlight).click(onFlight, MouseButton::right).then([&] {
        EXPECT_EQ(stage.take(), Lines{});
    });
    stage.play();
    EXPECT_EQ(stage.backend.cursor(), &stage.hand);
    stage.touched = true;
    EXPECT_FALSE(RadarSelectAt(stage.radar, {220, 220})) << "nobody clicked: the panel keeps its flight";
}

TEST(RadarTickTest, FramesAndDotsAreDueEveryFiveSecondsAndTheScoreEveryQuarterOfAnHour) {
    RadarStage stage;
    stage.frame();
    stage.take();
    const auto tickAt = [&](ClockSeconds now) {
        stage.clock = now;
        RadarTick(stage.radar);
        stage.main.update();
        return stage.take();
    };
    EXPECT_EQ(tickAt(899_s), Lines{});
    EXPECT_EQ(tickAt(900_s), (Lines{"blips", "report", "frame"}));
    EXPECT_EQ(tickAt(900_s), Lines{}) << "once for each new value";
    EXPECT_EQ(tickAt(905_s), (Lines{"blips", "frame"}));
    EXPECT_EQ(tickAt(1800_s), (Lines{"blips", "report", "frame"}));
    RadarHide(stage.radar);
    EXPECT_EQ(tickAt(2700_s), Lines{}) << "a hidden radar rests";
}

TEST(CollisionTest, RingsSpreadOverTheScopeForEightSeconds) {
    constexpr Colour ringRed = Colour::rgb(255, 0, 0);
    RadarStage stage;
    stage.flyAt({24, 24});
    stage.frame();
    stage.game.phase = Phase::idle;
    const Millis start = stage.backend.now();
    EXPECT_TRUE(RadarCollisionRings(stage.radar, FlightIndex{0}));
    EXPECT_EQ(stage.backend.now() - start, 8000);
    const int row = 264 - 4; // through the rings' common middle
    const Bitmap shown = stage.shown();
    int rings = 0;
    for (int x = 28; x < 534; ++x) {
        const bool isEdge =
            toColour(shown.at(x, row)) == ringRed && toColour(shown.at(x + 1, row)) != ringRed;
        rings += isEdge ? 1 : 0;
    }
    EXPECT_NEAR(rings, 2 * 58, 4) << "one every four pixels to both sides, as far as the scope goes";
    EXPECT_EQ(stage.count(ringRed, {0, 0, 27, 539}), 0);
}

} // namespace
} // namespace ventrel
