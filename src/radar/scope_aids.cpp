#include "radar/scope_aids.h"

#include <algorithm>
#include <array>

#include "map_geometry/map_geometry.h"
#include "radar/map_drawing.h"

namespace ventrel {

namespace {

/// What they change moves or changes with the flights, so that a part of the scope cannot be mended alone.
constexpr std::array scopeAids{&Options::aidConflicts, &Options::aidColours,  &Options::aidHeadingLines,
                               &Options::aidHistory,   &Options::aidFullTags, &Options::aidTidyTags,
                               &Options::aidLargeTags, &Options::aidOrderLine};

/// The room of "SCORE: 12345".
constexpr Size scoreSize{70, 10};

const TagFont& lettersOf(const Options& options) {
    return options.aidLargeTags != 0 ? largeTagFont : usualTagFont;
}

TagContents contentsOf(const Options& options) {
    return options.aidFullTags != 0 ? TagContents::speedAndDestination : TagContents::altitude;
}

std::vector<TaggedFlight> taggedFlights(const AidScene& scene) {
    const TagFont& letters = lettersOf(scene.options);
    const Font& font = scene.fonts.font(letters.request);
    std::vector<TaggedFlight> tagged;
    for (const FlightIndex i : scene.game.flightPlaces()) {
        const Flight& flight = scene.game.flight(i);
        if (flight.isOnScope()) {
            const TagTexts texts = tagTexts(flight, scene.game.vors(), contentsOf(scene.options));
            tagged.push_back({.flight = i,
                              .at = radarPoint(scene.layout, flight.current().cell),
                              .tag = measureTag(texts, font, letters),
                              .hasBracket = scene.options.aidColours != 0 && flight.selected});
        }
    }
    return tagged;
}

std::optional<Centreline> centrelineOf(const AidScene& scene, const Vor& vor, const Font& labels) {
    if (!vor.isAirport || scene.options.aidRunways == 0) {
        return std::nullopt;
    }
    const Size number{labels.width("00"), labels.lineHeight()};
    return centreline(scene.layout, vor.pixel, vor.runwayHeading, number);
}

TagSurroundings surroundings(const AidScene& scene) {
    const Font& labels = scene.fonts.font(mapLabelFont(scene.layout));
    TagSurroundings around{scene.layout.scopeEllipse, {Rect::at(scene.layout.scorePosition, scoreSize)}};
    if (scene.options.aidPauseAtRim != 0) {
        around.landmarks.push_back(rimPauseBox(scene.layout));
    }
    for (const Vor& vor : scene.game.vors()) {
        const Size size{labels.width(vor.ident), labels.lineHeight()};
        around.landmarks.push_back(Rect::at(labelCorner(scene.layout, vor, size), size));
        around.landmarks.push_back(markerBox(scene.layout, vor.pixel));
        if (const auto line = centrelineOf(scene, vor, labels)) {
            around.landmarks.push_back(line->number);
        }
    }
    return around;
}

} // namespace

bool hasScopeAids(const Options& options) {
    return std::ranges::any_of(scopeAids, [&](int Options::* aid) { return options.*aid != 0; });
}

void followFlights(ScopeAids& aids, const AidScene& scene) {
    if (scene.options.aidHistory != 0) {
        followFlights(aids.history, scene.game.flights);
    } else {
        aids.history = {};
    }
    if (scene.options.aidTidyTags != 0) {
        arrangeTags(aids.tags, taggedFlights(scene), surroundings(scene));
    } else {
        aids.tags = {};
    }
}

void drawUnderFlights(Canvas& canvas, const ScopeAids& aids, const AidScene& scene,
                      const std::optional<UnsentOrder>& unsent) {
    const Game& game = scene.game;
    if (scene.options.aidHistory != 0) {
        drawHistory(canvas, scene.layout, game.flights, aids.history,
                    flightColours(*game.airspace, scene.options));
    }
    if (scene.options.aidHeadingLines != 0) {
        drawHeadingLines(canvas, scene.layout, game.flights, game.airspace->routeColour);
    }
    if (unsent) {
        drawOrderLine(canvas, scene.layout, game, *unsent,
                      flightColours(*game.airspace, scene.options).selected);
    }
}

TagLook tagLook(const AidScene& scene) {
    const TagFont& letters = lettersOf(scene.options);
    return {.font = scene.fonts.font(letters.request),
            .letters = letters,
            .contents = contentsOf(scene.options),
            .vors = scene.game.vors()};
}

} // namespace ventrel
