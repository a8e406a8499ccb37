#include "sim/crowd.h"

#include <bit>

namespace ventrel {

namespace {

// The fields of a mark. Each has room above it, so that the difference of two never reaches the next field.
constexpr unsigned cellBits = 10;
constexpr unsigned yShift = 12;
constexpr unsigned altitudeShift = 24;
constexpr std::uint32_t cellMask = (1U << cellBits) - 1;
constexpr std::uint32_t altitudeMask = 0x7F;
constexpr std::uint32_t borrow = 1U << (cellBits + 1);
/// Added to a difference: a neighbour's column and row then lie between 0 and 2.
constexpr std::uint32_t towardNeighbours = (borrow + 1) | (borrow + 1) << yShift;
/// What must not be left of a neighbour's difference.
constexpr std::uint32_t isFar = (cellMask & ~3U) | (cellMask & ~3U) << yShift | ~0U << altitudeShift;

constexpr unsigned columnOf(std::uint32_t mark) {
    return mark & cellMask;
}

constexpr unsigned rowOf(std::uint32_t mark) {
    return mark >> yShift & cellMask;
}

constexpr unsigned layerOf(std::uint32_t mark) {
    return mark >> altitudeShift;
}

} // namespace

Crowd::Mark Crowd::markOf(const PlanStep& step) {
    return (static_cast<Mark>(step.cell.x) & cellMask) |
           (static_cast<Mark>(step.cell.y) & cellMask) << yShift |
           (static_cast<Mark>(step.altitude) & altitudeMask) << altitudeShift;
}

Crowd::Crowd(std::span<const Flight> table, std::span<const FlightIndex> those)
    : marks_(table.size(), nobody) {
    for (const FlightIndex index : those) {
        const Flight& flight = table[index.place()];
        if (flight.isOnScope()) {
            marks_[index.place()] = markOf(flight.current());
            enter(marks_[index.place()]);
        }
    }
}

void Crowd::note(FlightIndex index, const Flight& flight) {
    const Mark now = flight.isOnScope() ? markOf(flight.current()) : nobody;
    Mark& noted = marks_[index.place()];
    if (noted != nobody) {
        leave(noted);
    }
    if (now != nobody) {
        enter(now);
    }
    noted = now;
}

void Crowd::enter(Mark mark) {
    const Columns column = std::rotl(Columns{1}, static_cast<int>(columnOf(mark) % rowCount));
    Columns& row = layers_[layerOf(mark) % layerCount][rowOf(mark) % rowCount];
    crowded_[layerOf(mark) % layerCount] |= row & column;
    row |= column;
}

void Crowd::leave(Mark mark) {
    const Columns column = std::rotl(Columns{1}, static_cast<int>(columnOf(mark) % rowCount));
    // Where two have met one may still stand.
    layers_[layerOf(mark) % layerCount][rowOf(mark) % rowCount] &=
        ~column | crowded_[layerOf(mark) % layerCount];
}

bool Crowd::isAlone(Mark here) const {
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
    const Mark mark = markOf(here);
    if (isAlone(mark)) {
        return std::nullopt;
    }
    for (std::size_t place = from.place(); place < marks_.size(); ++place) {
        if (((marks_[place] + towardNeighbours - mark) & isFar) == 0) {
            return FlightIndex{static_cast<int>(place)};
        }
    }
    return std::nullopt;
}

} // namespace ventrel
