#include "radar_stage.h"

#include <utility>

#include "radar/clouds.h"

namespace ventrel {

namespace {

constexpr Size cloudSize{40, 30};
constexpr std::size_t mostFlights = 99;

Size windowSize(const RadarLayout& layout) {
    return layout.windowWidth == largeRadarLayout.windowWidth ? Size{1024, 768} : Size{800, 600};
}

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
        .clockNow = [&stage] { return stage.clock; },
        .isPaused = [&stage] { return stage.paused; },
        .tickScroller = [&stage] { ++stage.scrollerTurns; },
        .setLamp = [=](LampLevel level) { write("lamp " + number(level)); },
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
                write("select " + number(hit.flight) + " place " + number(hit.listPlace));
            },
        .showOrderMenu = [=](Point screen) { write("menu " + number(screen.x) + "," + number(screen.y)); }};
}

} // namespace

RadarStage::RadarStage(const RadarLayout& layout)
    : backend(windowSize(layout)), desktop(backend, windowSize(layout)),
      fonts(std::string(PROGRAM_FOLDER) + "/fonts", [](std::string_view, MessageIcon) {}),
      radar{.desktop = desktop,
            .sources = {game, options, fonts, hand},
            .callbacks = writingDown(*this),
            .layout = layout} {
    main = desktop.create({.bounds = desktop.area(), .background = black});
    RadarCreate(radar, main, plainClouds());
    game.gameRunning = true;
    game.flights.reserve(mostFlights); // what `fly` hands out stays where it is
    game.airport.flightColour = flightGreen;
    game.airport.selectedFlightColour = selectedWhite;
    game.airport.routeColour = routeBlue;
    options.radarSweep = 0;
    buildMap();
}

Flight& RadarStage::fly(Cell cell, int heading) {
    Flight flight;
    flight.inPlay = true;
    flight.activatedAt = 1;
    flight.callsign = "AA" + std::to_string(game.planeCount());
    flight.plan[0] = {.altitude = 5, .heading = heading};
    flight.plan[0].setCell(cell);
    game.flights.push_back(std::move(flight));
    return game.flights.back();
}

void RadarStage::buildMap() {
    Bitmap frame({radar.layout.scopeSize, radar.layout.scopeSize});
    Canvas(frame).fill(frame.bounds(), frameColour);
    RadarBuildMap(radar, frame);
}

void RadarStage::frame() {
    RadarRepaint(radar);
    radar.window.update();
}

void RadarStage::play() {
    script.then([this] { desktop.quit(); });
    desktop.run();
}

Lines RadarStage::take() {
    return std::exchange(log, {});
}

int RadarStage::count(Colour colour, const Rect& area) const {
    const Canvas screen = radar.window.canvas();
    int found = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            found += screen.pixel({x, y}) == colour ? 1 : 0;
        }
    }
    return found;
}

Bitmap RadarStage::shown() const {
    const Canvas screen = radar.window.canvas();
    Bitmap picture(radar.window.size());
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.at(x, y) = toPixel(screen.pixel({x, y}));
        }
    }
    return picture;
}

Bitmap RadarStage::sent() const {
    return crop(backend.screen(), radar.window.bounds());
}

Bitmap crop(const Bitmap& picture, const Rect& area) {
    Bitmap part(area.size());
    Canvas(part).draw(part.bounds(), picture, area);
    return part;
}

} // namespace ventrel
