// Who stands near whom: the flights on the scope, packed small enough to look round at a glance.
//
// It is made for one pass over the flights and lives no longer. A flight's record is large, and most flights
// have nobody near them: that much is said here without a look at any record.

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "sim/flight.h"
#include "sim/place_mark.h"

namespace ventrel {

class Crowd {
public:
    /// Those of the table's flights that are on the scope, as they stand now; `those` names at least all of
    /// them. Nothing is kept.
    Crowd(std::span<const Flight> table, std::span<const FlightIndex> those);

    /// Takes down where the flight of that place stands by now, if it still is on the scope.
    void note(FlightIndex index, const Flight& flight);

    /// A flight on the scope that may stand at this altitude in this cell or a neighbouring one: the first in
    /// the table from `from` on. Nobody who stands there is left out, and the one that looks round is found
    /// itself, but whoever is found may yet stand elsewhere. Nothing when nobody but one flight stands there.
    std::optional<FlightIndex> nextNear(const PlanStep& here, FlightIndex from) const;

private:
    using Columns = std::uint32_t;

    static constexpr unsigned rowCount = 32; // and as many columns; cells that far apart share a place
    static constexpr unsigned layerCount = 16;
    using Layer = std::array<Columns, rowCount>;

    bool isAlone(PlaceMark here) const;
    void enter(PlaceMark mark);
    void leave(PlaceMark mark);

    std::vector<PlaceMark> marks_;              // by flight
    std::array<Layer, layerCount> layers_{};    // by altitude: the columns of each row where somebody stands
    std::array<Columns, layerCount> crowded_{}; // by altitude: the columns where two have met in one cell
};

} // namespace ventrel
