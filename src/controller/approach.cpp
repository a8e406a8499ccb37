#include "controller/approach.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace ventrel {

namespace {

constexpr int headingCount = fullCircle / headingStep;
constexpr std::size_t placeCount = std::size_t{gridSize} * gridSize * headingCount;
constexpr int straight = 0;
constexpr int leftTurn = -headingStep;
constexpr int rightTurn = headingStep;

struct Place {
    Cell cell;
    int heading;
};

bool isOnGrid(Cell cell) {
    return cell.x >= 0 && cell.x < gridSize && cell.y >= 0 && cell.y < gridSize && !isOutsideScope(cell);
}

std::size_t placeOf(const Place& place) {
    const int cell = place.cell.y * gridSize + place.cell.x;
    return static_cast<std::size_t>(cell) * headingCount +
           static_cast<std::size_t>(place.heading / headingStep);
}

std::optional<std::size_t> indexOf(const Place& place) {
    if (!isOnGrid(place.cell) || place.heading % headingStep != 0) {
        return std::nullopt;
    }
    return placeOf(place);
}

} // namespace

Approach::Approach(const Vor& airport) {
    const Place end{airport.cell, airport.runwayHeading};
    const auto endIndex = indexOf(end);
    if (!airport.isAirport || end.heading >= fullCircle || !endIndex) {
        return;
    }
    moves_.assign(placeCount, outOfReach);
    moves_[*endIndex] = 0;
    std::vector<Place> found{end}; // from the end outward
    found.reserve(placeCount);
    for (std::size_t next = 0; next < found.size(); ++next) {
        const Place to = found[next];
        const auto further = static_cast<Moves>(moves(to.cell, to.heading) + 1);
        const Cell before = stepCell(to.cell, turned(to.heading, fullCircle / 2));
        if (!isOnGrid(before) || before == airport.cell) {
            continue;
        }
        for (const int turn : {straight, leftTurn, rightTurn}) {
            const Place from{before, turned(to.heading, turn)};
            Moves& known = moves_[placeOf(from)];
            if (known == outOfReach) {
                known = further;
                found.push_back(from);
            }
        }
    }
}

int Approach::moves(Cell cell, int heading) const {
    const auto index = moves_.empty() ? std::nullopt : indexOf({cell, heading});
    return index ? moves_[*index] : outOfReach;
}

int Approach::nextHeading(Cell cell, int heading, int altitude) const {
    const int nextAltitude = std::max(altitude - 1, approachAltitude);
    int best = heading;
    int bestCost = std::numeric_limits<int>::max();
    for (const int turn : {straight, leftTurn, rightTurn}) {
        const int next = turned(heading, turn);
        const int remaining = moves(stepCell(cell, next), next);
        if (remaining == outOfReach) {
            continue;
        }
        // Too short a way is worse than any detour; the longest of those brings the detour nearer.
        constexpr int tooShort = 100000;
        const int cost = remaining >= nextAltitude - approachAltitude ? remaining : tooShort - remaining;
        if (cost < bestCost) {
            bestCost = cost;
            best = next;
        }
    }
    return best;
}

} // namespace ventrel
