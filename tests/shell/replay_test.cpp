// Replays in the window: every shift becomes one, is watched as it was played, and taken over.

#include "replay/playback.h"
#include "replay/replay_folder.h"
#include "replay/replay_reader.h"
#include "shell/game_flow.h"
#include "shell/plain_program.h"
#include "shell/quiet_shift.h"
#include "shell/replay_keeping.h"
#include "shell/steered_play.h"

namespace ventrel {
namespace {

/// A pilot's call with radio noise draws, as on a machine that is heard.
class SpeakingSounds final : public HeardSounds {
public:
    Result<bool> speak(const SpokenCall& call, RandomGenerator& random) override {
        if (call.noise && choices().voices) {
            random.next();
        }
        return HeardSounds::speak(call, random);
    }
    int voiceSetCount() const override { return 5; }
};

AirspacePtr airspaceOf(std::string_view file) {
    return loadAirport(std::filesystem::path(PROGRAM_FOLDER) / "apt" / file).value();
}

/// Keeps a shift that was played in a window of that width, until then.
Game recordAt1024(const std::filesystem::path& file, ClockSeconds until) {
    const ShiftSetup setup{.skill = Skill::hard, .layout = largeLayout};
    Game game{airspaceOf("amsterdam10.apt"), setup, RandomGenerator{7}};
    game.lastStepTime = 0_s;
    ReplayHeader header = replayHeader(game, setup, 7);
    header.airspaceFile = "amsterdam10.apt";
    ReplayWriter writer{game};
    EXPECT_TRUE(writer.begin(file, header).has_value());
    for (; game.clock < until; game.clock += stepInterval) {
        SimulationStep(game, writer);
    }
    return game;
}

class ReplayWindowTest : public ::testing::Test {
protected:
    PlainProgram program;
    SpeakingSounds sounds;
    GameStage stage{800, "[Game]\nName=mary\nSkill=3\n", program.folder(), FirstScene::console, &sounds};

