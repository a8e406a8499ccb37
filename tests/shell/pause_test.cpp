// Pausing, hiding, leaving, and what is kept for the next start.

#include "resources/dialogs.h"
#include "shell/quiet_shift.h"

namespace ventrel {
namespace {

constexpr std::string_view playing = "Ventrel";
constexpr std::string_view pausing = "Ventrel (Paused)";

class PauseTest : public ::testing::Test {
protected:
    GameStage stage;

    void press(Key key, Modifiers modifiers = {}) {
        stage.todo([key, modifiers](Script& script) { script.key(key, modifiers).wait(1); });
    }
    void expectTitle(std::string_view title, const char* when) {
        stage.look([this, title, when] { EXPECT_EQ(stage.backend.title(), title) << when; });
    }
};

TEST_F(PauseTest, APausedGameStandsStillAndSleeps) {
    stage.startNewGame();
    press(Key::pause);
    expectTitle(pausing, "by its key");
    auto clock = std::make_shared<ClockSeconds>();
    auto sleeps = std::make_shared<std::size_t>();
    stage.look([this, clock, sleeps] {
        *clock = stage.shell().game.clock;
        *sleeps = stage.backend.sleeps();
    });
    stage.wait(60000);
    stage.look([this, clock, sleeps] {
        EXPECT_EQ(stage.shell().game.clock, *clock);
        EXPECT_LE(stage.backend.sleeps(), *sleeps + 2) << "it woke up for nothing";
    });
    press(Key::p);
    expectTitle(playing, "by the other key");
    stage.wait(900);
    stage.look([this, clock] {
        EXPECT_GT(stage.shell().game.clock, *clock);
        EXPECT_LE(stage.shell().game.clock, *clock + 4_s) << "no second of the pause is made up for";
    });
    stage.play();
}

TEST_F(PauseTest, MenusDialogsAndOtherProgramsPause) {
    stage.startNewGame();
    stage.todo([](Script& script) { script.key(Key::o, withAlt).type("p").wait(1); });
    expectTitle(pausing, "by the menu");
    stage.todo([](Script& script) { script.key(Key::o, withAlt).type("p").wait(1); });
    expectTitle(playing, "by the menu again");
    press(Key::f1);
    expectTitle(pausing, "while a dialog is open");
    press(Key::escape);
    expectTitle(playing, "after the dialog");
    stage.todo([](Script& script) { script.window(WindowEvent::deactivated).wait(1); });
    expectTitle(pausing, "behind another program");
    stage.todo([](Script& script) { script.window(WindowEvent::activated).wait(1); });
    expectTitle(playing, "in front again");
    press(Key::escape); // the boss
    stage.look([this] { EXPECT_TRUE(stage.backend.isMinimised()); });
    expectTitle(pausing, "minimised");
    stage.todo([this](Script& script) {
        stage.backend.restore();
        script.wait(1);
    });
    expectTitle(playing, "restored");
    stage.play();
}

TEST_F(PauseTest, WithoutAGameNothingPausesOrHides) {
    press(Key::pause);
    expectTitle(playing, "no game");
    press(Key::escape);
    stage.look([this] { EXPECT_FALSE(stage.backend.isMinimised()); });
    auto sleeps = std::make_shared<std::size_t>();
    stage.look([this, sleeps] { *sleeps = stage.backend.sleeps(); });
    stage.wait(60000);
    stage.look(
        [this, sleeps] { EXPECT_LE(stage.backend.sleeps(), *sleeps + 2) << "the idle console wakes up"; });
    stage.play();
}

TEST_F(PauseTest, LeavingARunningGameIsAskedAbout) {
    stage.startNewGame();
    press(Key::s, withControl);
    stage.todo([](Script& script) { script.window(WindowEvent::closeRequested).wait(1); });
    stage.look([this] { EXPECT_FALSE(stage.isDialogOpen()) << "a dialog is closed first"; });
    stage.todo([](Script& script) { script.window(WindowEvent::closeRequested).wait(1); });
    stage.look([this] { EXPECT_TRUE(stage.isDialogOpen()); });
    stage.todo([](Script& script) { script.window(WindowEvent::closeRequested).wait(1); });
    stage.look([this] {
        EXPECT_FALSE(stage.isDialogOpen());
        EXPECT_TRUE(stage.game().isRunning()) << "closing twice gives no game up";
    });
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("e").wait(1).key(Key::enter).wait(1); });
    stage.look([this] {
        EXPECT_FALSE(stage.game().isRunning());
        EXPECT_FALSE(stage.isDialogOpen());
    });
    press(Key::f4, withAlt); // without a game at once
    stage.look([] { ADD_FAILURE() << "it went on"; });
    stage.play();
    EXPECT_TRUE(stage.desktop().isQuitting());
}

TEST_F(PauseTest, AnotherResolutionComesWithTheNextStart) {
    stage.todo([](Script& script) {
        script.key(Key::o, withAlt).type("r").key(Key::enter).wait(1).key(Key::enter).wait(1); // Yes
    });
    stage.look([] { ADD_FAILURE() << "it went on"; });
    stage.play();
    EXPECT_EQ(stage.program().options().resolution, 2);

    GameStage small(800);
    small.startNewGame();
    small.look([&] {
        EXPECT_EQ(small.game().layout.windowWidth, 800);
        EXPECT_EQ(small.shell().radar.window.bounds(), (Rect{16, 61, 16 + 539, 61 + 539}));
    });
    small.play();
}

