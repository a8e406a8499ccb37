// What a busy shift looks like: the scope, the strips and the panel at both sizes of the window.
//
// The console is plain here, so that the pictures show what the program draws and stay small.

#include <array>

#include "golden.h"
#include "shell/game_stage.h"
#include "shell/plain_program.h"

namespace ventrel {
namespace {

Bitmap crop(const Bitmap& screen, const Rect& part) {
    Bitmap piece(part.size());
    Canvas(piece).draw(piece.bounds(), screen, part);
    return piece;
}

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
    GameStage stage(width, "[Options]\nShowGrid=1\nAirportSelect=2\n[Game]\nName=mary\nSkill=3\n",
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
        expectGolden(crop(screen, stage.shell().radar.window.bounds()), name + "_scope");
        expectGolden(crop(screen, stage.shell().strips.window.bounds()), name + "_strips");
        expectGolden(crop(screen, Rect::at(stage.onPanel({}), panelLayout.size)), name + "_panel");
    });
    stage.play();
}

TEST(Looks, ABusySmallConsole) {
    expectLooks(800, "busy_800");
}

TEST(Looks, ABusyLargeConsole) {
    expectLooks(1024, "busy_1024");
}

} // namespace
} // namespace ventrel
