// What becomes of flights, and the ways in which a shift ends.

#include <algorithm>

#include "shell/plain_program.h"
#include "shell/quiet_shift.h"

namespace ventrel {
namespace {

class GameEndTest : public ::testing::Test {
protected:
    PlainProgram program;
    GameStage stage{1024, "[Game]\nName=mary\nSkill=1\n", program.folder()};

    /// The airport and the exit that come first in the table.
    const Vor& airport() { return *std::ranges::find(stage.game().vors(), true, &Vor::isAirport); }
    PointIndex indexOf(const Vor& vor) {
        return PointIndex{static_cast<int>(&vor - stage.game().vors().data())};
    }

    /// The line that the ticker shows or will show.
    bool isOnTicker(std::string_view part) {
        return std::ranges::any_of(stage.game().messages.slots, [part](const MessageSlot& slot) {
            return slot.inUse && slot.text.find(part) != std::string::npos;
        });
    }

    /// Two flights at 5K, one in (10, 10), the other there; on to their first move.
    void meet(Cell other) {
        QuietShift shift(stage);
        shift.enter(FlightIndex{0}, {.cell = {10, 10}, .altitude = 5, .heading = 90});
        shift.enter(FlightIndex{1}, {.cell = {30, 30}, .altitude = 5, .heading = 90});
        stage.skipTo(QuietShift::entryTime);
        stage.look([this, other] {
            stage.game().flight(FlightIndex{0}).plan[0].altitude = 5;
            stage.game().flight(FlightIndex{1}).plan[0] = {.cell = other, .altitude = 5, .heading = 90};
        });
        if (selectsFirst) {
            stage.selectByStrip(FlightIndex{0});
        }
        stage.skip();
        stage.skip();
    }
    bool selectsFirst = false; ///< the first of the two is on the panel when they meet

