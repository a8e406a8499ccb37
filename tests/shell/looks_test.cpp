// What a busy shift looks like: the scope, the strips and the panel at both sizes of the window.
//
// The console is plain here, so that the pictures show what the program draws and stay small.

#include <array>

#include "golden.h"
#include "resources/aid_rows.h"
#include "shell/game_stage.h"
#include "shell/plain_program.h"

namespace ventrel {
namespace {

/// A flight of every kind of alert, and a heavy one on the panel.
void makeRemarkable(GameStage& stage) {
    std::array alerts{Alert::nearMiss, Alert::success, Alert::failure};
    std::size_t marked = 0;
    for (Flight& flight : stage.game().flights) {
        if (flight.isOnScope() && marked < alerts.size()) {
            flight.alert = alerts[marked++];
        }
    }
    EXPECT_EQ(marked, alerts.size());
    const auto heavy = std::ranges::find_if(
        stage.game().flights, [](const Flight& flight) { return flight.isOnScope() && flight.heavy; });
    ASSERT_NE(heavy, stage.game().flights.end());
    stage.selectByStrip(FlightIndex{static_cast<int>(heavy - stage.game().flights.begin())});
}

void expectLooks(int width, const std::string& name) {
    TempFolder folder;
    makePlainProgram(folder.path());
    GameStage stage(width,
                    "[Options]\nShowGrid=1\nMapDetails=0\nAirportSelect=8\n[Game]\nName=mary\nSkill=3\n",
                    folder.path());
    stage.startNewGame(3);
    stage.skipTo(600_s);
    stage.todo([&](Script&) { makeRemarkable(stage); });
    // Away from a flight's first seconds, in which it blinks, and from the ticker.
    stage.look([&] {
        ScrollerClear(stage.shell().scroller);
        RadarRepaint(stage.shell().radar);
    });
    stage.wait(1);
    stage.look([&] {
        const Bitmap& screen = stage.backend.screen();
        expectGolden(pictureOf(screen, stage.shell().radar.window.bounds()), name + "_scope");
        expectGolden(pictureOf(screen, stage.shell().strips.window.bounds()), name + "_strips");
        expectGolden(pictureOf(screen, Rect::at(stage.onPanel({}), panelLayout.size)), name + "_panel");
    });
    stage.play();
}

TEST(Looks, ABusySmallConsole) {
    expectLooks(800, "busy_800");
}

TEST(Looks, ABusyLargeConsole) {
    expectLooks(1024, "busy_1024");
}

TEST(Looks, ABusySmallConsoleWithTheAids) {
    TempFolder folder;
    makePlainProgram(folder.path());
    std::string profile = "[Game]\nName=mary\nSkill=3\n[Options]\nMapDetails=0\nAirportSelect=8\n";
    for (const AidRow& aid : aidRows) {
        // Where tidy tags stand hangs on their letters, which are not the same on every machine.
        profile += std::string(aid.key) + (aid.value == &Options::aidTidyTags ? "=0\n" : "=1\n");
    }
    GameStage stage(800, profile, folder.path());
    stage.startNewGame(3);
    stage.skipTo(600_s);
    stage.todo([&](Script&) { makeRemarkable(stage); });
    stage.todo([](Script& script) { script.key(Key::keypad4).key(Key::keypadPlus).wait(50); });
    stage.look([&] {
        ScrollerClear(stage.shell().scroller);
        RadarRepaint(stage.shell().radar);
    });
    stage.wait(1);
    stage.look([&] { expectGolden(pictureOf(stage.backend.screen(), {0, 0, 800, 600}), "busy_aids"); });
    stage.play();
}

TEST(Looks, TheTopBarAndTheButtonsOfTheStrips) {
    TempFolder folder;
    makePlainProgram(folder.path());
    GameStage stage(800, "[Options]\nMapDetails=0\nAirportSelect=8\n[Game]\nName=mary\nSkill=3\n",
                    folder.path());
    stage.startNewGame(3);
    stage.wait(5000);
    stage.look([&] { expectGolden(pictureOf(stage.backend.screen(), {0, 0, 800, 50}), "top_bar_start"); });
    stage.skipTo(600_s);
    stage.todo([&](Script&) { makeRemarkable(stage); });
    stage.wait(2500);
    stage.look([&] {
        expectGolden(pictureOf(stage.backend.screen(), {0, 0, 800, 50}), "top_bar_busy");
        expectGolden(pictureOf(stage.backend.screen(), {600, 60, 650, 450}), "strip_buttons");
    });
    stage.play();
}

} // namespace
} // namespace ventrel
