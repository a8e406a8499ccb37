// What the simulation costs, on a shipped airspace: setting a shift up, one step with full skies, a whole
// shift, and a copy of a game.

#include <benchmark/benchmark.h>

#include <cstdlib>

#include "controller/prediction.h"
#include "sim/schedule.h"
#include "tools/sim/shift_run.h"

namespace {

using namespace ventrel;

constexpr ClockSeconds longestShift = 36000_s;
constexpr ClockSeconds middleOfShift = 1200_s;
constexpr int fullSky = 99;
constexpr std::uint32_t seed = 7;

Game newGame(const ShiftSetup& setup) {
    return {loadAirport(AIRPORT_FILE).value(), setup, RandomGenerator{seed}};
}

Game hardGame() {
    return newGame({.skill = Skill::hard});
}

void SetUpHardShift(benchmark::State& benchmarked) {
    Game game = hardGame();
    for ([[maybe_unused]] auto _ : benchmarked) {
        setUpShift(game, {.skill = Skill::hard});
        benchmark::DoNotOptimize(game.flights.data());
    }
}
BENCHMARK(SetUpHardShift)->Unit(benchmark::kMicrosecond);

/// All flights in the air, every one of them due, and none near another at its altitude.
void spreadOut(Game& game) {
    constexpr int altitudes = 8;
    constexpr int columns = 8;
    for (const FlightIndex index : game.flightPlaces()) {
        Flight& flight = game.flight(index);
        const int place = index.number() / altitudes;
        flight.activatedAt = stepInterval;
        flight.groundState = GroundState::airborne;
        flight.planIndex = 0;
        flight.plan = {{.cell = {10 + place % columns * 4, 10 + place / columns * 4},
                        .altitude = 2 + index.number() % altitudes,
                        .heading = 90,
                        .speed = Speed::fast}};
    }
}

/// A sky of `count` flights; more than a shift may have are copies.
Game fullGame(int count) {
    Game game = newGame({.skill = Skill::custom, .custom = {fullSky, 2100_s, 0}});
    game.flights.resize(static_cast<std::size_t>(count), game.flights.front());
    spreadOut(game);
    return game;
}

void ActingStep(benchmark::State& benchmarked) {
    Game game = fullGame(static_cast<int>(benchmarked.range(0)));
    for ([[maybe_unused]] auto _ : benchmarked) {
        benchmarked.PauseTiming();
        spreadOut(game);
        benchmarked.ResumeTiming();
        step(game);
    }
}
BENCHMARK(ActingStep)->ArgName("flights")->Arg(fullSky)->Arg(5 * 100)->Unit(benchmark::kMicrosecond);

void Predict(benchmark::State& benchmarked) {
    const Game game = fullGame(fullSky);
    for ([[maybe_unused]] auto _ : benchmarked) {
        benchmark::DoNotOptimize(predictConflicts(game));
    }
}
BENCHMARK(Predict)->Name("PredictConflicts/99flights")->Unit(benchmark::kMicrosecond);

/// Writes nothing down but the orders.
class OrderListener final : public Recorder {
public:
    using Recorder::Recorder;

    void shiftSetUp() override {}
    void stepTaken() override {}
    void runEnded(const RunResult&) override {}
    void orderGiven(FlightIndex flight, const PanelOrder& order) override {
        orders.push_back({game().clock, flight, order});
    }

    std::vector<ScriptedOrder> orders;
};

/// A Hard shift with the orders that bring its flights home.
std::vector<ScriptedOrder> rehearse() {
    Game game = hardGame();
    OrderListener rehearsal{game};
    runShift(game, rehearsal, {.orders = {}, .until = longestShift, .steering = automaticSteering(game)});
    if (rehearsal.result() != ShiftResult::everyFlightHandled) {
        std::abort(); // a shorter shift would flatter
    }
    return rehearsal.orders;
}

/// From set-up until the last flight has landed or left, keeping a copy of the game before every step.
void WholeHardShift(benchmark::State& benchmarked) {
    const auto orders = rehearse();
    const AirspacePtr airspace = hardGame().airspace;
    for ([[maybe_unused]] auto _ : benchmarked) {
        Game game{airspace, {.skill = Skill::hard}, RandomGenerator{seed}};
        Game kept = game;
        auto next = orders.begin();
        while (step(game)) {
            kept = game;
            for (; next != orders.end() && next->clock <= game.clock; ++next) {
                executeOrder(game, next->flight, next->order);
            }
        }
        benchmark::DoNotOptimize(kept.score);
    }
    benchmarked.counters["shifts/s"] =
        benchmark::Counter(static_cast<double>(benchmarked.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(WholeHardShift)->Unit(benchmark::kMicrosecond);

/// A new copy, as a search makes one for every try.
void CopyHardGame(benchmark::State& benchmarked) {
    Game game = hardGame();
    while (game.clock < middleOfShift && step(game)) {
    }
    for ([[maybe_unused]] auto _ : benchmarked) {
        Game copy = game;
        benchmark::DoNotOptimize(copy.flights.data());
    }
}
BENCHMARK(CopyHardGame)->Name("CopyGame/45flights")->Unit(benchmark::kMicrosecond);

} // namespace
