#include "radar_stage.h"

#include "radar/clouds.h"

namespace ventrel {

namespace {

/// A plain white box with a transparent border.
std::vector<Bitmap> plainClouds() {
    Bitmap cloud(cloudSize);
    Canvas canvas(cloud);
    canvas.fill(cloud.bounds(), cloudTransparent);
    canvas.fill(cloud.bounds().grownBy(-2), Colour::rgb(200, 200, 210));
    return std::vector<Bitmap>(cloudPictureCount, cloud);
}

RadarCallbacks writingDown(RadarStage& stage) {
    const auto number = [](auto value) { return std::to_string(static_cast<int>(value)); };
    const auto write = [&stage](std::string line) { stage.log.push_back(std::move(line)); };
    return {
        .isPaused = [&stage] { return stage.paused; },
        .makeFrame =
            [=, &stage] {
                SimulationEvents nobody;
                makeFrame(stage.game, nobody);
                write("frame");
            },
        .updateBlips = [=] { write("blips"); },
        .reportScore = [=] { write("report"); },
        .resetTouch =
            [=, &stage] {
                stage.touched = false;
                write("reset");
            },
        .isTouched = [&stage] { return stage.touched; },
        .select =
            [=, &stage](const FlightHit& hit) {
                stage.game.flight(hit.flight).selected = true;
                write("select " + number(hit.flight.number()) + " place " + number(hit.listPlace));
            },
        .showOrderMenu = [=](Point screen) { write("menu " + number(screen.x) + "," + number(screen.y)); }};
}

} // namespace

RadarStage::RadarStage(const RadarLayout& layout)
    : ConsoleStage(layout.windowWidth == largeWindow.width ? largeWindow : smallWindow),
      radar{.desktop = desktop,
            .sources = {game, options, fonts, hand},
            .callbacks = writingDown(*this),
            .layout = layout} {
    RadarCreate(radar, main, plainClouds());
    use({});
    game.layout = layout.windowWidth == largeWindow.width ? largeLayout : smallLayout;
    game.cloudCover = true;
    options.radarSweep = 0;
    buildMap();
}

} // namespace ventrel