    void choose(Key menu, std::string_view letters) {
        stage.todo([=](Script& script) { script.key(menu, withAlt).type(letters).wait(20); });
    }
    void press(Key key, Modifiers modifiers = {}, int times = 1) {
        stage.todo([=](Script& script) {
            for (int i = 0; i < times; ++i) {
                script.key(key, modifiers).wait(1);
            }
        });
    }
    /// Has the controller play Hard until that time, or to its end, voices being turned off and on.
    void playShift(ClockSeconds until) {
        stage.look([this] { stage.game().random.state = 7; });
        choose(Key::h, "w");
        press(Key::enter);
        press(Key::right, withControl, 4);
        stage.wait(2000);
        stage.look([this] { toggleVoices(); });
        press(Key::space, {}, 2); // some steps are passed over
        stage.wait(500);
        stage.look([this] { toggleVoices(); });
        press(Key::right, withControl, 4);
        waitFor([this, until] { return !stage.game().isRunning() || stage.game().clock >= until; });
    }
    void toggleVoices() {
        SoundChoices choices = sounds.choices();
        choices.voices = !choices.voices;
        sounds.choose(choices);
    }
    void waitFor(std::function<bool()> isSo) {
        stage.todo([this, isSo](Script& script) {
            if (!isSo()) {
                script.wait(200);
                waitFor(isSo);
            }
        });
    }
    void watchFile(const std::filesystem::path& file) {
        watchReplay(stage.shell(), prepareReplay(stage.shell(), readReplay(file).value()).value());
    }
    std::vector<KeptReplay> replays() { return listReplays(replayFolder(stage.shell())); }
    Replay latest() { return replays().at(0).replay.value(); }
};

/// What the log tells of a story, a line each.
std::vector<std::string> wordsOf(const ShiftStory& story) {
    std::vector<std::string> words;
    for (const LogEntry& entry : story.entries) {
        words.push_back(std::to_string(entry.clock.count()) + " " + entry.words);
    }
    return words;
}

TEST_F(ReplayWindowTest, AHardShiftIsWatchedAsItWasPlayed) {
    auto played = std::make_shared<ShiftStory>();
    auto state = std::make_shared<std::pair<int, std::uint32_t>>();
    playShift(36000_s);
    waitFor([this] { return stage.isDialogOpen(); });
    stage.look([=, this] {
        *played = stage.shell().log.story();
        *state = {stage.game().score, stage.game().random.state};
        ASSERT_EQ(latest().end.value().outcome, ReplayOutcome::handled);
        // The same without a window.
        Playback playback{latest()};
        Game game = replayedGame(playback.replay(), stage.game().airspace).value();
        SimulationEvents nobody;
        playback.playUntil(game, 36000_s, nobody);
        const auto proven = playback.proven(game);
        EXPECT_TRUE(proven.has_value()) << proven.error().text;
        EXPECT_EQ(game.random.state, state->second);
        stage.game().random.state = 4711; // of the next game
    });
    press(Key::enter);
    choose(Key::f, "r");
    stage.look([this] { ASSERT_TRUE(stage.isDialogOpen()); });
    press(Key::enter);
    stage.look([this] { ASSERT_TRUE(isReplaying(stage.shell())); });
    stage.wait(5000);
    press(Key::space);
    press(Key::right, withControl, 9);
    waitFor([this] { return stage.isDialogOpen(); });
    stage.look([=, this] {
        EXPECT_EQ(stage.game().score, state->first);
        EXPECT_EQ(wordsOf(stage.shell().log.story()), wordsOf(*played));
        EXPECT_EQ(stage.game().random.state, 4711U) << "the next game draws as if nothing had been watched";
        EXPECT_EQ(replays().size(), 1U) << "watching keeps nothing";
        EXPECT_EQ(shiftDate(stage.shell()), localTime(latest().header.begun)) << "not today's shift";
    });
    press(Key::enter);
    choose(Key::f, "r");
    press(Key::enter);
    stage.look([=, this] {
        jumpInReplay(stage.shell(), 1801_s);
        const auto all = wordsOf(*played);
        const auto some = wordsOf(stage.shell().log.story());
        ASSERT_LT(some.size(), all.size());
        EXPECT_TRUE(std::equal(some.begin(), some.end(), all.begin())) << "with what the ticker told beside";
    });
    // One that tells of another end.
    stage.look([this] {
        abandonGame(stage.shell());
        const std::filesystem::path file = replays().at(0).file;
        std::string text = readText(file);
        const char last = text.at(text.size() - 2);
        writeText(file, text.replace(text.size() - 2, 1, last == '1' ? "2" : "1"));
        watchFile(file);
        jumpInReplay(stage.shell(), 99'999_s);
    });
    waitFor([this] { return stage.isDialogOpen(); });
    press(Key::enter); // the score
    stage.look([this] { EXPECT_TRUE(stage.isDialogOpen()) << "it did not come out so"; });
    press(Key::enter);
    stage.look([this] { EXPECT_FALSE(stage.isDialogOpen()); });
    stage.play();
}

TEST_F(ReplayWindowTest, OneThatWasCutOffIsJumpedInAndTakenOver) {
    playShift(900_s);
    auto events = std::make_shared<std::size_t>();
    stage.look([=, this] {
        // As the file of a program that was killed here.
        const std::filesystem::path folder = replayFolder(stage.shell());
        std::filesystem::copy_file(stage.shell().replayWriter.file(), folder / "killed.replay");
        *events = readReplay(folder / "killed.replay").value().events.size();
        abandonGame(stage.shell());
        watchFile(folder / "killed.replay");
        CaptionsAdd(stage.shell().captions, "of another time");
    });
    stage.look([this] {
        jumpInReplay(stage.shell(), 600_s);
        EXPECT_TRUE(stage.shell().captions.lines.empty());
    });
    stage.wait(3000);
    stage.look([this] {
        EXPECT_GE(stage.game().clock, 600_s);
        EXPECT_FALSE(stage.shell().replayWatch.playback->deviation().has_value());
        abandonGame(stage.shell());
        EXPECT_EQ(stage.shell().log.story().end, ShiftEnd::left) << "the player has given nothing up";
        watchFile(replayFolder(stage.shell()) / "killed.replay");
        jumpInReplay(stage.shell(), 300_s);
        EXPECT_EQ(stage.game().clock, 300_s);
        takeOver(stage.shell());
    });
    stage.skipTo(450_s);
    stage.look([=, this] {
        EXPECT_FALSE(isSteered(stage.shell()));
        EXPECT_EQ(stage.shell().shiftKind, ShiftKind::practice);
        const auto gone = readReplay(stage.shell().replayWriter.file()).value();
        EXPECT_EQ(gone.header.kind, ReplayKind::practice);
        EXPECT_LT(gone.events.size(), *events);
        Playback playback{gone};
        Game game = replayedGame(gone, stage.game().airspace).value();
        SimulationEvents nobody;
        playback.playUntil(game, stage.game().clock, nobody);
        EXPECT_FALSE(playback.deviation().has_value());
        EXPECT_EQ(game.random.state, stage.game().random.state);
        EXPECT_EQ(game.score, stage.game().score);
    });
    stage.play();
}

TEST_F(ReplayWindowTest, OneOfTheOtherWidthIsWatchedAndTakenOver) {
    const std::filesystem::path file = program.folder() / "wide.replay";
    const auto recorded = std::make_shared<Game>(recordAt1024(file, 900_s));
    stage.look([=, this] {
        watchFile(file);
        EXPECT_EQ(stage.game().airspace->picture, airspaceOf("amsterdam8.apt")->picture);
        for (const Vor& vor : stage.game().vors()) {
            EXPECT_EQ((Cell{vor.pixel.x / 11, vor.pixel.y / 11}), vor.cell) << vor.ident;
        }
        jumpInReplay(stage.shell(), 890_s);
        EXPECT_EQ(stage.game().random.state, recorded->random.state);
        EXPECT_EQ(stage.shell().replayWatch.playback->deviation(), std::nullopt);
        takeOver(stage.shell());
    });
    stage.skipTo(1200_s);
    stage.look([=, this] {
        const Replay gone = readReplay(stage.shell().replayWriter.file()).value();
        EXPECT_EQ(gone.header.width, 1024);
        Playback playback{gone};
        Game game = replayedGame(gone, recorded->airspace).value();
        SimulationEvents nobody;
        playback.playUntil(game, stage.game().clock, nobody);
        EXPECT_EQ(playback.deviation(), std::nullopt);
        EXPECT_EQ(game.random.state, stage.game().random.state);
    });
    stage.play();
}

TEST_F(ReplayWindowTest, ItsDialogLeavesARunningShiftAloneUntilAReplayIsChosen) {
    stage.look([this] {
        std::filesystem::create_directories(replayFolder(stage.shell()));
        recordAt1024(replayFolder(stage.shell()) / "wide.replay", 60_s);
    });
    stage.startNewGame();
    stage.skipTo(120_s);
    for (const auto& [menu, item] :
         {std::pair{Key::f, "r"}, std::pair{Key::f, "d"}, std::pair{Key::h, "w"}}) {
        choose(menu, item);
        stage.look([this] { ASSERT_TRUE(stage.isDialogOpen()); });
        press(Key::escape);
        stage.look([this, item] { EXPECT_TRUE(stage.game().isRunning()) << item; });
    }
    choose(Key::f, "r");
    press(Key::enter); // the only one: the running shift is not listed
    stage.look([this] { EXPECT_TRUE(stage.game().isRunning()) << "not before the player agrees"; });
    press(Key::enter);
    stage.look([this] {
        EXPECT_TRUE(isReplaying(stage.shell()));
        EXPECT_EQ(replays().size(), 2U);
        EXPECT_EQ(latest().end.value().outcome, ReplayOutcome::givenUp);
    });
    stage.play();
}

TEST_F(ReplayWindowTest, OneThatCannotBePlayedLeavesTheShiftAndOneThatPartsIsToldOf) {
    const auto change = [this](std::string_view lineBegins, std::string_view end) {
        const std::filesystem::path file = replayFolder(stage.shell()) / "wide.replay";
        std::string text = readText(file);
        const auto lineEnd = text.find('\n', text.find("\n" + std::string(lineBegins)) + 1);
        writeText(file, text.replace(lineEnd - 1, 1, end));
    };
    stage.look([=, this] {
        std::filesystem::create_directories(replayFolder(stage.shell()));
        recordAt1024(replayFolder(stage.shell()) / "wide.replay", 300_s);
        change("possible ", "1");
    });
    stage.startNewGame();
    choose(Key::f, "r");
    press(Key::enter);
    stage.look([this] {
        EXPECT_TRUE(stage.isDialogOpen());
        EXPECT_TRUE(stage.game().isRunning());
    });
    press(Key::enter);
    stage.look([=, this] {
        EXPECT_TRUE(stage.game().isRunning()) << "nobody was asked to give it up";
        std::filesystem::remove(replayFolder(stage.shell()) / "wide.replay");
        recordAt1024(replayFolder(stage.shell()) / "wide.replay", 300_s);
        change("60 step ", "7");
        abandonGame(stage.shell());
        watchFile(replayFolder(stage.shell()) / "wide.replay");
        jumpInReplay(stage.shell(), 50_s);
    });
    stage.wait(1000);
    stage.look([this] { EXPECT_FALSE(stage.isDialogOpen()); });
    stage.wait(10000);
    stage.look([this] { EXPECT_TRUE(stage.isDialogOpen()) << "the shift is another one now"; });
    press(Key::enter);
    stage.wait(20000);
    stage.look([this] {
        EXPECT_FALSE(stage.isDialogOpen()) << "it is told once";
        EXPECT_TRUE(isReplaying(stage.shell()));
    });
    stage.play();
}

TEST_F(ReplayWindowTest, OnlyTheLatestTwentyStayButThoseWithAName) {
    stage.look([this] {
        const std::filesystem::path folder = replayFolder(stage.shell());
        std::filesystem::create_directories(folder);
        for (int i = 10; i < 40; ++i) {
            writeText(folder / ("shift 2001-01-01 10-00-" + std::to_string(i) + ".replay"), "");
        }
        ASSERT_TRUE(keepReplayAs(folder / "shift 2001-01-01 10-00-10.replay", "mine").has_value());
        EXPECT_FALSE(keepReplayAs(folder / "shift 2001-01-01 10-00-11.replay", "mine").has_value());
        EXPECT_FALSE(keepReplayAs(folder / "shift 2001-01-01 10-00-11.replay", "../x").has_value());
    });
    stage.startNewGame();
    stage.look([this] {
        EXPECT_EQ(replays().size(), 21U);
        EXPECT_TRUE(std::filesystem::exists(replayFolder(stage.shell()) / "mine.replay"));
    });
    stage.play();
}

TEST_F(ReplayWindowTest, AFolderThatCannotBeMadeIsToldOnceAndDisturbsNothing) {
    stage.look([this] { writeText(replayFolder(stage.shell()), "a file"); });
    stage.startNewGame();
    stage.look([this] { EXPECT_TRUE(stage.isDialogOpen()); });
    press(Key::enter);
    stage.look([this] { abandonGame(stage.shell()); });
    stage.startNewGame();
    stage.look([this] { EXPECT_FALSE(stage.isDialogOpen()); });
    stage.play();
}

} // namespace
} // namespace ventrel
