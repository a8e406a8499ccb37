// The airport reader against any bytes; on whatever it accepts, a short shift with random orders, and the
// airspace tool's checks and its source.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "base/windows1252.h"
#include "sim/game.h"
#include "tools/apt/airspace_checks.h"
#include "tools/apt/airspace_source.h"
#include "tools/apt/airspace_text.h"

namespace {

using namespace ventrel;

/// Any order whatever, for any flight or none.
void sendAnyOrder(Game& game, RandomGenerator& player) {
    const FlightIndex index{Random(player, game.planeCount() + 2)};
    PanelOrder order;
    order.altitude = Random(player, 16) - 2;
    order.heading = headingStep * (Random(player, 12) - 2) + (Random(player, 9) == 0 ? 7 : 0);
    order.speed = static_cast<Speed>(Random(player, 5) - 2);
    order.hold = Random(player, 2) != 0;
    order.directTarget = directTargetOf(Random(player, game.vorCount() + 2) - 1, game.vorCount());
    executeOrder(game, index, order);
}

void fly(Game& game) {
    constexpr ClockSeconds flownFor = 900_s;
    RandomGenerator player{game.random.state + 1};
    while (game.clock < flownFor && step(game)) {
        sendAnyOrder(game, player);
    }
}

/// What the tool shows has to be a source, which it makes sure of by itself.
void checkAndShow(std::span<const std::byte> bytes) {
    const auto airport = readAirportFile(bytes, "fuzz.apt");
    for (const apt::Problem& problem :
         apt::airspaceProblems(*airport, embeddedPicture(bytes, airport->header))) {
        if (problem.text.empty()) {
            std::abort();
        }
    }
    const auto text = apt::airspaceText(*airport, bytes, {});
    if (text.has_value() && !apt::parseAirspace(toUtf8(*text)).faults.empty()) {
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const std::byte> bytes = std::as_bytes(std::span(data, size));
    const auto airspace = loadAirport(bytes, "fuzz.apt");
    if (!airspace) {
        return 0;
    }
    // Reads every byte of the picture, so that the sanitizer sees one that lies outside the file.
    const auto zeros = std::ranges::count((*airspace)->picture, std::byte{});
    if (static_cast<std::size_t>(zeros) > size) {
        std::abort();
    }
    const ScopeLayout layout = scopeLayoutFor((*airspace)->layoutWidth).value_or(smallLayout);
    Game game{*airspace,
              {.skill = Skill::hard, .layout = layout},
              RandomGenerator{static_cast<std::uint32_t>(size)}};
    fly(game);
    checkAndShow(bytes);
    return 0;
}