    /// And there will be nothing to celebrate.
    void finishAllBut(FlightIndex first) {
        stage.look([this, first] {
            stage.game().bonus = 0;
            for (const FlightIndex i : stage.game().flightPlaces()) {
                stage.game().flight(i).inPlay = stage.game().flight(i).inPlay && i < first;
            }
        });
    }
};

TEST_F(GameEndTest, ALandingIsAnnouncedScoredAndTakenOffTheStrips) {
    QuietShift shift(stage);
    stage.todo([&](Script&) {
        const Vor field = airport();
        const Cell before = stepCell(field.cell, turned(field.runwayHeading, 180));
        shift.enter(FlightIndex{0}, {.cell = before, .altitude = 1, .heading = field.runwayHeading});
        shift.enter(FlightIndex{1}, {.cell = {40, 40}, .altitude = 9, .heading = 0}); // somebody stays
        stage.look([this, field] {
            stage.game().flight(FlightIndex{0}).destination = indexOf(airport());
            stage.game().flight(FlightIndex{0}).destinationKind = DestinationKind::airport;
        });
        stage.skipTo(90_s);
        stage.look([this, field] {
            EXPECT_TRUE(isOnTicker("F0 is landing at " + field.ident));
            EXPECT_EQ(stage.game().litLamp, LampLevel::green);
        });
        stage.skipTo(120_s);
        stage.look([this] {
            EXPECT_EQ(stage.game().score, 150);
            EXPECT_FALSE(stage.game().flight(FlightIndex{0}).inPlay);
            EXPECT_EQ(StripsFlightSlot(stage.shell().strips, FlightIndex{0}), noSlot);
        });
    });
    stage.play();
}

TEST_F(GameEndTest, ALostFlightLightsTheYellowLampOnce) {
    QuietShift shift(stage);
    shift.enter(FlightIndex{0}, {.cell = {1, 23}, .altitude = 5, .heading = 315, .speed = Speed::fast});
    shift.enter(FlightIndex{1}, {.cell = {1, 21}, .altitude = 6, .heading = 315, .speed = Speed::fast});
    stage.skipTo(360_s);
    stage.look([this] {
        EXPECT_FALSE(stage.game().flight(FlightIndex{0}).inPlay);
        EXPECT_EQ(stage.game().score, 0);
        EXPECT_GE(stage.sounds.count("snd\\yellow.snd"), 1);
    });
    stage.play();
}

TEST_F(GameEndTest, ANearMissLightsTheRedLampAndFlashesIt) {
    meet({11, 11});
    stage.look([this] {
        EXPECT_TRUE(isOnTicker("F0, Emergency! Near miss with F1"));
        EXPECT_EQ(stage.game().litLamp, LampLevel::red);
        EXPECT_EQ(stage.sounds.count("snd\\red.snd"), 1);
    });
    const auto lamp = [this] { return stage.desktop().picture().at(390, 30); };
    auto first = std::make_shared<Pixel>();
    stage.look([lamp, first] { *first = lamp(); });
    stage.wait(420);
    stage.look([lamp, first] { EXPECT_NE(lamp(), *first); });
    stage.play();
}

TEST_F(GameEndTest, TheLastFlightEndsTheShiftWithItsLineAndThenTheGame) {
    QuietShift shift(stage);
    stage.skipTo(60_s);
    finishAllBut(FlightIndex{0});
    stage.look([this] {
        stage.game().score = 500;
        stage.game().bonus = 75;
    });
    stage.skip();
    stage.look([this] {
        EXPECT_FALSE(stage.game().isRunning());
        EXPECT_TRUE(isOnTicker("Game Over.   Score: 575 out of a possible"));
        EXPECT_TRUE(stage.shell().radar.window.isVisible());
    });
    const auto expectMenu = [this](std::size_t menus, const char* when) {
        stage.todo([](Script& script) { script.click({57, 30}).wait(1); });
        stage.look([this, menus, when] { EXPECT_EQ(stage.desktop().topLevels().size(), 1 + menus) << when; });
    };
    expectMenu(0, "the mouse rests while the last line is read");
    stage.wait(4000);
    stage.look([this] { EXPECT_TRUE(isOnTicker("Game Over.")) << "it is still scrolling"; });
    stage.wait(15000);
    stage.look([this] {
        EXPECT_FALSE(stage.shell().radar.window.isVisible());
        EXPECT_EQ(stage.shell().game.clock, 0_s);
        EXPECT_EQ(stage.shell().panel.state.flight, std::nullopt);
    });
    stage.wait(6000); // the film that celebrates it lets itself be closed by then
    stage.todo([](Script& script) { script.key(Key::space).wait(20).key(Key::enter).wait(20); });
    expectMenu(1, "the mouse is free again");
    stage.todo([](Script& script) { script.key(Key::escape).wait(1); });
    stage.startNewGame(); // and the next game begins as the first one did
    stage.wait(100);
    stage.look([this] {
        EXPECT_TRUE(isOnTicker("Welcome"));
        EXPECT_FALSE(isOnTicker("score so far")) << "nothing has been won or lost yet";
    });
    stage.play();
}

TEST_F(GameEndTest, ANewGameDuringTheLastLineIsNotEndedByIt) {
    QuietShift shift(stage);
    stage.skipTo(60_s);
    finishAllBut(FlightIndex{0});
    stage.skip();
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("n").key(Key::escape).wait(1); });
    stage.look([this] { EXPECT_TRUE(isOnTicker("Game Over.")) << "thinking of a new game ends nothing"; });
    stage.startNewGame();
    stage.look([this] { EXPECT_LE(stage.shell().game.clock, 1_s) << "it begins anew"; });
    stage.wait(60000);
    stage.look([this] { EXPECT_TRUE(stage.game().isRunning()); });
    stage.play();
}

TEST_F(GameEndTest, ALaterGameDoesNotBeginWithAReportOfItsScore) {
    stage.startNewGame();
    stage.skipTo(60_s);
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("n").wait(1).key(Key::enter).wait(1); });
    stage.todo([](Script& script) { script.key(Key::enter).wait(500); });
    stage.look([this] {
        EXPECT_TRUE(stage.game().isRunning());
        EXPECT_TRUE(isOnTicker("Welcome"));
        EXPECT_FALSE(isOnTicker("score so far"));
    });
    stage.play();
}

