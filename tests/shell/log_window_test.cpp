// The window of the log beside the game.

#include <algorithm>

#include "golden.h"
#include "shell/game_flow.h"
#include "shell/game_stage.h"
#include "shell/plain_program.h"

namespace ventrel {
namespace {

class LogWindowTest : public ::testing::Test {
protected:
    LogWindowTest() { makePlainProgram(folder_.path()); }

    static const LogWindow& log(GameStage& stage) { return stage.shell().logWindow; }
    static void toggle(GameStage& stage) {
        stage.todo([](Script& script) { script.key(Key::l, withControl).wait(20); });
    }
    /// The pointer over the lines of the log.
    static void hover(GameStage& stage) {
        stage.todo(
            [&stage](Script& script) { script.moveTo(log(stage).view.window.toScreen({100, 40})).wait(1); });
    }
    static void press(GameStage& stage, Key key, Modifiers modifiers = {}) {
        stage.todo([key, modifiers](Script& script) { script.key(key, modifiers).wait(20); });
    }
    /// Chooses a filter.
    static void choose(GameStage& stage, int control) {
        stage.todo([&stage, control](Script& script) {
            script.click(log(stage).dialog->window(control).toScreen({5, 5})).wait(20);
        });
    }

    TempFolder folder_;
};

TEST_F(LogWindowTest, StaysOpenBesideTheGameWhichKeepsTheKeyboard) {
    GameStage stage(800, "[Game]\nName=mary\nSkill=1\n", folder_.path());
    stage.startNewGame();
    stage.skipTo(120_s);
    toggle(stage);
    stage.look([&] {
        EXPECT_TRUE(log(stage).isOpen());
        EXPECT_FALSE(stage.shell().paused);
        EXPECT_EQ(stage.desktop().activeWindow(), stage.shell().mainWindow);
    });
    choose(stage, 1103); // Calls
    stage.skipTo(600_s);
    stage.look([&] {
        EXPECT_EQ(stage.game().clock, 600_s) << "Space went on to the game";
        EXPECT_FALSE(stage.shell().paused);
        const LogView& view = log(stage).view;
        ASSERT_FALSE(view.rows.empty());
        EXPECT_EQ(view.bar.top(), view.bar.lastTop()) << "it follows the newest line";
        EXPECT_TRUE(std::ranges::all_of(view.rows, [&](const LogRow& row) {
            return stage.shell().log.story().entries[row.entry].kind == LogKind::call;
        }));
    });
    stage.todo([&stage](Script& script) {
        script.click(stage.shell().mainWindow.toScreen({300, 20})).wait(1); // onto the console
    });
    stage.look([&] { EXPECT_EQ(stage.desktop().topLevels().back(), log(stage).dialog->frame()); });
    hover(stage);
    press(stage, Key::escape);
    stage.look([&] { EXPECT_FALSE(log(stage).isOpen()) << "the boss key's other meaning"; });
    stage.play();
}

TEST_F(LogWindowTest, HearsKeysAndWheelOnlyUnderThePointer) {
    GameStage stage(800, "[Game]\nName=mary\nSkill=3\n", folder_.path());
    stage.startNewGame();
    toggle(stage);
    stage.skipTo(1200_s);
    hover(stage);
    press(stage, Key::home);
    stage.look([&] { EXPECT_EQ(log(stage).view.bar.top(), 0); });
    stage.skipTo(1260_s);
    stage.look([&] { EXPECT_EQ(log(stage).view.bar.top(), 0) << "scrolled away it stays"; });
    stage.todo(
        [&stage](Script& script) { script.wheel(log(stage).view.window.toScreen({100, 40}), -1).wait(1); });
    stage.look([&] { EXPECT_EQ(log(stage).view.bar.top(), ScrollBar::wheelLines); });
    press(stage, Key::end);
    stage.todo(
        [&stage](Script& script) { script.wheel(log(stage).view.window.toScreen({100, 40}), 1).wait(1); });
    stage.skipTo(1500_s);
    stage.look(
        [&] { EXPECT_LT(log(stage).view.bar.top(), log(stage).view.bar.lastTop() - ScrollBar::wheelLines); });
    press(stage, Key::home);
    stage.todo(
        [&stage](Script& script) { script.wheel(log(stage).view.window.toScreen({100, 40}), -1).wait(1); });
    press(stage, Key::c, withControl);
    stage.look([&] {
        const std::string text = stage.backend.clipboard();
        EXPECT_EQ(std::ranges::count(text, '\n'), std::ssize(stage.shell().log.story().entries));
    });
    stage.todo([](Script& script) { script.moveTo({700, 300}).wait(1).key(Key::home).wait(20); });
    stage.look([&] { EXPECT_EQ(log(stage).view.bar.top(), ScrollBar::wheelLines); });
    stage.todo(
        [&stage](Script& script) { script.click(log(stage).view.window.toScreen({100, 20})).wait(20); });
    stage.look([&] {
        EXPECT_TRUE(log(stage).view.marked.has_value());
        abandonGame(stage.shell());
    });
    stage.startNewGame();
    stage.skip();
    stage.look([&] { EXPECT_EQ(log(stage).view.marked, std::nullopt) << "of another shift"; });
    stage.play();
}

TEST_F(LogWindowTest, ShowsTheFlightThatIsSelectedOrClickedLast) {
    GameStage stage(800, "[Game]\nName=mary\nSkill=1\n", folder_.path());
    stage.startNewGame();
    stage.skipTo(300_s);
    toggle(stage);
    choose(stage, 1101); // Flight
    stage.look([&] { EXPECT_TRUE(log(stage).view.rows.empty()) << "none is selected"; });
    press(stage, Key::tab);
    stage.look([&] {
        const auto flight = stage.shell().panel.state.flight;
        ASSERT_TRUE(flight.has_value());
        EXPECT_EQ(log(stage).view.flight, flight);
        EXPECT_FALSE(log(stage).view.rows.empty());
    });
    stage.play();
}

} // namespace
} // namespace ventrel
