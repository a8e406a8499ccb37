#include "console_stage.h"

#include <utility>

namespace ventrel {

namespace {

constexpr std::size_t mostFlights = 99;

Vor point(std::string ident, bool isAirport) {
    Vor vor;
    vor.ident = std::move(ident);
    vor.isAirport = isAirport;
    vor.isExit = !isAirport;
    return vor;
}

} // namespace

ConsoleStage::ConsoleStage(Size size)
    : backend(size), desktop(backend, size), fonts(std::string(PROGRAM_FOLDER) + "/fonts"), console(size) {
    Canvas(console).fill(console.bounds(), consoleGrey);
    main = desktop.create({.bounds = desktop.area(), .background = black});
    game.phase = Phase::running;
    game.clock = 100_s;
    game.lastStepTime = game.clock;
    use({point("ALB", false), point("JFK", true), point("SEA", false)});
    game.flights.reserve(mostFlights); // what `fly` hands out stays where it is
}

void ConsoleStage::use(std::vector<Vor> points) {
    game.airspace = std::make_shared<const Airspace>(Airspace{.name = {},
                                                              .layoutWidth = 0,
                                                              .routeColour = routeBlue,
                                                              .selectedFlightColour = selectedWhite,
                                                              .flightColour = flightGreen,
                                                              .points = {},
                                                              .picture = {}});
    game.points = std::make_shared<const std::vector<Vor>>(std::move(points));
}

Flight& ConsoleStage::fly(int heading) {
    Flight flight;
    flight.inPlay = true;
    flight.activatedAt = 30_s;
    flight.scheduledAt = 30_s;
    flight.destination = PointIndex{1};
    flight.callsign = std::string_view{"UA" + std::to_string(game.planeCount())};
    flight.plan[0] = {.altitude = 5, .heading = heading};
    game.flights.push_back(std::move(flight));
    return game.flights.back();
}

void ConsoleStage::countListed() {
    game.listedCount = 0;
    for (const Flight& flight : game.flights) {
        game.listedCount += (flight.inPlay && flight.isActive()) || flight.announced ? 1 : 0;
    }
}

void ConsoleStage::play() {
    script.then([this] { desktop.quit(); });
    desktop.run();
}

Bitmap ConsoleStage::picture(const Window& window) const {
    window.update();
    const Canvas screen = window.canvas();
    Bitmap shown(window.size());
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            shown.at(x, y) = toPixel(screen.pixel({x, y}));
        }
    }
    return shown;
}

int count(const Bitmap& picture, Colour colour, const Rect& area) {
    int found = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            found += picture.at(x, y) == toPixel(colour) ? 1 : 0;
        }
    }
    return found;
}

Bitmap crop(const Bitmap& picture, const Rect& area) {
    Bitmap part(area.size());
    Canvas(part).draw(part.bounds(), picture, area);
    return part;
}

} // namespace ventrel