TEST_F(GameEndTest, ACollisionSpreadsRingsForEightSecondsAndEndsTheGame) {
    meet({10, 10});
    stage.look([this] {
        EXPECT_FALSE(stage.game().isRunning());
        EXPECT_EQ(stage.game().collisionFlights, (std::array{FlightIndex{1}, FlightIndex{0}}));
        const auto crash = std::ranges::find(stage.sounds.heard, "snd\\collide.snd");
        ASSERT_NE(crash, stage.sounds.heard.end());
        EXPECT_EQ(*(crash - 1), "stop effects") << "who was speaking speaks on";
        EXPECT_FALSE(isOnTicker("")) << "what waited to be read";
    });
    stage.wait(7000);
    stage.look([this] {
        const Point ring = stage.onRadar({10, 10}) + Point{10, -4} + Point{0, -24 - 4 * 70};
        int red = 0;
        for (int y = -8; y < 8; ++y) {
            red += stage.desktop().picture().at(ring.x + 250, ring.y + 250 + y) == 0xFF0000 ? 1 : 0;
        }
        EXPECT_GT(red, 0) << "no rings";
        EXPECT_TRUE(stage.shell().radar.window.isVisible());
    });
    stage.wait(1500);
    stage.look([this] {
        EXPECT_FALSE(stage.shell().radar.window.isVisible());
        EXPECT_EQ(stage.sounds.heard.back(), "mci\\faa.mci");
        EXPECT_FALSE(isOnTicker("Game Over"));
        EXPECT_TRUE(stage.isDialogOpen()) << "no page about it";
    });
    stage.wait(1100);
    stage.todo([](Script& script) { script.key(Key::a).wait(20); });
    stage.look([this] {
        EXPECT_FALSE(stage.isDialogOpen());
        EXPECT_EQ(stage.sounds.heard.back(), "mci\\idle.mci");
        EXPECT_FALSE(stage.backend.isCaptured());
    });
    stage.startNewGame();
    stage.play();
}

TEST_F(GameEndTest, TheWheelChangesNothingWhileRingsSpread) {
    meet({10, 10});
    stage.wait(100);
    auto before = std::make_shared<Bitmap>();
    const auto column = [this] {
        const Rect place = stage.shell().strips.window.screenBounds();
        Bitmap picture(place.size());
        Canvas(picture).draw(picture.bounds(), stage.backend.screen(), place);
        return picture;
    };
    stage.look([before, column] { *before = column(); });
    stage.todo([](Script& script) { script.wheel({900, 300}, -3).wheel({900, 300}, 1).wait(100); });
    stage.look([before, column] { EXPECT_EQ(column(), *before); });
    stage.play();
}

TEST_F(GameEndTest, AGameThatIsBegunWhileRingsSpreadStartsCleanAndGoesOn) {
    selectsFirst = true;
    meet({10, 10});
    stage.look([this] {
        // Where the sweep stood there is nothing but the dark of the scope: it has stopped with the game.
        const Bitmap& screen = stage.backend.screen();
        int white = 0;
        for (int x = 300; x < 600; ++x) {
            white += screen.at(70 + x, 70 + 340) == whitePixel ? 1 : 0;
        }
        EXPECT_EQ(white, 0) << "the sweep is still there";
    });
    stage.todo([](Script& script) {
        script.window(WindowEvent::deactivated).window(WindowEvent::activated); // gives the mouse free
        script.key(Key::f, withAlt).click({57, 30}).type("n").key(Key::enter).wait(100);
    });
    stage.look([this] {
        EXPECT_EQ(stage.shell().panel.state.flight, std::nullopt) << "it is one of the lost game";
        EXPECT_FALSE(stage.shell().exec.window.isEnabled());
    });
    stage.wait(9000);
    stage.look([this] {
        EXPECT_TRUE(stage.game().isRunning());
        EXPECT_EQ(stage.sounds.count("mci\\faa.mci"), 0);
    });
    stage.play();
}

TEST_F(GameEndTest, ClosingTheWindowWhileRingsSpreadEndsTheProgram) {
    meet({10, 10});
    stage.todo([](Script& script) { script.window(WindowEvent::closeRequested).wait(100); });
    stage.look([] { ADD_FAILURE() << "it went on"; });
    stage.play();
    EXPECT_TRUE(stage.desktop().isQuitting());
}

} // namespace
} // namespace ventrel
