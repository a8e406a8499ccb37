// Lessons in the running program: the note, its buttons, how one begins and ends, and the very first start.

#include <numeric>

#include "base/profile_file.h"
#include "lessons/lesson_file.h"
#include "resources/command_ids.h"
#include "shell/commands.h"
#include "shell/game_stage.h"
#include "shell/lesson_dialogs.h"
#include "shell/lesson_places.h"

namespace ventrel {
namespace {

constexpr std::uint32_t ownGenerator = 4711;

class LessonsTest : public ::testing::Test {
protected:
    GameStage stage{800};

    Shell& shell() { return stage.shell(); }
    const LessonNote& note() { return shell().lesson->follower.note(); }

    void press(Key key, Modifiers modifiers = {}) {
        stage.todo([key, modifiers](Script& script) { script.key(key, modifiers).wait(20); });
    }
    /// Help, Lessons, that line of the list.
    void begin(int number) {
        stage.look([this] { stage.game().random.state = ownGenerator; });
        stage.todo([number](Script& script) {
            script.key(Key::h, withAlt).type("l").wait(20).key(Key::home);
            for (int line = 0; line < number; ++line) {
                script.key(Key::down);
            }
            script.key(Key::enter).wait(20);
        });
        stage.look([this] { ASSERT_TRUE(shell().lesson) << "no lesson was begun"; });
    }
    void expectStep(std::size_t step, NoteKind kind = NoteKind::task) {
        stage.look([this, step, kind] {
            ASSERT_TRUE(shell().lesson);
            EXPECT_EQ(note().step, step) << note().text;
            EXPECT_EQ(note().kind, kind) << note().text;
        });
    }
    void skipUntilStep(std::size_t step) {
        stage.todo([this, step](Script& script) {
            if (shell().lesson && note().step < step && stage.game().clock < 1200_s) {
                script.key(Key::space).wait(20);
                skipUntilStep(step);
            }
        });
    }
};

TEST_F(LessonsTest, ADepartureIsTakenByMouseAndKeysUpToTheNextLesson) {
    begin(1);
    stage.skipTo(15_s);
    stage.selectByStrip(FlightIndex{0});
    expectStep(1);
    press(Key::enter);
    skipUntilStep(3);
    press(Key::f2);
    expectStep(4);
    stage.selectByStrip(FlightIndex{0});
    expectStep(5);
    press(Key::f);
    expectStep(6);
    press(Key::n);
    expectStep(6, NoteKind::answer);
    press(Key::f);
    press(Key::enter);
    skipUntilStep(8);
    expectStep(8, NoteKind::done);
    stage.look([&] {
        EXPECT_EQ(ProfileFile::read(stage.profile())->integer("Lessons", "2_departure", 0), 1);
        EXPECT_EQ(shell().shiftKind, ShiftKind::practice);
    });
    press(Key::f2);
    stage.look([&] { EXPECT_EQ(shell().lesson->number, 2U); });
    expectStep(0);
    stage.play();
}

TEST_F(LessonsTest, WelcomesThePlayerWhoeverPlayedBefore) {
    stage.look([this] { stage.game().controllerName = "Automatic Controller"; });
    begin(0);
    stage.look([this] { EXPECT_EQ(stage.game().controllerName, "Mary"); });
    stage.play();
}

TEST_F(LessonsTest, LeavingGivesTheGeneratorBackAndTakesTheNoteAway) {
    begin(0);
    auto windows = std::make_shared<std::size_t>();
    stage.look([&] { *windows = shell().mainWindow.children().size(); });
    stage.todo([this](Script& script) {
        script.wait(1);
        shell().mainWindow.postCommand(command::leaveLesson);
    });
    stage.look([&] {
        EXPECT_FALSE(shell().lesson);
        EXPECT_FALSE(stage.game().isRunning());
        EXPECT_EQ(stage.game().random.state, ownGenerator);
        EXPECT_LT(shell().mainWindow.children().size(), *windows);
    });
    stage.play();
}

TEST_F(LessonsTest, ACollisionIsAnsweredAndTheLessonBegunAgain) {
    begin(4);
    stage.skipTo(15_s);
    stage.look([&] {
        stage.game().flight(FlightIndex{1}).current() = stage.game().flight(FlightIndex{0}).current();
    });
    stage.skipTo(60_s);
    stage.wait(9000); // while the rings spread
    expectStep(0, NoteKind::stop);
    stage.look([&] { EXPECT_FALSE(stage.isDialogOpen()) << "nobody is accused of anything"; });
    press(Key::f2);
    expectStep(0);
    stage.look([&] { EXPECT_TRUE(stage.game().isRunning()); });
    stage.play();
}

TEST_F(LessonsTest, ANewGameEndsALesson) {
    begin(0);
    stage.todo([](Script& script) {
        script.key(Key::f, withAlt).type("n").wait(20).key(Key::enter).wait(20).key(Key::enter).wait(20);
    });
    stage.look([&] {
        EXPECT_FALSE(shell().lesson);
        EXPECT_EQ(shell().shiftKind, ShiftKind::scored);
    });
    stage.play();
}

TEST(LessonNotes, FitBelowFiveStripsAtBothSizesAndHideNothingThatTheySpeakOf) {
    constexpr int strips = 5;
    for (const int width : {800, 1024}) {
        GameStage stage(width);
        stage.look([&] {
            Shell& shell = stage.shell();
            startLesson(shell, 4); // for its flights
            const StripsLayout& places = shell.console().strips;
            const int room = places.column.bottom - places.column.top - strips * places.pitch;
            for (const auto& file : programLessons(shell)) {
                const Lesson lesson = loadLesson(file).value();
                const LessonNoteWindow sheet(shell, {});
                const auto expectFit = [&](const std::string& text) {
                    EXPECT_LE(sheet.heightFor(text), room) << lesson.name << ": " << text;
                };
                for (const LessonStep& step : lesson.steps) {
                    expectFit(step.text);
                    std::ranges::for_each(step.answers, expectFit, &LessonAnswer::text);
                    for (const LessonShow& show : step.shows) {
                        const auto shown = lessonSpotArea(shell, {show.spot.part});
                        const Rect place = lessonNotePlace(shell, sheet.heightFor(step.text), shown);
                        EXPECT_FALSE(shown && shown->intersects(place)) << step.text;
                    }
                }
                std::ranges::for_each(lesson.answers, expectFit, &LessonAnswer::text);
            }
        });
        stage.play();
    }
}

class FirstStart : public LessonsTest {
protected:
    void welcome() {
        stage.todo([this](Script& script) {
            script.wait(20);
            shell().mainWindow.post([this] { welcomeNewcomer(shell()); });
        });
    }
};

TEST(FirstStartOfAll, IsOneWithoutAnOptionsFile) {
    const TempFolder folder;
    EXPECT_TRUE(OptionsStore(folder / "fresh.ini").isFirstStart());
    writeText(folder / "fresh.ini", "");
    EXPECT_FALSE(OptionsStore(folder / "fresh.ini").isFirstStart());
    EXPECT_FALSE(OptionsStore("").isFirstStart()) << "it would be one at every start";
}

TEST_F(FirstStart, OffersALessonAGameOrALookAround) {
    stage.look([this] { std::filesystem::remove(stage.profile()); });
    welcome();
    press(Key::escape);
    stage.look([this] {
        EXPECT_FALSE(shell().lesson);
        EXPECT_TRUE(std::filesystem::exists(stage.profile())) << "the next start would be a first one again";
    });
    welcome();
    press(Key::n, withAlt);
    stage.look([this] { EXPECT_TRUE(stage.isDialogOpen()) << "New Game"; });
    press(Key::escape);
    welcome();
    press(Key::enter);
    expectStep(0);
    stage.play();
}

} // namespace
} // namespace ventrel
