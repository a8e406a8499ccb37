#include "sim/schedule.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "sim/cloud_cover.h"
#include "sim/course_planner.h"
#include "sim/custom_skill.h"
#include "sim/scoring.h"

namespace ventrel {

namespace {

constexpr ClockSeconds firstFlightAt = 60_s;
constexpr int freeOrdersPerPlane = 5;
constexpr int cloudCoverBonus = 300;
constexpr int directEntryBonus = -100;
constexpr int voicesUpwardAbove = 50;
constexpr int exitDrawLimit = 80;         // departures drawing more than this fly to another airport
constexpr int mostDestinationDraws = 100; // until the destination differs from the origin
constexpr int majorAirportFrom = 51;      // arrivals drawing this or more go to the first major airport
constexpr int lowestEntry = 3;
constexpr int highestEntry = 9;

constexpr std::array<ShiftSize, 4> shiftSizes{{
    {12, 1200_s, 0},
    {25, 2100_s, 0},
    {35, 2400_s, 0},
    {45, 2400_s, 0},
}};

/// The three kinds of traffic, in their order in the flight table.
enum class Traffic { passThrough, departure, arrival };

Traffic trafficOf(int index, int planeCount) {
    const int quarter = planeCount / 4;
    if (index >= planeCount - quarter) {
        return Traffic::arrival;
    }
    return index >= planeCount - 2 * quarter ? Traffic::departure : Traffic::passThrough;
}

ClockSeconds drawScheduledTime(Game& game) {
    const ClockSeconds time{Random(game.random, stepInterval.count(), game.shiftLength.count())};
    return time - time % stepInterval;
}

PointIndex pickOtherAirport(Game& game, PointIndex origin) {
    PointIndex destination = origin;
    for (int draw = 0; draw < mostDestinationDraws && destination == origin; ++draw) {
        destination = pickVor(game, VorKind::arrivalAirport);
    }
    return destination;
}

void setRoute(Game& game, Flight& flight, Traffic traffic) {
    bool toAirport = traffic == Traffic::arrival;
    if (traffic == Traffic::departure) {
        flight.groundState = GroundState::waiting;
        flight.originKind = OriginKind::airport;
        flight.origin = pickVor(game, VorKind::departureAirport);
        toAirport = RandomPercent(game.random) > exitDrawLimit;
    }
    flight.destinationKind = toAirport ? DestinationKind::airport : DestinationKind::exit;
    if (toAirport && flight.origin) {
        flight.destination = pickOtherAirport(game, *flight.origin);
    } else {
        flight.destination = pickVor(game, toAirport ? VorKind::arrivalAirport : VorKind::exit);
    }
}

void scheduleFlight(Game& game, FlightIndex index, bool directEntry) {
    Flight& flight = game.flight(index);
    flight.inPlay = true;
    flight.scheduledAt = index == FlightIndex{0} ? firstFlightAt : drawScheduledTime(game);
    setRoute(game, flight, trafficOf(index.number(), game.planeCount()));
    placeFlight(game, flight, directEntry);
    makeCallsign(game, flight);
}

/// Hands the voices out in the order in which the pilots will be heard first.
void handOutVoices(Game& game, int cursor, bool upward, int voiceSetCount) {
    if (voiceSetCount <= 0) {
        return;
    }
    std::vector<std::size_t> order(game.flights.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return game.flights[a].scheduledAt < game.flights[b].scheduledAt;
    });
    const int step = upward ? 1 : voiceSetCount - 1;
    for (const std::size_t index : order) {
        game.flights[index].pilotVoice = cursor;
        cursor = (cursor + step) % voiceSetCount;
    }
}

/// The first cell inside the scope on the way inward from a place on the edge, and one further.
Cell enterAlong(int heading, Cell cell) {
    while (isOutsideScope(cell)) {
        cell = stepCell(cell, heading);
    }
    return stepCell(cell, heading);
}

struct EntryPoint {
    Cell cell;
    int heading;
};

EntryPoint drawEntry(Quadrant side, RandomGenerator& random) {
    switch (side) {
    case Quadrant::upperLeft: return {enterAlong(135, {1, Random(random, 0, gridMiddle)}), 135};
    case Quadrant::upperRight: return {enterAlong(225, {gridSize - 1, Random(random, 1, gridMiddle)}), 225};
    case Quadrant::lowerLeft: return {enterAlong(45, {1, Random(random, gridMiddle, gridSize)}), 45};
    default: return {enterAlong(315, {gridSize - 1, Random(random, gridMiddle, gridSize)}), 315};
    }
}

Quadrant drawSideAwayFrom(Quadrant destination, RandomGenerator& random) {
    for (;;) {
        const auto side = static_cast<Quadrant>(Random(random, 0, 3));
        if (side != destination) {
            return side;
        }
    }
}

} // namespace

