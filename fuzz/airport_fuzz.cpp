// The airport reader against any bytes, and a short shift with random orders on whatever it accepts.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "sim/airport_loading.h"
#include "sim/flight_step.h"
#include "sim/orders.h"
#include "sim/schedule.h"

namespace {

using namespace ventrel;

/// Any order that a panel could hold, for any flight that can hear it.
void sendAnyOrder(Simulation& simulation, RandomGenerator& player) {
    const GameState& game = simulation.game;
    const FlightIndex index = Random(player, game.planeCount());
    PanelOrder order;
    order.altitude = Random(player, approachAltitude, exitAltitude);
    order.heading = headingStep * Random(player, fullCircle / headingStep);
    order.speed = slowSpeed + Random(player, 3);
    order.hold = Random(player, 2);
    order.directTarget = noVor + Random(player, game.vorCount() + 1);
    if (game.flight(index).isActive()) {
        executeOrder(simulation, index, order);
    }
}

void fly(GameState& game, RandomGenerator& random) {
    constexpr ClockSeconds flownFor = 900;
    AlertLamps lamps;
    SimulationEvents events;
    Simulation simulation{game, lamps, random, events};
    RandomGenerator player{random.state + 1};
    game.gameRunning = true;
    for (ClockSeconds now = 0; now <= flownFor && SimulationStep(simulation, now); now += stepInterval) {
        setLamp(lamps, events, gatherAlertLevel(game));
        sendAnyOrder(simulation, player);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FailureReporter silent = [](std::string_view, MessageIcon) {};
    const std::span<const std::byte> bytes = std::as_bytes(std::span(data, size));
    auto airport = readAirportFile(bytes, "fuzz.apt", silent);
    if (!airport) {
        return 0;
    }
    const ScopeLayout layout = scopeLayoutFor(airport->header.layoutWidth).value_or(smallLayout);
    FileBuffer file;
    file.data.assign(bytes.begin(), bytes.end());
    file.loaded = true;
    GameState game;
    RandomGenerator random{static_cast<std::uint32_t>(size)};
    useAirport(game, {std::move(file), std::move(*airport)}, layout, random);
    // Reads every byte of the picture, so that the sanitizer sees one that lies outside the file.
    const auto zeros = std::ranges::count(game.mapPicture(), std::byte{});
    if (static_cast<std::size_t>(zeros) > size) {
        std::abort();
    }
    setUpShift(game, {.skill = Skill::hard}, Options{}, random);
    fly(game, random);
    return 0;
}
