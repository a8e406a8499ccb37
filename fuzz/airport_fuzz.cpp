// The airport reader against any bytes, and a short shift on whatever it accepts.

#include <cstddef>
#include <cstdint>
#include <span>

#include "sim/airport_loading.h"
#include "sim/flight_step.h"
#include "sim/schedule.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace ventrel;
    constexpr ClockSeconds flownFor = 600;
    const FailureReporter silent = [](std::string_view, MessageIcon) {};
    const std::span<const std::byte> bytes = std::as_bytes(std::span(data, size));
    auto airport = readAirportFile(bytes, "fuzz.apt", silent);
    if (!airport) {
        return 0;
    }
    FileBuffer file;
    file.data.assign(bytes.begin(), bytes.end());
    GameState game;
    AlertLamps lamps;
    RandomGenerator random{1};
    SimulationEvents events;
    useAirport(game, {std::move(file), std::move(*airport)}, smallLayout, random);
    setUpShift(game, {.skill = Skill::hard}, Options{}, random);
    game.gameRunning = true;
    Simulation simulation{game, lamps, random, events};
    for (ClockSeconds now = 0; now <= flownFor && SimulationStep(simulation, now); now += stepInterval) {
        setLamp(lamps, events, gatherAlertLevel(game));
    }
    return static_cast<int>(game.mapPicture().size() > size); // 0: it lies within the file
}
