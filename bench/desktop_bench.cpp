// What a change on a window costs until it is on the screen of a machine in memory.

#include <benchmark/benchmark.h>

#include <array>

#include "platform/desktop/desktop.h"
#include "platform/headless/script.h"

namespace {

using namespace ventrel;

constexpr Size screen{1024, 768};
constexpr Rect scope{70, 70, 756, 756};
/// The other children of the main window, about where the game has them.
constexpr std::array otherChildren{
    Rect{443, 19, 1005, 39},  Rect{261, 21, 312, 36}, Rect{215, 14, 245, 44}, Rect{869, 71, 1008, 612},
    Rect{824, 640, 992, 749}, Rect{320, 16, 348, 44}, Rect{348, 16, 376, 44}, Rect{376, 16, 404, 44},
    Rect{31, 20, 83, 39},     Rect{93, 20, 145, 39},  Rect{155, 20, 207, 39}, Rect{992, 656, 1006, 724}};

struct Play {
    Play() {
        for (const Rect& bounds : otherChildren) {
            desktop.create({.parent = main, .bounds = bounds, .background = Colour::rgb(64, 8, 0)});
        }
        desktop.pumpMessages();
    }

    HeadlessBackend backend{screen};
    Desktop desktop{backend, screen};
    Bitmap frame{scope.size()};
    Window main = desktop.create({.bounds = Rect::at({}, screen), .background = Colour::rgb(90, 90, 90)});
    Window radar = desktop.create(
        {.parent = main, .bounds = scope, .handlers = {.paint = [this](Canvas& canvas, const Rect&) {
                                              canvas.draw({0, 0}, frame);
                                          }}});
};

Region sweepLine(int step) {
    const int end = step % scope.width();
    const std::array<Point, 4> corners{{{end, 0}, {end + 1, 0}, {1, scope.height()}, {0, scope.height()}}};
    return Region::polygon(corners).intersectedWith(Region::ellipse(Rect::at({}, scope.size())));
}

void SweepStepUntilSent(benchmark::State& state) {
    Play play;
    const Region before = sweepLine(300);
    const Region after = sweepLine(301);
    for (auto _ : state) {
        Canvas canvas = play.radar.canvas();
        canvas.invert(before);
        canvas.invert(after);
        play.desktop.pumpMessages();
    }
    state.counters["pixels"] =
        static_cast<double>(play.backend.pixelsSent()) / static_cast<double>(play.backend.sendings());
}
BENCHMARK(SweepStepUntilSent);

void RadarFrameUntilSent(benchmark::State& state) {
    Play play;
    for (auto _ : state) {
        play.radar.invalidate();
        play.desktop.pumpMessages();
    }
}
BENCHMARK(RadarFrameUntilSent);

void DialogOpensAndCloses(benchmark::State& state) {
    Play play;
    for (auto _ : state) {
        const Window dialog = play.desktop.create(
            {.owner = play.main, .bounds = {300, 200, 700, 500}, .background = Colour::rgb(192, 192, 192)});
        play.desktop.pumpMessages();
        dialog.destroy();
        play.desktop.pumpMessages();
    }
}
BENCHMARK(DialogOpensAndCloses);

void PassWithNothingToDo(benchmark::State& state) {
    Play play;
    Millis when = play.desktop.now();
    for (auto _ : state) {
        // Sleeping for a moment is what makes the headless clock go on.
        play.desktop.pumpUntil(++when);
    }
}
BENCHMARK(PassWithNothingToDo);

void HourOfPlay(benchmark::State& state) {
    for (auto _ : state) {
        Play play;
        int steps = 0;
        play.desktop.setIdle([&]() -> std::optional<Millis> {
            play.radar.canvas().fill(Rect::at({++steps % 600, 300}, {40, 32}), Colour::rgb(0, 200, 0));
            return play.desktop.now() + 6;
        });
        Script(play.backend).wait(3'600'000).then([&] { play.desktop.quit(); });
        play.desktop.run();
    }
}
BENCHMARK(HourOfPlay)->Unit(benchmark::kSecond)->Iterations(1);

} // namespace
