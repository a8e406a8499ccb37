// The options file while the program runs: when it is written, and what is never written over.

#include "base/profile_file.h"
#include "resources/command_ids.h"
#include "shell/commands.h"
#include "shell/game_stage.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

int inFile(GameStage& stage, std::string_view key) {
    return ProfileFile::read(stage.profile())->integer("Options", key, -5);
}

void choose(GameStage& stage, int command) {
    stage.todo([&stage, command](Script& script) {
        stage.shell().mainWindow.post([&stage, command] { onCommand(stage.shell(), command); });
        script.wait(1);
    });
}

TEST(OptionsWhileRunning, HoldsEveryChangeFromTheMomentItIsMade) {
    GameStage stage(1024, "; mine\n[Options]\nMusic=1\n");
    choose(stage, command::music);
    stage.look([&] {
        EXPECT_EQ(inFile(stage, "Music"), 0);
        EXPECT_TRUE(readText(stage.profile()).starts_with("; mine\n"));
    });
    choose(stage, command::fullScreen);
    stage.look([&] { EXPECT_EQ(inFile(stage, "Windowed"), 1); });
    stage.play();
}

TEST(OptionsWhileRunning, WhatHindersItsSavingIsToldOnce) {
    GameStage stage;
    stage.look([&] {
        fs::remove(stage.profile());
        fs::create_directory(stage.profile());
    });
    choose(stage, command::grid);
    stage.look([&] { EXPECT_TRUE(stage.isDialogOpen()); });
    stage.todo([](Script& script) { script.key(Key::enter).wait(1); });
    choose(stage, command::grid);
    stage.look([&] { EXPECT_EQ(stage.backend.beeps(), std::vector{MessageIcon::exclamation}); });
    stage.play();
}

TEST(OptionsWhileRunning, IsLeftAloneAfterAFailedReadEvenWhenItCouldBeReadByThen) {
    const TempFolder folder;
    const fs::path file = folder / "ventrel.ini";
    writeText(file, std::string(ProfileFile::mostBytes + 1, ';'));
    OptionsStore store(file);
    EXPECT_EQ(store.atStart().toText(), "");
    writeText(file, "[Options]\nMusic=0\n");
    store.update([](ProfileFile& profile) { profile.set("Options", "Music", "1"); });
    EXPECT_EQ(readText(file), "[Options]\nMusic=0\n");
    const auto told = store.takeFailure();
    ASSERT_TRUE(told);
    EXPECT_NE(told->text.find(file.string() + " is too large: at most 1048576 bytes"), std::string::npos);
    EXPECT_FALSE(store.takeFailure());
}

TEST(OptionsWhileRunning, ThatTheyCouldNotBeReadIsToldBeforeAnythingElse) {
    GameStage stage(800, std::string(ProfileFile::mostBytes + 1, ';'));
    stage.look([&] {
        EXPECT_TRUE(stage.isDialogOpen());
        EXPECT_EQ(stage.backend.beeps(), std::vector{MessageIcon::exclamation});
    });
    stage.todo([](Script& script) { script.key(Key::enter).wait(1); });
    stage.play();
}

TEST(OptionsWhileRunning, WithoutAPlaceForItThePlayerIsToldAtTheFirstSave) {
    OptionsStore store({});
    EXPECT_FALSE(store.takeFailure());
    store.update([](ProfileFile& profile) { profile.set("Options", "Music", "1"); });
    EXPECT_TRUE(store.takeFailure());
}

TEST(OptionsWhileRunning, ARequiredEndAsksNothingWhateverIsOpen) {
    GameStage stage;
    stage.startNewGame();
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("n").wait(1); }); // a question
    stage.look([&] { EXPECT_TRUE(stage.isDialogOpen()); });
    stage.todo([](Script& script) { script.window(WindowEvent::endRequired).wait(1); });
    stage.look([&] { FAIL() << "still here"; });
    stage.play();
}

} // namespace
} // namespace ventrel
