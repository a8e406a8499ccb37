// What it costs to bring changed parts of the picture to the real screen, at several scales.
//
// Needs a display; without one it says so. Under a server in memory: xvfb-run -s "-screen 0 2400x1800x24"
// screen_bench

#include <benchmark/benchmark.h>

#include "platform/sdl/sdl_backend.h"

namespace {

using namespace ventrel;

constexpr Size picture{800, 600};
constexpr int tenths = 10;

struct Part {
    const char* name;
    Rect rect;
};
constexpr Part parts[]{
    {"tag", {300, 300, 340, 332}},
    {"100x40", {300, 300, 400, 340}},
    {"scope", {16, 61, 555, 600}},
    {"everything", {0, 0, 800, 600}},
};

/// Handles what the window system has to say, since a window that never listens is not drawn to.
void settle(SdlBackend& backend) {
    constexpr Millis moment = 200;
    while (backend.wait(moment)) {
    }
}

/// `scaleTenths`: of the window to the picture.
void damageToScreen(benchmark::State& state, const Rect& part, int scaleTenths) {
    const Size window{picture.width * scaleTenths / tenths, picture.height * scaleTenths / tenths};
    const auto opened = openSdlBackend(
        {.title = "Bench", .picture = picture, .placement = WindowPlacement{Rect::at({}, window)}});
    if (!opened) {
        state.SkipWithError("there is no screen here");
        return;
    }
    SdlBackend& backend = **opened;
    Bitmap shown(picture);
    backend.show(true);
    settle(backend);
    Pixel shade = 0;
    for (auto _ : state) {
        shown.at(part.left, part.top) = ++shade;
        backend.present(shown, std::span(&part, 1));
    }
}

} // namespace

int main(int argc, char** argv) {
    for (const int scale : {10, 16, 20, 28}) {
        for (const Part& part : parts) {
            const std::string name =
                std::string("DamageToScreen/") + part.name + "/scale:" + std::to_string(scale) + "/10";
            benchmark::RegisterBenchmark(name.c_str(), damageToScreen, part.rect, scale)
                ->Unit(benchmark::kMicrosecond)
                ->UseRealTime();
        }
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
