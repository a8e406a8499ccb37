// What the simulation costs, on a shipped airspace: setting a shift up, one step with full skies, a whole
// shift.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>

#include "sim/airport_loading.h"
#include "sim/flight_step.h"
#include "sim/schedule.h"
#include "tools/sim/shift_run.h"

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

/// Writes nothing down but the orders.
class OrderListener final : public Recorder {
public:
    void shiftSetUp(const GameState&) override {}
    void stepTaken(const GameState&) override {}
    void runEnded(const GameState&, const RunResult&) override {}
    void orderGiven(const GameState&, FlightIndex flight, const PanelOrder& order) override {
        orders.push_back({clock(), flight, order});
    }

    std::vector<ScriptedOrder> orders;
};

/// From set-up until the last flight has landed or left, with the orders that bring them there.
void WholeHardShift(benchmark::State& benchmarked) {
    constexpr std::uint32_t seed = 7;
    Game game;
    const auto fly = [&](Recorder& recorder, const RunPlan& plan) {
        game.random.state = seed;
        game.setUp(Skill::hard, Options{});
        runShift(game.state, game.random, recorder, plan);
        if (recorder.result() != ShiftResult::everyFlightHandled) {
            std::abort(); // a shorter shift would flatter
        }
    };
    OrderListener rehearsal;
    fly(rehearsal, {.orders = {}, .until = longestShift, .autopilot = true});
    for ([[maybe_unused]] auto _ : benchmarked) {
        OrderListener recorder;
        fly(recorder, {.orders = rehearsal.orders, .until = longestShift});
    }
    benchmarked.counters["orders"] = static_cast<double>(rehearsal.orders.size());
}
BENCHMARK(WholeHardShift)->Unit(benchmark::kMicrosecond);

} // namespace
