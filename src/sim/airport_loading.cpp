#include "sim/airport_loading.h"

#include <utility>

namespace ventrel {

namespace {

/// Turns a runway round. A heading that no flight can fly stays.
int reversedRunway(int heading) {
    constexpr int half = fullCircle / 2;
    return heading < fullCircle && heading % headingStep == 0 ? turned(heading, half) : heading;
}

void settle(Vor& vor, const ScopeLayout& layout, RandomGenerator& random) {
    vor.cell = {vor.pixel.x / layout.cellSize, vor.pixel.y / layout.cellSize};
    if (vor.isAirport && vor.reverseChance != 0 && RandomPercent(random) < vor.reverseChance) {
        vor.runwayHeading = reversedRunway(vor.runwayHeading);
    }
}

} // namespace

std::optional<LoadedAirport> openAirport(const std::filesystem::path& path, const FailureReporter& report) {
    FileBuffer file;
    if (!file.Load(path, false, std::nullopt, report)) {
        return std::nullopt;
    }
    auto airport = readAirportFile(file.data, path, report);
    if (!airport) {
        return std::nullopt;
    }
    return LoadedAirport{std::move(file), std::move(*airport)};
}

void useAirport(GameState& game, LoadedAirport&& loaded, const ScopeLayout& layout, RandomGenerator& random) {
    game.file = std::move(loaded.file);
    game.airport = std::move(loaded.airport.header);
    game.vors = std::move(loaded.airport.vors);
    game.layout = layout;
    for (Vor& vor : game.vors) {
        settle(vor, layout, random);
    }
}

bool loadAirport(GameState& game, const std::filesystem::path& path, const ScopeLayout& layout,
                 RandomGenerator& random, const FailureReporter& report) {
    auto loaded = openAirport(path, report);
    if (!loaded) {
        return false;
    }
    useAirport(game, std::move(*loaded), layout, random);
    return true;
}

} // namespace ventrel