ShiftSize shiftSizeFor(const ShiftSetup& setup) {
    if (setup.skill == Skill::custom) {
        return {std::clamp(setup.custom.planeCount, 1, mostPlanes),
                std::clamp(setup.custom.length, clockMinute, mostMinutes * clockMinute),
                std::clamp(setup.custom.bonus, -mostCustomBonus, mostCustomBonus)};
    }
    ShiftSize size = shiftSizes.at(static_cast<std::size_t>(setup.skill));
    size.bonus = bonusFor(size.planeCount, size.length);
    return size;
}

void setUpShift(Game& game, const ShiftSetup& setup) {
    const int voiceCursor = setup.voiceSetCount > 0 ? Random(game.random, setup.voiceSetCount) : 0;
    const bool voicesUpward = RandomPercent(game.random) > voicesUpwardAbove;
    const ShiftSize size = shiftSizeFor(setup);
    const bool isEasy = setup.skill == Skill::easy;

    game.controllerName = setup.controllerName;
    game.cloudCover = setup.cloudCover;
    game.score = 0;
    game.shiftLength = size.length;
    game.bonus = size.bonus;
    if (!isEasy) {
        game.bonus += setup.cloudCover ? cloudCoverBonus : 0;
        game.bonus += setup.directEntry ? directEntryBonus : 0;
    }
    game.freeOrders = freeOrdersPerPlane * size.planeCount;
    game.flights.assign(static_cast<std::size_t>(size.planeCount), Flight{});
    game.possibleScore = game.bonus;
    for (const FlightIndex i : game.flightPlaces()) {
        scheduleFlight(game, i, setup.directEntry);
        const bool lands = game.flight(i).destinationKind == DestinationKind::airport;
        game.possibleScore += lands ? points::landing : points::exit;
    }
    handOutVoices(game, voiceCursor, voicesUpward, setup.voiceSetCount);
    makeClouds(game, !isEasy, setup.cloudSizes);
}

PointIndex pickVor(Game& game, VorKind kind) {
    std::vector<PointIndex> candidates;
    for (const PointIndex i : game.vorPlaces()) {
        if (kind == VorKind::exit ? game.vor(i).isExit : game.vor(i).isAirport) {
            candidates.push_back(i);
        }
    }
    if (kind == VorKind::arrivalAirport && RandomPercent(game.random) >= majorAirportFrom) {
        const auto major = std::find_if(candidates.begin(), candidates.end(),
                                        [&](PointIndex i) { return game.vor(i).isMajor; });
        if (major != candidates.end()) {
            return *major;
        }
    }
    return candidates[static_cast<std::size_t>(Random(game.random, static_cast<int>(candidates.size())))];
}

void placeFlight(Game& game, Flight& flight, bool directEntry) {
    if (flight.origin) {
        const Vor& origin = game.vor(*flight.origin);
        flight.plan =
            Plan{{.cell = origin.cell, .altitude = approachAltitude, .heading = origin.runwayHeading}};
        return;
    }
    const Quadrant side = drawSideAwayFrom(quadrantOf(game.vor(flight.destination).cell), game.random);
    const EntryPoint entry = drawEntry(side, game.random);
    const int altitude = Random(game.random, lowestEntry, highestEntry);
    flight.plan = Plan{{.cell = entry.cell, .altitude = altitude, .heading = entry.heading}};
    if (directEntry) {
        buildCourse(flight, game.vors(), flight.destination, altitude);
    }
}

} // namespace ventrel
