// The whole game in memory: what a player waits for at the start, and what a minute of play costs.

#include <benchmark/benchmark.h>

#include <filesystem>

#include "audio/sound_system.h"
#include "platform/headless/headless_sound.h"
#include "platform/headless/script.h"
#include "records/airport_catalogue.h"
#include "shell/program.h"

namespace {

using namespace ventrel;

namespace fs = std::filesystem;

constexpr Size smallWindow{800, 600};
constexpr Size largeWindow{1024, 768};
constexpr Millis aMinute = 60000;
constexpr Millis aMoment = 20;

/// A program of its own on a machine in memory, with options that nobody keeps.
struct Game {
    HeadlessBackend backend;
    FontSet fonts{fs::path(PROGRAM_FOLDER) / "fonts"};
    HeadlessSound device{[this] { return backend.now(); }};
    HeadlessSequencer sequencer{[this] { return backend.now(); }};
    SoundSystem sounds{device, sequencer, PROGRAM_FOLDER};
    fs::path profile = fs::temp_directory_path() / "ventrel-bench.ini";
    OptionsStore store{profile};
    Program program;

    explicit Game(Size window)
        : backend(window), program({backend, fonts, sounds, store}, {PROGRAM_FOLDER}, optionsFor(window), 3) {
    }
    ~Game() { fs::remove(profile); }
    Game(const Game&) = delete;
    Game& operator=(const Game&) = delete;

    static Options optionsFor(Size window) { return Options{.resolution = window == smallWindow ? 2 : 3}; }
};

/// From nothing to the console on the screen.
void StartToFirstFrame(benchmark::State& state) {
    const Size window = state.range(0) == smallWindow.width ? smallWindow : largeWindow;
    for (auto _ : state) {
        Game game(window);
        if (!game.program.startUp()) {
            state.SkipWithError("The program does not start.");
            return;
        }
        Script(game.backend).then([&] { game.program.desktop().quit(); });
        game.program.run();
        benchmark::DoNotOptimize(game.backend.screen().pixels().data());
    }
}
BENCHMARK(StartToFirstFrame)->Arg(800)->Arg(1024)->Unit(benchmark::kMillisecond);

/// A minute of a Hard shift with its traffic in the air: everything that moves, until it is on a screen in
/// memory.
void MinuteOfPlay(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        Game game(largeWindow);
        if (!game.program.startUp()) {
            state.SkipWithError("The program does not start.");
            return;
        }
        game.store.update([](ProfileFile& profile) {
            profile.set("Game", "Name", "Mary");
            profile.set("Game", "Skill", "3");
        });
        Script script(game.backend);
        script.wait(aMoment).key(Key::f, withAlt).type("n").key(Key::enter).wait(aMoment);
        for (int i = 0; i < 40; ++i) {
            script.key(Key::space).wait(aMoment);
        }
        script.then([&] { state.ResumeTiming(); }).wait(aMinute);
        script.then([&] {
            state.PauseTiming();
            game.program.desktop().quit();
        });
        game.program.run();
        state.ResumeTiming();
    }
}
BENCHMARK(MinuteOfPlay)->Unit(benchmark::kMillisecond);

/// The list of 2,000 airports: read for the first time, or again.
void ListAirports(benchmark::State& state) {
    constexpr int count = 2000;
    const bool isAgain = state.range(0) != 0;
    const fs::path folder = fs::temp_directory_path() / "ventrel-bench-airports";
    const fs::path source = airportFolder(PROGRAM_FOLDER) / "atlanta10.apt";
    fs::create_directories(folder);
    fs::copy_file(source, folder / "0.apt", fs::copy_options::overwrite_existing);
    for (int i = 1; i < count; ++i) {
        const fs::path link = folder / (std::to_string(i) + ".apt");
        if (!fs::exists(link)) {
            fs::create_hard_link(folder / "0.apt", link);
        }
    }
    const auto later = fs::file_time_type::clock::now() + std::chrono::hours(1);
    AirportShelf known(folder, {}, largeWindow.width);
    known.catalogue(later);
    for (auto _ : state) {
        if (isAgain) {
            benchmark::DoNotOptimize(known.catalogue(later).entries.data());
        } else {
            AirportShelf fresh(folder, {}, largeWindow.width);
            benchmark::DoNotOptimize(fresh.catalogue(later).entries.data());
        }
    }
    fs::remove_all(folder);
}
BENCHMARK(ListAirports)->ArgName("again")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace
