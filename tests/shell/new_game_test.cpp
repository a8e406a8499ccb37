// The dialogs as a player uses them.

#include "base/profile_file.h"
#include "records/controller_name.h"
#include "resources/dialogs.h"
#include "shell/game_stage.h"
#include "sim/custom_skill.h"

namespace ventrel {
namespace {

/// A control of the open dialog, by its number.
Window control(GameStage& stage, int id) {
    for (const Window& child : stage.desktop().activeWindow().children()) {
        if (const Window found = child.child(id)) {
            return found;
        }
    }
    return {};
}

Point middleOf(GameStage& stage, int id) {
    const Rect bounds = control(stage, id).screenBounds();
    return {(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
}

void click(GameStage& stage, int id) {
    stage.todo([&stage, id](Script& script) { script.click(middleOf(stage, id)).wait(1); });
}

void openNewGame(GameStage& stage) {
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("n").wait(1); });
}

void press(GameStage& stage, Key key) {
    stage.todo([key](Script& script) { script.key(key).wait(1); });
}

TEST(NewGame, TypedNameIsWrittenProperlyAndKept) {
    GameStage stage;
    openNewGame(stage);
    stage.todo([](Script& script) { script.type("o\xC9 MacNAMARA").key(Key::enter).wait(1); });
    stage.look([&] {
        EXPECT_TRUE(stage.game().isRunning());
        EXPECT_EQ(stage.game().controllerName, "O\xE9 macnamara");
        EXPECT_EQ(ProfileFile::read(stage.profile())->text("Game", "Name", ""), "O\xE9 macnamara");
    });
    stage.play();
    EXPECT_EQ(properName(""), "");
    EXPECT_EQ(properName("\x9Eubr"), "\x8Eubr");
}

TEST(NewGame, NamesEndAtThirtyCharacters) {
    GameStage stage;
    openNewGame(stage);
    stage.todo(
        [](Script& script) { script.type("abcdefghijklmnopqrstuvwxyzabcdefghij").key(Key::enter).wait(1); });
    const auto expectName = [&] {
        stage.look([&] { EXPECT_EQ(stage.game().controllerName, "Abcdefghijklmnopqrstuvwxyzabcd"); });
    };
    expectName();
    openNewGame(stage);
    press(stage, Key::enter); // the game is given up
    press(stage, Key::enter); // for one under the name that was kept
    expectName();
    stage.play();
}

TEST(NewGame, WithoutANameTheDialogStaysOpen) {
    GameStage stage;
    openNewGame(stage);
    press(stage, Key::del);
    press(stage, Key::enter);
    stage.look([&] { EXPECT_EQ(stage.backend.beeps(), std::vector{MessageIcon::information}); });
    press(stage, Key::enter); // the box
    stage.look([&] {
        EXPECT_TRUE(control(stage, new_game::name).exists());
        EXPECT_FALSE(stage.game().isRunning());
    });
    press(stage, Key::escape);
    stage.look([&] { EXPECT_FALSE(stage.isDialogOpen()); });
    stage.play();
}

TEST(NewGame, EasyTakesTheBonusBoxesAwayAndNormalGivesThemBack) {
    GameStage stage(800, "[Options]\nStormTrak=1\nDirectEntry=0\n[Game]\nName=mary\nSkill=1\n");
    openNewGame(stage);
    click(stage, new_game::firstSkill);
    stage.look([&] {
        EXPECT_FALSE(control(stage, new_game::clouds).isEnabled());
        EXPECT_FALSE(control(stage, new_game::directEntry).isEnabled());
    });
    press(stage, Key::enter);
    stage.look([&] {
        EXPECT_EQ(stage.game().planeCount(), 12);
        EXPECT_TRUE(stage.game().clouds.empty());
        EXPECT_EQ(ProfileFile::read(stage.profile())->integer("Game", "Skill", -1), 0);
        EXPECT_EQ(stage.shell().options.stormTrak, 0);
        EXPECT_EQ(stage.shell().options.directEntry, 1);
    });
    stage.play();

    GameStage again(800, "[Options]\nStormTrak=1\nDirectEntry=0\n[Game]\nName=mary\nSkill=1\n");
    openNewGame(again);
    click(again, new_game::firstSkill);
    click(again, new_game::firstSkill + 2);
    press(again, Key::enter);
    again.look([&] {
        EXPECT_EQ(again.game().planeCount(), 35);
        EXPECT_EQ(again.game().bonus, 950 + 300);
        EXPECT_EQ(again.shell().options.directEntry, 0);
    });
    again.play();
}

TEST(NewGame, CustomShiftsAreCheckedBeforeTheyStart) {
    GameStage stage(1024, "[Game]\nName=mary\nSkill=4\n");
    const auto shift = [&](std::string planes, std::string minutes) {
        stage.todo([planes, minutes](Script& script) {
            script.type(planes).key(Key::tab).type(minutes).key(Key::enter).wait(1);
        });
    };
    openNewGame(stage);
    press(stage, Key::enter);
    auto before = std::make_shared<Bitmap>();
    const auto bonus = [&] {
        return pictureOf(stage.backend.screen(), control(stage, custom_skill::bonus).screenBounds());
    };
    stage.look([&, before] { *before = bonus(); });
    stage.todo([](Script& script) { script.type("99"); });
    click(stage, custom_skill::calculate);
    stage.look([&, before] {
        EXPECT_NE(bonus(), *before) << "that of what is typed";
        EXPECT_EQ(stage.shell().options.customBonus, 475) << "nothing is kept yet";
    });
    press(stage, Key::escape);
    press(stage, Key::enter);
    shift("99", "24"); // more than four a minute
    press(stage, Key::enter);
    stage.look([&] { EXPECT_TRUE(control(stage, custom_skill::planes).exists()); });
    press(stage, Key::escape); // back to New Game, which stays
    stage.look([&] { EXPECT_TRUE(control(stage, new_game::name).exists()); });
    press(stage, Key::enter);
    shift("96", "24");
    stage.look([&] {
        EXPECT_EQ(stage.game().planeCount(), 96);
        EXPECT_EQ(stage.shell().options.customSched, 1440);
        EXPECT_EQ(stage.shell().options.customBonus, 25 * (85 * 30 / 25));
    });
    stage.play();
    const auto tells = [](TextId text, int limit) {
        return StringTableText(text).find(' ' + std::to_string(limit)) != std::string_view::npos;
    };
    EXPECT_TRUE(tells(TextId::planesOutOfRange, mostPlanes));
    EXPECT_TRUE(tells(TextId::minutesOutOfRange, mostMinutes));
    EXPECT_TRUE(tells(TextId::tooManyPlanes, mostPlanesPerMinute));
}

TEST(NewGame, AirportsAreChosenFromTheListByDoubleClick) {
    GameStage stage;
    openNewGame(stage);
    click(stage, new_game::choose);
    press(stage, Key::enter); // without a choice
    click(stage, new_game::choose);
    press(stage, Key::down);
    press(stage, Key::end);
    press(stage, Key::escape);
    stage.look([&] { EXPECT_EQ(stage.shell().options.airportSelect, 0); });
    click(stage, new_game::choose);
    stage.todo([&](Script& script) {
        const Rect list = control(stage, choose_airport::list).screenBounds();
        script.doubleClick({list.left + 20, list.top + 2 + 2 * 13 + 5}).wait(1);
    });
    click(stage, okId);
    stage.look([&] {
        EXPECT_EQ(stage.shell().options.airportSelect, 2);
        EXPECT_EQ(stage.game().airspace->name, "Chicago");
    });
    stage.play();
}

TEST(NewGame, AnAirportThatIsNoMoreAsksForAnother) {
    GameStage stage(1024, "[Options]\nAirportSelect=77\n[Game]\nName=mary\nSkill=1\n");
    openNewGame(stage);
    press(stage, Key::enter);
    stage.look([&] { EXPECT_EQ(stage.backend.beeps().size(), 1U); });
    press(stage, Key::enter);
    stage.look([&] { EXPECT_FALSE(stage.game().isRunning()); });
    press(stage, Key::escape);
    stage.play();
}

TEST(NewGame, CancelAfterGivingUpAGameLeavesNone) {
    GameStage stage;
    stage.startNewGame();
    openNewGame(stage);
    press(stage, Key::escape); // Cancel: the game goes on
    stage.look([&] { EXPECT_TRUE(stage.game().isRunning()); });
    openNewGame(stage);
    press(stage, Key::enter);
    press(stage, Key::escape);
    stage.look([&] {
        EXPECT_FALSE(stage.game().isRunning());
        EXPECT_FALSE(stage.shell().radar.window.isVisible());
        EXPECT_EQ(stage.sounds.heard.back(), "mci\\idle.mci");
    });
    stage.play();
}

TEST(Schedule, ListsTheFlightsInPlayAndPausesTheGame) {
    GameStage stage;
    stage.startNewGame();
    stage.todo([](Script& script) { script.key(Key::s, withControl).wait(1); });
    stage.look([&] {
        EXPECT_EQ(stage.backend.title(), "Ventrel (Paused)");
        EXPECT_TRUE(control(stage, schedule::list).exists());
    });
    press(stage, Key::escape); // does nothing
    stage.look([&] { EXPECT_TRUE(stage.isDialogOpen()); });
    press(stage, Key::enter);
    stage.look([&] { EXPECT_EQ(stage.backend.title(), "Ventrel"); });
    stage.play();
}

} // namespace
} // namespace ventrel
