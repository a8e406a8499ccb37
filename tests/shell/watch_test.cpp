// A shift that the automatic controller plays in the window, practice, and the skip to the next event.

#include <array>

#include "console/steering_bar_layout.h"
#include "controller/controller.h"
#include "golden.h"
#include "shell/plain_program.h"
#include "shell/quiet_shift.h"
#include "shell/steered_play.h"

namespace ventrel {
namespace {

class WatchTest : public ::testing::Test {
protected:
    PlainProgram program;
    GameStage stage{800, "[Game]\nName=mary\nSkill=3\n", program.folder()};

    void press(Key key, Modifiers modifiers = {}, int times = 1) {
        stage.todo([key, modifiers, times](Script& script) {
            for (int i = 0; i < times; ++i) {
                script.key(key, modifiers).wait(1);
            }
        });
    }
    void choose(Key menu, std::string_view letter) {
        stage.todo([=](Script& script) { script.key(menu, withAlt).type(letter).wait(1); });
    }
    void watch(std::uint32_t seed = 7) {
        stage.look([this, seed] { stage.game().random.state = seed; });
        choose(Key::h, "w");
        press(Key::enter);
        stage.look([this] { ASSERT_TRUE(isSteered(stage.shell())); });
    }
    void expectTitle(std::string_view title) {
        stage.look([this, title] { EXPECT_EQ(stage.backend.title(), title); });
    }
    bool isOver() { return !isSteered(stage.shell()); }
    void waitForTheEnd() {
        stage.todo([this](Script& script) {
            if (!isOver()) {
                script.wait(1000);
                waitForTheEnd();
            }
        });
    }
    Millis secondLasts() { return secondLength(stage.shell().topBar.clock.pace); }
};

/// The score that the controller reaches in a game without a window.
int scoreAlone(Game game) {
    const Controller controller{game};
    while (step(game)) {
        for (const ControllerOrder& next : controller.decide(game)) {
            executeOrder(game, next.flight, next.order);
        }
    }
    return game.score;
}

TEST_F(WatchTest, AtAnyPaceTheSameShiftIsPlayedAsWithoutAWindow) {
    auto alone = std::make_shared<int>();
    watch();
    stage.look([this, alone] { *alone = scoreAlone(stage.game()); });
    stage.wait(30000);
    press(Key::space, {}, 40);
    press(Key::right, withControl, 9);
    waitForTheEnd();
    stage.look([this, alone] {
        EXPECT_GT(*alone, 1000);
        EXPECT_EQ(stage.game().score, *alone);
        EXPECT_TRUE(stage.isDialogOpen()) << "the score is told";
        EXPECT_EQ(stage.game().phase, Phase::idle);
    });
    press(Key::enter);
    stage.look([this] {
        EXPECT_FALSE(stage.isDialogOpen()) << "there is no table";
        EXPECT_EQ(secondLasts(), clockSecondLength);
    });
    expectTitle("Ventrel");
    stage.play();
}

TEST_F(WatchTest, EachOrderIsSeenOnThePanelAndExecGoesDown) {
    watch();
    auto orders = std::make_shared<int>();
    auto edges = std::make_shared<std::array<Pixel, 2>>(); // of EXEC as it stands, and as it is pressed
    for (int moment = 0; moment < 3000; ++moment) {
        stage.look([this, orders, edges] {
            const SteeredPlay& play = stage.shell().steered;
            const ControlPanelState& panel = stage.shell().panel.state;
            const Point edge = stage.shell().console().execButton.topLeft();
            (*edges)[play.execDown ? 1 : 0] = stage.desktop().picture().at(edge.x, edge.y);
            if (play.shown && play.shownParts == 3) {
                ++*orders;
                EXPECT_EQ(panel.flight, play.shown->flight);
                EXPECT_TRUE(stage.game().flight(play.shown->flight).selected);
                EXPECT_EQ(panel.pending.altitude, play.shown->order.altitude);
                EXPECT_EQ(panel.pending.directTarget, play.shown->order.directTarget);
            }
        });
        stage.wait(20);
    }
    stage.look([orders, edges] {
        EXPECT_GT(*orders, 10);
        EXPECT_NE((*edges)[0], (*edges)[1]);
    });
    stage.play();
}

TEST_F(WatchTest, WhoSetsThePanelIsAskedToTakeOverAndPlaysOnAsPractice) {
    watch();
    expectTitle("Ventrel (Watching)");
    stage.look([this] {
        expectGolden(pictureOf(stage.backend.screen(), stage.shell().steeringBar.window.bounds()),
                     "steering_bar");
    });
    stage.todo([this](Script& script) { script.click(stage.onPanel({130, 20})).wait(1); });
    expectTitle("Ventrel (Watching, Paused)");
    press(Key::escape);
    stage.look([this] { EXPECT_TRUE(isSteered(stage.shell())) << "the player did not mean it"; });
    press(Key::enter);
    press(Key::enter);
    expectTitle("Ventrel (Practice)");
    stage.look([this] {
        EXPECT_FALSE(isSteered(stage.shell()));
        EXPECT_EQ(secondLasts(), clockSecondLength);
        stage.shell().game.score = 60000;
        for (Flight& flight : stage.game().flights) {
            flight.inPlay = false;
        }
    });
    stage.skip();
    stage.wait(20000);
    stage.look([this] {
        EXPECT_EQ(stage.game().phase, Phase::idle) << "its line has been read";
        EXPECT_FALSE(stage.isDialogOpen()) << "neither film nor table";
    });
    expectTitle("Ventrel");
    stage.startNewGame();
    expectTitle("Ventrel");
    stage.play();
}

TEST_F(WatchTest, TheBarSetsThePacePausesAndStops) {
    const auto click = [this](Rect SteeringBarLayout::* button) {
        stage.todo([button](Script& script) {
            const Point corner = smallSteeringBar.whole.topLeft() + (smallSteeringBar.*button).topLeft();
            script.click(corner + Point{5, 5}).wait(1);
        });
    };
    watch();
    click(&SteeringBarLayout::faster);
    click(&SteeringBarLayout::faster);
    click(&SteeringBarLayout::slower);
    stage.look([this] { EXPECT_EQ(secondLasts(), clockSecondLength / 4); });
    click(&SteeringBarLayout::pause);
    expectTitle("Ventrel (Watching, Paused)");
    click(&SteeringBarLayout::pause);
    expectTitle("Ventrel (Watching)");
    click(&SteeringBarLayout::stop);
    stage.look([this] {
        EXPECT_FALSE(isSteered(stage.shell())) << "nobody is asked";
        EXPECT_FALSE(stage.shell().steeringBar.window.exists());
        EXPECT_FALSE(stage.game().isRunning());
    });
    stage.play();
}

TEST_F(WatchTest, ItsDialogLeavesTheShiftAloneWhenItIsCancelled) {
    choose(Key::h, "w");
    stage.look([this] {
        expectGolden(pictureOf(stage.backend.screen(), stage.desktop().activeWindow().bounds()),
                     "dialog_watch_a_shift");
    });
    press(Key::escape);
    stage.look([this] { EXPECT_FALSE(stage.game().isRunning()); });
    stage.play();
}

TEST_F(WatchTest, HalfSpeedMakesPracticeOfAShiftOnlyWhenThePlayerAgrees) {
    stage.startNewGame();
    choose(Key::f, "h");
    press(Key::escape);
    stage.look([this] {
        EXPECT_EQ(secondLasts(), clockSecondLength) << "refused";
        EXPECT_EQ(stage.shell().shiftKind, ShiftKind::scored);
    });
    choose(Key::f, "h");
    press(Key::enter);
    expectTitle("Ventrel (Practice)");
    stage.look([this] { EXPECT_EQ(secondLasts(), 2 * clockSecondLength); });
    choose(Key::f, "h");
    stage.look([this] { EXPECT_EQ(secondLasts(), clockSecondLength); });
    expectTitle("Ventrel (Practice)");
    choose(Key::f, "h");
    choose(Key::f, "e");
    press(Key::enter);
    stage.startNewGame();
    expectTitle("Ventrel (Practice)");
    stage.look([this] { EXPECT_EQ(secondLasts(), 2 * clockSecondLength) << "it is still on"; });
    stage.play();
}

TEST_F(WatchTest, ShiftAndSpaceGoesOnToWhatHappensNext) {
    const auto expectClock = [this](ClockSeconds clock, const char* what) {
        press(Key::space, withShift);
        stage.wait(100);
        stage.look([this, clock, what] { EXPECT_EQ(stage.game().clock, clock) << what; });
    };
    QuietShift shift(stage);
    shift.enter(FlightIndex{0}, {.cell = {10, 20}, .altitude = 5, .heading = 90});
    expectClock(60_s, "a flight enters");
    stage.look([this] { // to climb by 3,000 ft, with each move
        Plan& plan = stage.game().flight(FlightIndex{0}).plan;
        for (int altitude = 6; altitude <= 8; ++altitude) {
            plan.extend();
            plan.last().altitude = altitude;
        }
    });
    expectClock(150_s, "it has climbed");
    expectClock(450_s, "nothing happens for five minutes");
    press(Key::space, withShift);
    press(Key::pause);
    stage.wait(1000);
    stage.look([this] { EXPECT_LT(stage.game().clock, 600_s) << "a pause stops it"; });
    stage.play();
}

} // namespace
} // namespace ventrel
