// Clock, small scope and alert lamps in the top bar.

#include "controls/top_bar.h"

#include <gtest/gtest.h>

#include "console/console_layout.h"
#include "console_stage.h"
#include "controls/top_bar_drawing.h"
#include "golden.h"

namespace ventrel {
namespace {

LampPictures plainLamps() {
    const auto lamp = [](unsigned red, unsigned green) {
        Bitmap picture({28, 28});
        Canvas(picture).fill(picture.bounds(), Colour::rgb(red, green, 0));
        return picture;
    };
    return {.dark = {lamp(0, 80), lamp(80, 80), lamp(80, 0)},
            .bright = {lamp(0, 255), lamp(255, 255), lamp(255, 0)}};
}

struct TopBarStage : ConsoleStage {
    explicit TopBarStage() { TopBarCreate(bar, main, console, plainLamps()); }

    TopBar bar{.sources = {desktop, game, fonts, hand, arrow}, .skip = [this] { ClockSkip(bar); }};

    /// How a lamp shows: in its middle, since its rim lies outside the circle.
    Colour lamp(std::size_t number) const { return toColour(picture(bar.lampWindows[number]).at(14, 14)); }
};

TEST(ClockTest, ShowsTheTimeWhileAGameRuns) {
    TopBarStage stage;
    const auto shows = [&](ClockSeconds now) {
        stage.game.clock = now;
        stage.bar.clockWindow.invalidate();
        return stage.picture(stage.bar.clockWindow);
    };
    const Bitmap later = shows(75_s);
    EXPECT_EQ(later.size(), (Size{51, 15}));
    EXPECT_NE(later, shows(76_s));
    expectGolden(shows(3605_s), "controls_clock");
    stage.game.phase = Phase::idle;
    EXPECT_EQ(shows(75_s), Bitmap({51, 15})) << "a black box";
}

TEST(ClockTest, APressSkipsToTheNextMoveOfTheFlights) {
    TopBarStage stage;
    const Point onClock = smallConsole.topBar.clock.topLeft() + Point{20, 7};
    stage.game.clock = 30_s;
    stage.bar.clock.sweepIndex = 70;
    stage.script.click(onClock).then([&] {
        EXPECT_EQ(stage.game.clock, 45_s);
        EXPECT_EQ(stage.bar.clock.sweepIndex, sweepStraightUp);
        EXPECT_EQ(stage.backend.cursor(), &stage.hand);
        stage.game.clock = 44_s;
    });
    stage.script.doubleClick(onClock).then([&] { EXPECT_EQ(stage.game.clock, 60_s); });
    stage.script.click(onClock, MouseButton::right).then([&] {
        EXPECT_EQ(stage.game.clock, 60_s);
        stage.game.phase = Phase::idle;
    });
    stage.script.click(onClock).moveTo(onClock + Point{1, 0}).then([&] {
        EXPECT_EQ(stage.game.clock, 60_s);
        EXPECT_EQ(stage.backend.cursor(), &stage.arrow);
    });
    stage.play();
}

TEST(ClockTest, IsPaintedAnewEveryFiveSecondsAndTheScopeWithEveryStep) {
    TopBarStage stage;
    stage.game.clock = 8_s;
    stage.bar.clock.lastClockTick = stage.backend.now();
    const Bitmap atEight = stage.picture(stage.bar.clockWindow);
    const Bitmap scope = stage.picture(stage.bar.scopeWindow);
    const auto tickAfter = [&](Millis pause) {
        stage.backend.wait(pause);
        return ClockTick(stage.bar);
    };
    const auto next = tickAfter(81);
    EXPECT_EQ(next, stage.backend.now() + 81) << "when the scope moves again";
    EXPECT_NE(stage.picture(stage.bar.scopeWindow), scope);
    tickAfter(320);
    EXPECT_EQ(stage.game.clock, 9_s);
    EXPECT_EQ(stage.picture(stage.bar.clockWindow), atEight);
    tickAfter(60'000);
    EXPECT_EQ(stage.game.clock, 10_s) << "a late tick makes up for nothing";
    EXPECT_NE(stage.picture(stage.bar.clockWindow), atEight);
    stage.bar.clock.sweepIndex = 119;
    tickAfter(81);
    EXPECT_EQ(stage.bar.clock.sweepIndex, 0) << "once around the border";
    tickAfter(300);
    ClockSkip(stage.bar);
    stage.game.lastStepTime = 15_s; // it has acted
    tickAfter(399);
    EXPECT_EQ(stage.game.clock, 15_s) << "a skip lets its second begin anew";
    tickAfter(2);
    EXPECT_EQ(stage.game.clock, 16_s);
    stage.game.phase = Phase::idle;
    EXPECT_EQ(tickAfter(1000), std::nullopt);
}

TEST(SmallScopeTest, ShowsADotForEachOfTheFirst32FlightsInTheAir) {
    TopBarStage stage;
    for (int i = 0; i < 35; ++i) {
        stage.fly().plan[0].cell = {i, 24};
    }
    stage.game.flight(FlightIndex{0}).groundState = GroundState::waiting;
    stage.game.flight(FlightIndex{2}).selected = true;
    stage.game.flight(FlightIndex{34}).plan[0].cell = {48, 48};
    ScopeUpdateBlips(stage.bar);
    ASSERT_EQ(stage.bar.blips.size(), 32U);
    EXPECT_EQ(stage.bar.blips[0], (Blip{{4 + 24 / 49, 4 + 24 * 24 / 49}, false}));
    EXPECT_EQ(stage.bar.blips[1], (Blip{{4 + 48 / 49, 15}, true}));
    EXPECT_EQ(stage.bar.blips[31].position, (Point{4 + 24 * 32 / 49, 15}))
        << "the 33rd and later are left out";
    const auto dots = [&](Colour colour) {
        const Bitmap scope = stage.picture(stage.bar.scopeWindow);
        return count(scope, colour, scope.bounds());
    };
    EXPECT_GT(dots(flightGreen), 0);
    stage.game.phase = Phase::lastLine;
    stage.bar.scopeWindow.invalidate();
    EXPECT_EQ(dots(flightGreen) + dots(selectedWhite), 0) << "without a game none is shown";
    stage.game.phase = Phase::running;
    stage.bar.scopeWindow.invalidate();
    EXPECT_GT(dots(selectedWhite), 0);
    ClockReset(stage.bar);
    EXPECT_EQ(dots(flightGreen) + dots(selectedWhite), 0);
    EXPECT_TRUE(stage.bar.blips.empty());
    EXPECT_EQ(stage.game.clock, 0_s);
}

TEST(SmallScopeTest, TheSweepRunsAroundTheBorderWithItsTrailBehind) {
    constexpr std::array<int, 6> positions{1, 15, 40, 70, 100, 119};
    Bitmap sheet({static_cast<int>(positions.size()) * 32, 30});
    TopBarStage stage;
    stage.bar.blips = {{{20, 10}, false}, {{10, 20}, true}, {{5, 5}, true}};
    for (std::size_t i = 0; i < positions.size(); ++i) {
        stage.bar.clock.sweepIndex = positions[i];
        stage.bar.scopeWindow.invalidate();
        Canvas(sheet).draw({static_cast<int>(i) * 32, 0}, stage.picture(stage.bar.scopeWindow));
    }
    expectGolden(sheet, "controls_scope");
}

TEST(LampTest, TheLitLampFlashesInsideItsRing) {
    TopBarStage stage;
    stage.game.litLamp = LampLevel::yellow;
    stage.bar.blink = {.isOn = true, .last = stage.backend.now()};
    LampsRepaint(stage.bar);
    EXPECT_EQ(stage.lamp(0), Colour::rgb(0, 80, 0));
    EXPECT_EQ(stage.lamp(1), Colour::rgb(255, 255, 0));
    EXPECT_EQ(stage.lamp(2), Colour::rgb(80, 0, 0));
    const Bitmap yellow = stage.picture(stage.bar.lampWindows[1]);
    for (const Point rim : {Point{0, 14}, {27, 14}, {14, 0}, {14, 27}, {3, 3}}) {
        EXPECT_EQ(toColour(yellow.at(rim.x, rim.y)), consoleGrey) << "the console shows around the glass";
    }
    for (const Point glass : {Point{1, 13}, {26, 13}, {13, 1}, {13, 26}}) {
        EXPECT_EQ(toColour(yellow.at(glass.x, glass.y)), Colour::rgb(255, 255, 0));
    }
    const auto tickAfter = [&](Millis pause) {
        stage.backend.wait(pause);
        LampsTick(stage.bar);
        return stage.lamp(1);
    };
    EXPECT_EQ(tickAfter(400), Colour::rgb(255, 255, 0));
    EXPECT_EQ(tickAfter(1), Colour::rgb(80, 80, 0));
    EXPECT_EQ(tickAfter(401), Colour::rgb(255, 255, 0));
    stage.game.phase = Phase::idle;
    EXPECT_EQ(LampsTick(stage.bar), std::nullopt) << "without a game nothing flashes";
    stage.game.phase = Phase::running;
    LampsReset(stage.bar);
    EXPECT_EQ(stage.lamp(1), Colour::rgb(80, 80, 0));
    EXPECT_EQ(LampsTick(stage.bar), std::nullopt);
}

} // namespace
} // namespace ventrel
