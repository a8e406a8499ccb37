// What the simulation costs, on a shipped airspace: setting a shift up, one step with full skies, a whole
// shift.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>

#include "sim/airport_loading.h"
#include "sim/flight_step.h"
#include "sim/schedule.h"

namespace {

using namespace ventrel;

constexpr ClockSeconds longestShift = 36000;
constexpr int fullSky = 99;

struct Game {
    GameState state;
    AlertLamps lamps;
    RandomGenerator random{7};
    SimulationEvents events;
    Simulation simulation{state, lamps, random, events};

    Game() {
        const FailureReporter silent = [](std::string_view, MessageIcon) {};
        if (!loadAirport(state, AIRPORT_FILE, smallLayout, random, silent)) {
            std::abort();
        }
    }

    void setUp(Skill skill, const Options& options) {
        setUpShift(state, {.skill = skill}, options, random);
        state.gameRunning = true;
        state.lastStepTime = -1;
    }
};

void SetUpHardShift(benchmark::State& benchmarked) {
    Game game;
    for ([[maybe_unused]] auto _ : benchmarked) {
        game.setUp(Skill::hard, Options{});
        benchmark::DoNotOptimize(game.state.flights.data());
    }
}
BENCHMARK(SetUpHardShift)->Unit(benchmark::kMicrosecond);

/// All flights in the air, far apart in altitude and place, and every one of them due.
void spreadOut(GameState& game, ClockSeconds now) {
    for (FlightIndex i = 0; i < game.planeCount(); ++i) {
        Flight& flight = game.flight(i);
        flight.activatedAt = now;
        flight.groundState = GroundState::airborne;
        flight.planIndex = 0;
        flight.planLength = 1;
        flight.plan[0] = {12 + i % 12 * 2, 12 + i / 12 * 2, 2 + i % 8, 90, fastSpeed, noVor, 0};
    }
}

void ActingStep(benchmark::State& benchmarked) {
    Game game;
    Options options;
    options.customPlanes = fullSky;
    game.setUp(Skill::custom, options);
    ClockSeconds now = 0;
    for ([[maybe_unused]] auto _ : benchmarked) {
        benchmarked.PauseTiming();
        spreadOut(game.state, now + stepInterval);
        now += stepInterval;
        benchmarked.ResumeTiming();
        SimulationStep(game.simulation, now);
    }
}
BENCHMARK(ActingStep)->Name("ActingStep/99flights")->Unit(benchmark::kMicrosecond);

void WholeHardShift(benchmark::State& benchmarked) {
    Game game;
    for ([[maybe_unused]] auto _ : benchmarked) {
        game.setUp(Skill::hard, Options{});
        ClockSeconds now = 0;
        while (SimulationStep(game.simulation, now) && now < longestShift) {
            setLamp(game.lamps, game.events, gatherAlertLevel(game.state));
            now += stepInterval;
        }
        benchmark::DoNotOptimize(now);
    }
}
BENCHMARK(WholeHardShift)->Unit(benchmark::kMicrosecond);

} // namespace