TEST_F(PauseTest, FullScreenIsKeptEvenWhenThePlayerGoesOn) {
    stage.todo(
        [](Script& script) { script.key(Key::o, withAlt).type("r").type("f").wait(1).type("n").wait(1); });
    stage.look([this] {
        EXPECT_FALSE(stage.isDialogOpen());
        EXPECT_EQ(stage.shell().options.windowed, 1);
    });
    stage.play();
}

TEST_F(PauseTest, FullScreenSwitchesAtOnceAndIsRemembered) {
    press(Key::f11);
    stage.look([this] {
        EXPECT_TRUE(stage.backend.isFullScreen());
        EXPECT_EQ(stage.shell().options.windowed, 0);
    });
    // No to the menu's restart: the option waits for the next start, the key goes by what is to be seen.
    stage.todo(
        [](Script& script) { script.key(Key::o, withAlt).type("r").type("f").wait(1).type("n").wait(1); });
    press(Key::enter, withAlt);
    stage.look([this] {
        EXPECT_FALSE(stage.backend.isFullScreen());
        EXPECT_EQ(stage.shell().options.windowed, 1);
        EXPECT_FALSE(stage.isDialogOpen());
    });
    stage.play();
}

TEST_F(PauseTest, AboutIsClosedWithTheWindowButNotByEsc) {
    stage.todo(
        [](Script& script) { script.key(Key::h, withAlt).type("a").wait(1).key(Key::escape).wait(1); });
    stage.look([this] { EXPECT_TRUE(stage.isDialogOpen()); });
    stage.todo([](Script& script) { script.window(WindowEvent::closeRequested).wait(1); });
    stage.look([this] { EXPECT_FALSE(stage.isDialogOpen()); });
    stage.play();
}

TEST(StartUp, TheWindowFollowsTheScreenUntilThePlayerChooses) {
    Options options;
    EXPECT_EQ(chooseWindowSize(options, {1023, 768}), (Size{800, 600}));
    EXPECT_EQ(options.resolution, 2);
    EXPECT_EQ(chooseWindowSize(options, {3840, 2160}), (Size{800, 600})) << "it was chosen";
    Options others;
    EXPECT_EQ(chooseWindowSize(others, {1280, 800}), (Size{1024, 768}));
    EXPECT_EQ(others.resolution, 3);
}

TEST(StartUp, AScreenOfFewColoursIsComplainedOfInAWindowAndThenUsed) {
    for (const int windowed : {1, 0}) {
        HeadlessBackend backend({800, 600}, {{800, 600}, 8});
        FontSet fonts(std::filesystem::path(PROGRAM_FOLDER) / "fonts");
        HeardSounds sounds;
        OptionsStore store("none.ini");
        Program program({backend, fonts, sounds, store}, {PROGRAM_FOLDER},
                        Options{.resolution = 2, .windowed = windowed}, 1);
        ASSERT_TRUE(program.startUp().has_value());
        Script(backend).wait(10).key(Key::enter).wait(10).then([&] {
            EXPECT_EQ(backend.beeps().size(), windowed != 0 ? 1U : 0U);
            EXPECT_TRUE(program.shell().mainWindow.isActive());
            program.desktop().quit();
        });
        program.run();
    }
}

TEST(StartUp, AMissingPictureIsNamedAndNothingStarts) {
    TempFolder folder;
    HeadlessBackend backend({800, 600});
    FontSet fonts(std::filesystem::path(PROGRAM_FOLDER) / "fonts");
    HeardSounds sounds;
    OptionsStore store(folder / "ventrel.ini");
    Program program({backend, fonts, sounds, store}, {folder.path()}, Options{.resolution = 2}, 1);
    Script(backend).wait(10).key(Key::enter);
    EXPECT_FALSE(program.startUp().has_value());
    EXPECT_EQ(backend.beeps(), std::vector{MessageIcon::stop});
}

TEST(StartUp, ASilentMachineIsTalkedAboutBeforeTheConsoleStandsAndThenPlayedOn) {
    for (const SoundFault fault : {SoundFault::missing, SoundFault::inUse}) {
        GameStage stage;
        stage.sounds.fault = fault;
        Script(stage.backend).wait(10).then([&] {
            EXPECT_EQ(stage.backend.beeps(), std::vector{MessageIcon::exclamation});
            EXPECT_FALSE(stage.shell().mainWindow.isVisible());
        });
        Script(stage.backend).wait(20).key(Key::enter);
        stage.startNewGame();
        stage.play();
    }
}

TEST(StartUp, WithoutItsClicksNothingStarts) {
    GameStage stage;
    stage.sounds.unreadable = "snd\\control.snd";
    Script(stage.backend).wait(10).key(Key::enter);
    const auto started = stage.program().startUp();
    ASSERT_FALSE(started.has_value());
    EXPECT_EQ(started.error().text, stage.sounds.unreadable);
    EXPECT_EQ(stage.backend.beeps(), std::vector{MessageIcon::stop});
}

} // namespace
} // namespace ventrel
