// The program's start with its opening: what it needs, and how it comes to the console.

#include "shell/game_stage.h"
#include "shell/plain_program.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

class OpeningTest : public ::testing::Test {
protected:
    PlainProgram program;
    std::unique_ptr<GameStage> stage;

    void begin(std::string_view options = "[Game]\nName=mary\nSkill=1\n") {
        stage = std::make_unique<GameStage>(800, options, program.folder(), FirstScene::opening);
    }
    bool isConsoleShown() { return stage->shell().mainWindow.isActive(); }
    void expectConsole(bool shown, const std::string& when) {
        stage->look([this, shown, when] { EXPECT_EQ(isConsoleShown(), shown) << when; });
    }
};

TEST_F(OpeningTest, ComesToTheConsoleByItself) {
    begin();
    stage->wait(12900);
    expectConsole(false, "the curtain hangs for 13 seconds");
    stage->look([this] {
        EXPECT_EQ(toColour(stage->backend.screen().at(400, 300)), Colour::rgb(0x90, 0x90, 0x98));
        EXPECT_EQ(stage->sounds.heard, std::vector<std::string>{"snd\\scroll.snd"});
    });
    stage->wait(1000);
    expectConsole(false, "the title stays for two");
    stage->wait(1500);
    expectConsole(true, "15 seconds");
    stage->look([this] {
        const std::vector<std::string> expected{"snd\\scroll.snd", "mci\\fade.mci",
                                                "stop effects",    "stop music",
                                                "stop music",      "mci\\idle.mci again and again"};
        EXPECT_EQ(stage->sounds.heard, expected);
    });
    stage->play();
}

TEST_F(OpeningTest, IsLeftOutWhereItsSoundDoesNotStart) {
    begin("[Options]\nEffects=0\n");
    stage->wait(50);
    expectConsole(true, "nobody wants effects");
    stage->play();
}

TEST_F(OpeningTest, ADamagedTitleIsToldOfAndMissed) {
    writeText(program.folder() / "grf/splash.grf", "no picture");
    begin();
    stage->wait(50);
    stage->look([this] { EXPECT_EQ(stage->backend.beeps(), std::vector{MessageIcon::stop}); });
    stage->todo([](Script& script) { script.key(Key::enter).wait(50); });
    expectConsole(false, "it opens without");
    stage->todo([](Script& script) { script.key(Key::escape).wait(50); });
    expectConsole(true, "after Esc");
    stage->startNewGame();
    stage->play();
}

class MissingOpeningTest : public OpeningTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(MissingOpeningTest, IsToldByNameAndNothingStarts) {
    const fs::path file = program.folder() / GetParam();
    fs::remove(file);
    begin();
    Script(stage->backend).wait(10).key(Key::enter);
    const auto started = stage->program().startUp();
    ASSERT_FALSE(started);
    EXPECT_EQ(started.error().text, "Can't open the file " + file.string() + ". Please re-install.");
    EXPECT_EQ(stage->backend.beeps(), std::vector{MessageIcon::stop});
}

INSTANTIATE_TEST_SUITE_P(EachFile, MissingOpeningTest,
                         ::testing::Values("grf/splash.grf", "snd/scroll.snd", "mci/fade.mci"));

} // namespace
} // namespace ventrel
