// What a busy shift looks like: the scope, the strips and the panel at both sizes of the window.
//
// The console is plain here, so that the pictures show what the program draws and stay small.

#include <array>

#include "golden.h"
#include "platform/canvas/png_writer.h"
#include "radar/clouds.h"
#include "shell/game_stage.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

constexpr Colour consoleColour = Colour::rgb(0x50, 0x58, 0x5A);
constexpr Colour cloudColour = Colour::rgb(0xB0, 0xB4, 0xB8);
constexpr Size cloudSize{96, 56};
constexpr Size lampSize{28, 28};
constexpr Size stripButtonSize{20, 12};
constexpr Size pointerSize{32, 32};

Bitmap plain(Size size, Colour colour) {
    Bitmap bitmap(size);
    Canvas(bitmap).fill(bitmap.bounds(), colour);
    return bitmap;
}

Bitmap plainCloud() {
    Bitmap cloud = plain(cloudSize, cloudTransparent);
    Canvas(cloud).filledEllipse(cloud.bounds(), cloudColour, cloudColour);
    return cloud;
}

/// A program folder with the airspaces of the real one and pictures without any art.
void makePlainProgram(const fs::path& folder) {
    fs::create_directory(folder / "grf");
    fs::create_directory_symlink(fs::path(PROGRAM_FOLDER) / "apt", folder / "apt");
    const auto write = [&](const std::string& name, const Bitmap& picture) {
        ASSERT_TRUE(writePng(folder / "grf" / (name + ".grf"), picture));
    };
    write("bkgnd8", plain({800, 600}, consoleColour));
    write("bkgnd10", plain({1024, 768}, consoleColour));
    write("r8frame", plain({539, 539}, consoleColour));
    write("r10frame", plain({686, 686}, consoleColour));
    for (const std::string colour : {"green", "yellow", "red"}) {
        write("lamp_" + colour + "_dark", plain(lampSize, Colour::rgb(40, 40, 40)));
        write("lamp_" + colour + "_bright", plain(lampSize, Colour::rgb(250, 250, 250)));
    }
    for (int i = 0; i < cloudPictureCount; ++i) {
        write("cloud" + std::to_string(i), plainCloud());
    }
    write("strip_button_up", plain(stripButtonSize, Colour::rgb(150, 150, 150)));
    write("strip_button_down", plain(stripButtonSize, Colour::rgb(250, 160, 80)));
    write("pointer_hand", plain(pointerSize, cloudTransparent));
    write("pointer_arrow", plain(pointerSize, cloudTransparent));
}

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
    stage.selectByStrip(static_cast<FlightIndex>(heavy - stage.game().flights.begin()));
}

void expectLooks(int width, const std::string& name) {
    TempFolder folder;
    makePlainProgram(folder.path());
    GameStage stage(width, "[Options]\nShowGrid=1\nAirportSelect=2\n[Game]\nName=mary\nSkill=3\n",
                    folder.path());
    stage.startNewGame(3);
    stage.skipTo(600);
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
