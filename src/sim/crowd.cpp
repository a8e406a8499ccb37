#include "sim/crowd.h"

#include <bit>

namespace ventrel {

namespace {

constexpr unsigned columnOf(PlaceMark mark) {
    return mark & markCellMask;
}

constexpr unsigned rowOf(PlaceMark mark) {
    return mark >> markRowShift & markCellMask;
}

constexpr unsigned layerOf(PlaceMark mark) {
    return mark >> markAltitudeShift;
}

PlaceMark markOf(const PlanStep& step) {
    return placeMark(step.cell, step.altitude);
}

} // namespace

Crowd::Crowd(std::span<const Flight> table, std::span<const FlightIndex> those)
    : marks_(table.size(), standsNowhere) {
    for (const FlightIndex index : those) {
        const Flight& flight = table[index.place()];
        if (flight.isOnScope()) {
            marks_[index.place()] = markOf(flight.current());
            enter(marks_[index.place()]);
        }
    }
}

void Crowd::note(FlightIndex index, const Flight& flight) {
    const PlaceMark now = flight.isOnScope() ? markOf(flight.current()) : standsNowhere;
    PlaceMark& noted = marks_[index.place()];
    if (noted != standsNowhere) {
        leave(noted);
    }
    if (now != standsNowhere) {
        enter(now);
    }
    noted = now;
}

void Crowd::enter(PlaceMark mark) {
    const Columns column = std::rotl(Columns{1}, static_cast<int>(columnOf(mark) % rowCount));
    Columns& row = layers_[layerOf(mark) % layerCount][rowOf(mark) % rowCount];
    crowded_[layerOf(mark) % layerCount] |= row & column;
    row |= column;
}

void Crowd::leave(PlaceMark mark) {
    const Columns column = std::rotl(Columns{1}, static_cast<int>(columnOf(mark) % rowCount));
    // Where two have met one may still stand.
    layers_[layerOf(mark) % layerCount][rowOf(mark) % rowCount] &=
        ~column | crowded_[layerOf(mark) % layerCount];
}

bool Crowd::isAlone(PlaceMark here) const {
    const Layer& layer = layers_[layerOf(here) % layerCount];
    const unsigned row = rowOf(here);
    const auto column = static_cast<int>(columnOf(here) % rowCount);
    const Columns own = std::rotl(Columns{1}, column);
    const Columns around = std::rotl(Columns{1} | Columns{2} | Columns{4}, column - 1);
    const Columns beside = layer[(row - 1) % rowCount] | layer[(row + 1) % rowCount];
    return ((beside & around) | (layer[row % rowCount] & (around ^ own)) |
            (crowded_[layerOf(here) % layerCount] & own)) == 0;
}

std::optional<FlightIndex> Crowd::nextNear(const PlanStep& here, FlightIndex from) const {
    const PlaceMark mark = markOf(here);
    if (isAlone(mark)) {
        return std::nullopt;
    }
    for (std::size_t place = from.place(); place < marks_.size(); ++place) {
        if (mayTouch(mark, marks_[place])) {
            return FlightIndex{static_cast<int>(place)};
        }
    }
    return std::nullopt;
}

} // namespace ventrel
