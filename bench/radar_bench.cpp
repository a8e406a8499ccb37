// What the moving displays cost: radar, sweep, strips and control panel, on the larger screen.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <string>

#include "controls/control_panel.h"
#include "controls/strips.h"
#include "platform/headless/headless_backend.h"
#include "platform/images/image.h"
#include "radar/radar_window.h"
#include "sim/airspace.h"

namespace {

using namespace ventrel;

constexpr Size screen{1024, 768};
constexpr int flightCount = 99;
constexpr int cloudCount = 10;
constexpr int routeSteps = 30;
constexpr Colour consoleGrey = Colour::rgb(110, 112, 108);

std::vector<Bitmap> cloudPictures() {
    std::vector<Bitmap> clouds(cloudPictureCount);
    for (int i = 0; i < cloudPictureCount; ++i) {
        Image image;
        ImageLoadFile(image, PROGRAM_FOLDER "/grf/cloud" + std::to_string(i) + ".grf", ImageFormat::png);
        ImageToBitmap(image, clouds[static_cast<std::size_t>(i)]);
    }
    return clouds;
}

/// Somewhere on the scope, another cell for every flight, with a queued path ahead.
Flight flightNumber(int number) {
    Flight flight;
    flight.inPlay = true;
    flight.activatedAt = 1_s;
    flight.scheduledAt = number * stepInterval;
    flight.callsign = std::string_view{"UA" + std::to_string(100 + number)};
    Cell cell{8 + number * 7 % 33, 8 + number * 11 % 33};
    const int heading = number % 8 * headingStep;
    flight.plan = {{.altitude = 5, .heading = heading, .directTarget = PointIndex{0}}};
    for (int k = 0; k < routeSteps; ++k) {
        flight.plan.last().cell = cell;
        flight.plan.extend();
        cell = stepCell(cell, k < routeSteps / 2 ? heading : turned(heading, headingStep));
    }
    return flight;
}

/// A crowded game in its window.
struct Play {
    Play() {
        game.phase = Phase::running;
        Vor fix;
        fix.ident = "JFK";
        game.points = std::make_shared<const std::vector<Vor>>(std::vector<Vor>{fix});
        game.layout = largeLayout;
        game.clock = 101_s;
        for (int i = 0; i < flightCount; ++i) {
            game.flights.push_back(flightNumber(i));
        }
        game.listedCount = flightCount;
        refillClouds();
        RadarCreate(radar, main, cloudPictures());
        Bitmap console(screen);
        Canvas(console).fill(console.bounds(), consoleGrey);
        StripsCreate(strips, main, screen);
        CtrlCreate(panel, main, console);
        RadarBuildMap(radar, console);
        StripsRebuild(strips);
        CtrlSetFlight(panel, FlightIndex{0});
        desktop.pumpMessages();
    }

    void refillClouds() {
        game.clouds.clear();
        for (int i = 0; i < cloudCount; ++i) {
            const Point corner{i * 97 % 600, 50 + i * 131 % 500};
            game.clouds.push_back({.isShown = true, .start = corner, .position = corner, .image = i});
        }
    }

