// The Shift of the Day: the same for everybody, its line to share, and the replay that proves it.

#include "shell/day_dialog.h"

#include "golden.h"
#include "replay/playback.h"
#include "replay/replay_folder.h"
#include "shell/game_flow.h"
#include "shell/plain_program.h"
#include "shell/quiet_shift.h"
#include "shell/replay_keeping.h"

namespace ventrel {
namespace {

TEST(ShiftOfTheDay, GivesEveryAirspaceItsTurnAndEveryDateAnotherSeed) {
    const UtcDate first = readDate("2026-11-25").value();
    std::set<std::string_view> airspaces;
    std::set<std::uint32_t> seeds;
    for (int i = 0; i < 16; ++i) {
        const ShiftOfTheDay day = shiftOfTheDay(first + std::chrono::days{i});
        airspaces.insert(day.airspace);
        seeds.insert(day.seed);
        for (const int width : {800, 1024}) {
            EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(PROGRAM_FOLDER) / "apt" /
                                                airspaceFileOf(day, width)));
        }
    }
    EXPECT_EQ(airspaces.size(), 16U);
    EXPECT_EQ(seeds.size(), 16U);
    // What players have told each other of a date holds for ever.
    EXPECT_EQ(shiftOfTheDay(first).airspace, "chicago");
    EXPECT_EQ(shiftOfTheDay(first).skill, Skill::moderate);
    EXPECT_EQ(shiftOfTheDay(first).seed, 20782U * 2654435761U);
}

void pressEnter(GameStage& stage) {
    stage.todo([](Script& script) { script.key(Key::enter).wait(20); });
}

/// File, Shift of the Day, and Play.
void choose(GameStage& stage) {
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("d").wait(20); });
    stage.look([&stage] { EXPECT_TRUE(stage.isDialogOpen()); });
    pressEnter(stage);
    stage.look([&stage] { ASSERT_TRUE(stage.game().isRunning()); });
}

/// Who comes when, and what it is worth.
std::string traffic(const Game& game) {
    std::string text = std::to_string(game.possibleScore);
    for (const Flight& flight : game.flights) {
        text +=
            " " + std::string(std::string_view(flight.callsign)) + std::to_string(flight.scheduledAt.count());
    }
    return text;
}

TEST(ShiftOfTheDay, IsTheSameAtEverySizeAndWithEveryOption) {
    std::vector<std::string> seen;
    for (const auto& [width, options] :
         {std::pair{800, "[Options]\nStormTrak=0\nDirectEntry=0\n[Game]\nSkill=0\n"},
          std::pair{1024, "[Game]\nSkill=3\n"}}) {
        const PlainProgram own; // each stage takes its folder with it
        GameStage stage{width, options, own.folder()};
        stage.look([&stage] { stage.game().random.state = 99; });
        choose(stage);
        stage.look([&] {
            seen.push_back(traffic(stage.game()));
            EXPECT_EQ(stage.game().controllerName, "Controller") << "who has given no name";
        });
        stage.play();
    }
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen.front(), seen.back());
}

void finish(GameStage& stage) {
    stage.look([&stage] {
        for (Flight& flight : stage.game().flights) {
            flight.inPlay = false;
        }
    });
    stage.skip();
    stage.skip();
}

TEST(ShiftOfTheDay, IsThatOfTheDateOnWhichItBegins) {
    const PlainProgram program;
    GameStage stage{800, "[Game]\nName=mary\n", program.folder(), FirstScene::shiftOfTheDay};
    UtcDate today;
    stage.look([&] {
        today = std::chrono::floor<std::chrono::days>(stage.shell().utcNow());
        EXPECT_EQ(stage.shell().day, today) << "it was asked for at the start";
        abandonGame(stage.shell());
    });
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("d").wait(20); });
    stage.look([&stage] { stage.clockGoesBy = std::chrono::days{1}; });
    pressEnter(stage);
    stage.look([&stage] {
        EXPECT_FALSE(stage.game().isRunning()) << "not what the player has not seen";
        EXPECT_TRUE(stage.isDialogOpen());
    });
    pressEnter(stage);
    stage.look([&] {
        EXPECT_EQ(stage.shell().day, today + std::chrono::days{1});
        EXPECT_TRUE(stage.game().isRunning());
    });
    stage.play();
}

TEST(ShiftOfTheDay, KeepsItsResultWhenTheNextGameDoesNotWaitForTheLastLine) {
    const PlainProgram program;
    GameStage stage{800, "[Game]\nName=mary\n[Day]\nDate=2026-11-25\nScore=4000\n", program.folder()};
    choose(stage);
    finish(stage);
    stage.todo([](Script& script) {
        script.key(Key::f, withAlt).type("n").wait(20).type("bob").key(Key::enter).wait(20);
    });
    pressEnter(stage); // the table
    stage.look([&stage] {
        EXPECT_TRUE(stage.isDialogOpen());
        EXPECT_NE(readText(stage.profile()).find("Score=4000"), std::string::npos) << "the best of today";
    });
    pressEnter(stage);
    stage.look([&stage] {
        EXPECT_TRUE(stage.game().isRunning());
        EXPECT_EQ(stage.shell().day, std::nullopt);
        EXPECT_EQ(stage.game().controllerName, "Bob");
        const std::string table = readText(stage.shell().highScorePath);
        EXPECT_NE(table.find("Mary"), std::string::npos) << "whose score it is";
        EXPECT_EQ(table.find("Bob"), std::string::npos);
    });
    stage.play();
}

TEST(ShiftOfTheDay, EndsWithALineToShareAndItsReplayProvesIt) {
    const PlainProgram program;
    GameStage stage{800, "[Game]\nName=mary\n", program.folder()};
    choose(stage);
    finish(stage);
    stage.look([&stage] {
        EXPECT_NE(readText(stage.profile()).find("[Day]"), std::string::npos) << "kept at the shift's end";
    });
    stage.wait(60000); // the last line scrolls
    stage.look([&stage] {
        const auto kept = listReplays(replayFolder(stage.shell()));
        ASSERT_EQ(kept.size(), 1U);
        const ReplayHeader& header = kept.front().replay.value().header;
        EXPECT_EQ(header.kind, ReplayKind::day);
        EXPECT_TRUE(provenOfTheDay(header).has_value());
        ReplayHeader other = header;
        ++other.seed;
        EXPECT_FALSE(provenOfTheDay(other).has_value());
    });
    stage.todo([](Script& script) { script.key(Key::enter).wait(60000); }); // name, table
    stage.todo([](Script& script) { script.key(Key::enter).wait(1000); });
    stage.look([&stage] {
        expectGolden(pictureOf(stage.backend.screen(), stage.desktop().activeWindow().bounds()),
                     "dialog_day_result");
    });
    stage.todo([](Script& script) { script.key(Key::c, withAlt).wait(20); });
    stage.look([&stage] {
        const std::string line = stage.backend.clipboard();
        EXPECT_NE(line.find("Ventrel Shift of the Day "), std::string::npos) << line;
        EXPECT_NE(line.find(" points"), std::string::npos) << line;
        EXPECT_NE(readText(stage.profile()).find("[Day]"), std::string::npos);
    });
    stage.play();
}

} // namespace
} // namespace ventrel
