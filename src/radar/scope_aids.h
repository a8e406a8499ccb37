// What the aids remember of the flights, and what they draw on the scope.
//
// Each looks for its own option and does nothing while that is off.

#pragma once

#include <optional>
#include <vector>

#include "options/options.h"
#include "radar/flight_history.h"
#include "radar/flight_ways.h"
#include "radar/tag_order.h"

namespace ventrel {

struct ScopeAids {
    FlightHistory history;
    TagOrder tags;
};

struct AidScene {
    const Game& game;
    const Options& options;
    FontSet& fonts;
    const RadarLayout& layout;
};

/// Where PAUSE stands at the rim.
constexpr Rect rimPauseBox(const RadarLayout& layout) {
    constexpr Size room{70, 24};
    constexpr int drop = 6; // below the scope's upper edge
    const Rect& scope = layout.scopeEllipse;
    return Rect::at({scope.left + (scope.width() - room.width) / 2, scope.top + drop}, room);
}

/// Whether there is something on the scope that a plain one does not have.
bool hasScopeAids(const Options& options);

/// Follows the flights to where they are now.
void followFlights(ScopeAids& aids, const AidScene& scene);

/// What lies between the map and the flights.
void drawUnderFlights(Canvas& canvas, const ScopeAids& aids, const AidScene& scene,
                      const std::optional<UnsentOrder>& unsent);

/// How tags are to be drawn, at the usual place.
TagLook tagLook(const AidScene& scene);

} // namespace ventrel