    HeadlessBackend backend{screen};
    Desktop desktop{backend, screen};
    FontSet fonts{PROGRAM_FOLDER "/fonts"};
    Game game;
    Options options;
    CursorImage hand;
    CursorImage arrow;
    Window main = desktop.create({.bounds = Rect::at({}, screen), .background = Colour::rgb(90, 90, 90)});
    RadarWindow radar{.desktop = desktop,
                      .sources = {game, options, fonts, hand},
                      .callbacks = {.isPaused = [] { return false; },
                                    .makeFrame = [] {},
                                    .updateBlips = [] {},
                                    .reportScore = [] {},
                                    .resetTouch = [] {},
                                    .isTouched = [] { return false; },
                                    .select = [](const FlightHit&) {},
                                    .showOrderMenu = [](Point) {}},
                      .layout = largeRadarLayout};
    Strips strips{.sources = {game, options, fonts, arrow}, .callbacks = {.press = [](int) {}}};
    ControlPanel panel{.sources = {game, options, fonts, hand, arrow},
                       .callbacks = {.click = [] {}, .enableExec = [](bool) {}}};
};

/// All of the scope painted anew, 99 flights with tags and routes under 10 clouds, until it is in the
/// window's picture.
void RadarFrame(benchmark::State& state) {
    Play play;
    for (auto _ : state) {
        play.refillClouds(); // they would drift away
        RadarRepaint(play.radar);
        play.radar.window.update();
    }
}
BENCHMARK(RadarFrame)->Name("RadarFrame/99flights");

/// The same over the map of an airspace, with its picture (1) or the plain scope (0).
void RadarFrameOnMap(benchmark::State& state) {
    Play play;
    play.game.airspace = loadAirport(PROGRAM_FOLDER "/apt/new_york10.apt").value();
    play.options.mapDetails = static_cast<int>(state.range(0));
    RadarDecodePicture(play.radar);
    RadarBuildMap(play.radar, Bitmap(scopeSquare(play.radar.layout).size()));
    for (auto _ : state) {
        play.refillClouds();
        RadarRepaint(play.radar);
        play.radar.window.update();
    }
}
BENCHMARK(RadarFrameOnMap)->ArgName("picture")->Arg(0)->Arg(1);

/// The plain frame with one aid, or with all of them; all flights have moved before each.
struct Aid {
    const char* name;
    int Options::* option; ///< null: all
};
constexpr std::array aids{std::to_array<Aid>({
    {"none", nullptr},
    {"headingLines", &Options::aidHeadingLines},
    {"runways", &Options::aidRunways},
    {"history", &Options::aidHistory},
    {"fullTags", &Options::aidFullTags},
    {"tidyTags", &Options::aidTidyTags},
    {"largeTags", &Options::aidLargeTags},
    {"orderLine", &Options::aidOrderLine},
    {"all", nullptr},
})};

void RadarFrameWithAid(benchmark::State& state) {
    const auto number = static_cast<std::size_t>(state.range(0));
    state.SetLabel(aids[number].name);
    Play play;
    for (std::size_t i = 1; i + 1 < aids.size(); ++i) {
        play.options.*aids[i].option = i == number || number + 1 == aids.size() ? 1 : 0;
    }
    PanelOrder order = play.game.flight(FlightIndex{0}).current();
    order.heading = turned(order.heading, fullCircle / 2);
    order.directTarget = {};
    play.radar.callbacks.unsentOrder = [order] { return UnsentOrder{FlightIndex{0}, order}; };
    int step = 0;
    for (auto _ : state) {
        play.refillClouds();
        for (Flight& flight : play.game.flights) {
            flight.planIndex = step % routeSteps;
        }
        ++step;
        RadarRepaint(play.radar);
        play.radar.window.update();
    }
}
BENCHMARK(RadarFrameWithAid)->DenseRange(0, static_cast<int>(aids.size()) - 1);

/// The plain frame until it is on the screen of a machine in memory.
void RadarFrameUntilSent(benchmark::State& state) {
    Play play;
    for (auto _ : state) {
        play.refillClouds();
        RadarRepaint(play.radar);
        play.desktop.pumpMessages();
    }
}
BENCHMARK(RadarFrameUntilSent)->Name("RadarFrameUntilSent/99flights");

/// One step of the sweep; the argument is where on its way it starts.
void SweepStep(benchmark::State& state) {
    Play play;
    play.radar.sweep.isOutward = true;
    const Point start{static_cast<int>(std::min<std::int64_t>(state.range(0), 686)),
                      static_cast<int>(std::max<std::int64_t>(state.range(0) - 686, 0))};
    for (auto _ : state) {
        play.radar.sweep.end = start;
        play.backend.wait(sweepStepTime);
        RadarTick(play.radar);
        play.desktop.pumpMessages();
    }
}
BENCHMARK(SweepStep)->Name("SweepStepUntilSent")->Arg(100)->Arg(400)->Arg(686)->Arg(1200);

void StripsRepaint(benchmark::State& state) {
    Play play;
    for (auto _ : state) {
        StripsRebuild(play.strips);
        play.strips.window.update();
    }
}
BENCHMARK(StripsRepaint)->Name("StripsRepaint/14strips");

void PanelRepaint(benchmark::State& state) {
    Play play;
    for (auto _ : state) {
        CtrlRepaint(play.panel);
        play.panel.window.update();
    }
}
BENCHMARK(PanelRepaint);

/// What a new game or the grid's switch waits for.
void MapBuilt(benchmark::State& state) {
    Play play;
    Bitmap frame({686, 686});
    play.options.showGrid = 1;
    for (auto _ : state) {
        RadarBuildMap(play.radar, frame);
    }
}
BENCHMARK(MapBuilt);

} // namespace
