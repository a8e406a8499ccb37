// What is to be heard, and that nothing plays on.

#include "shell/plain_program.h"
#include "shell/quiet_shift.h"

namespace ventrel {
namespace {

using Heard = std::vector<std::string>;

class MusicTest : public ::testing::Test {
protected:
    PlainProgram program;
    GameStage stage{1024, "[Game]\nName=mary\nSkill=1\n", program.folder()};

    /// All music and the effects that were stopped since the last time; clicks and calls aside.
    void expectHeard(const Heard& expected, const std::string& when) {
        stage.look([this, expected, when] {
            Heard heard;
            for (const std::string& sound : stage.sounds.heard) {
                if (sound.starts_with("mci") || sound.starts_with("stop")) {
                    heard.push_back(sound);
                }
            }
            EXPECT_EQ(heard, expected) << when;
            stage.sounds.heard.clear();
        });
    }
    void press(Key key, Modifiers modifiers = {}) {
        stage.todo([key, modifiers](Script& script) { script.key(key, modifiers).wait(1); });
    }
    void type(std::string letters) {
        stage.todo([letters](Script& script) {
            script.key(letters.front() == 'f' ? Key::f : Key::o, withAlt).type(letters.substr(1)).wait(1);
        });
    }
};

TEST_F(MusicTest, FollowsTheGame) {
    const std::string idle = "mci\\idle.mci";
    const std::string game = "mci\\game.mci";
    const std::string again = " again and again";
    expectHeard({"stop music", idle + again}, "start");
    type("oum");
    expectHeard({"stop music"}, "music off");
    type("oum");
    expectHeard({idle}, "music on without a game");
    type("fn");
    expectHeard({}, "the dialog of a new game");
    press(Key::enter);
    expectHeard({"stop effects", game + again}, "a new game");
    press(Key::p);
    expectHeard({"stop music"}, "pause");
    press(Key::p);
    expectHeard({game}, "on again");
    type("oum");
    expectHeard({"stop music"}, "music off in a game");
    type("oum");
    expectHeard({game}, "music on in a game");
    type("fn");
    press(Key::enter);  // yes, give it up
    press(Key::escape); // no other one
    expectHeard({"stop music", game, "stop music", idle}, "given up for another");
    press(Key::f4, withAlt);
    stage.play();
    EXPECT_EQ(stage.sounds.heard, (Heard{"stop music", "stop effects"})) << "the end of the program";
}

TEST_F(MusicTest, EndsWithTheShift) {
    QuietShift shift(stage);
    stage.look([this] {
        for (Flight& flight : stage.game().flights) {
            flight.inPlay = false;
        }
        stage.sounds.heard.clear();
    });
    stage.skip();
    expectHeard({"stop music"}, "the shift is over");
    stage.wait(60000);
    expectHeard({}, "the film has a sound of its own");
    press(Key::space);
    expectHeard({"stop music", "mci\\splash.mci"}, "the table of scores");
    press(Key::enter);
    expectHeard({"stop music", "mci\\idle.mci"}, "the console");
    stage.play();
}

TEST_F(MusicTest, ASoundThatCannotBeReadIsToldOnceItsSequenceHasEnded) {
    QuietShift shift(stage);
    shift.enter(FlightIndex{0}, {.cell = {24, 24}, .altitude = 5, .heading = 90});
    stage.skipTo(QuietShift::entryTime);
    stage.look([this] { stage.sounds.unreadable = "select"; });
    stage.selectByStrip(FlightIndex{0});
    stage.look([this] {
        EXPECT_EQ(stage.backend.beeps(), std::vector{MessageIcon::stop});
        EXPECT_TRUE(stage.isDialogOpen());
        EXPECT_TRUE(stage.game().flight(FlightIndex{0}).selected) << "the flight is chosen all the same";
        EXPECT_TRUE(stage.shell().paused);
    });
    press(Key::enter);
    stage.look([this] {
        EXPECT_FALSE(stage.isDialogOpen());
        EXPECT_FALSE(stage.shell().paused);
    });
    stage.play();
}

TEST(Leftovers, AGameLeavesTheConsoleAsItFoundIt) {
    for (const int width : {800, 1024}) {
        GameStage stage(width, "[Game]\nName=mary\nSkill=3\n");
        auto before = std::make_shared<Bitmap>();
        stage.wait(100);
        stage.look([&, before] { *before = stage.backend.screen(); });
        stage.startNewGame(3);
        stage.skipTo(600_s);
        stage.look([&] {
            for (Flight& flight : stage.game().flights) {
                flight.alert = flight.isOnScope() ? Alert::nearMiss : Alert::none;
            }
            RadarRepaint(stage.shell().radar);
        });
        stage.todo([&](Script& script) { script.key(Key::tab).wait(500).key(Key::p).wait(10); });
        stage.look([&, before] {
            EXPECT_NE(stage.shell().pressedStrip, noSlot);
            EXPECT_NE(stage.backend.screen(), *before);
        });
        stage.todo([](Script& script) {
            script.key(Key::f, withAlt).type("e").wait(1).key(Key::enter).wait(1).moveTo({3, 300}).wait(50);
        });
        stage.look([&, before] {
            EXPECT_EQ(stage.backend.title(), "Ventrel");
            // The small scope's sweep stays where it stood.
            Bitmap after = stage.backend.screen();
            const Rect scope = stage.shell().console().topBar.smallScope;
            Canvas(after).draw(scope, *before, scope);
            EXPECT_EQ(differenceOf(*before, after), Rect{}) << "left at width " << width;
        });
        stage.play();
    }
}

TEST(Leftovers, ANewGameShowsNothingOfTheLastOne) {
    GameStage stage(800, "[Options]\nAirportSelect=8\n[Game]\nName=mary\nSkill=3\n");
    // The buttons of the strips, and what lies below them; the strips list the next flights at once.
    const auto picture = [&stage] {
        const Rect strips = stage.shell().strips.window.bounds();
        Bitmap piece = pictureOf(stage.backend.screen(), {strips.left - 40, 50, 800, 600});
        Canvas(piece).fill(strips.movedBy({40 - strips.left, -50}), Colour{});
        return piece;
    };
    auto idle = std::make_shared<Bitmap>();
    stage.wait(100);
    stage.look([picture, idle] { *idle = picture(); });
    stage.startNewGame(3);
    stage.skipTo(900_s);
    stage.todo([](Script& script) { script.key(Key::tab).wait(100).key(Key::f, withAlt).type("n").wait(1); });
    stage.look([&stage] { stage.game().score = 75; });
    stage.todo([](Script& script) { script.key(Key::enter).wait(1).key(Key::enter).wait(20); });
    stage.look([&stage, picture, idle] {
        EXPECT_TRUE(stage.game().isRunning());
        EXPECT_EQ(stage.game().clock, 0_s);
        EXPECT_EQ(stage.game().score, 0);
        EXPECT_EQ(differenceOf(*idle, picture()), Rect{});
    });
    stage.play();
}

} // namespace
} // namespace ventrel
