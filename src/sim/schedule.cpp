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

constexpr ClockSeconds firstFlightAt = 60;
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
    {12, 1200, 0},
    {25, 2100, 0},
    {35, 2400, 0},
    {45, 2400, 0},
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

ClockSeconds drawScheduledTime(const GameState& game, RandomGenerator& random) {
    const ClockSeconds time = Random(random, stepInterval, game.shiftLength);
    return time - time % stepInterval;
}

VorIndex pickOtherAirport(const GameState& game, VorIndex origin, RandomGenerator& random) {
    VorIndex destination = origin;
    for (int draw = 0; draw < mostDestinationDraws && destination == origin; ++draw) {
        destination = pickVor(game, VorKind::arrivalAirport, random);
    }
    return destination;
}

void setRoute(const GameState& game, Flight& flight, Traffic traffic, RandomGenerator& random) {
    bool toAirport = traffic == Traffic::arrival;
    if (traffic == Traffic::departure) {
        flight.groundState = GroundState::waiting;
        flight.originKind = OriginKind::airport;
        flight.origin = pickVor(game, VorKind::departureAirport, random);
        toAirport = RandomPercent(random) > exitDrawLimit;
    }
    flight.destinationKind = toAirport ? DestinationKind::airport : DestinationKind::exit;
    if (toAirport && traffic == Traffic::departure) {
        flight.destination = pickOtherAirport(game, flight.origin, random);
    } else {
        flight.destination = pickVor(game, toAirport ? VorKind::arrivalAirport : VorKind::exit, random);
    }
}

void scheduleFlight(const GameState& game, FlightIndex index, Flight& flight, bool directEntry,
                    RandomGenerator& random) {
    flight.inPlay = true;
    flight.scheduledAt = index == 0 ? firstFlightAt : drawScheduledTime(game, random);
    setRoute(game, flight, trafficOf(index, game.planeCount()), random);
    placeFlight(game, flight, directEntry, random);
    makeCallsign(game, flight, random);
}

/// Hands the voices out in the order in which the pilots will be heard first.
void handOutVoices(GameState& game, int cursor, bool upward, int voiceSetCount) {
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

ShiftSize shiftSizeFor(Skill skill, const Options& options) {
    if (skill == Skill::custom) {
        return {std::clamp(options.customPlanes, 1, mostPlanes),
                std::clamp(options.customSched, secondsPerMinute, mostMinutes * secondsPerMinute),
                options.customBonus};
    }
    ShiftSize size = shiftSizes.at(static_cast<std::size_t>(skill));
    size.bonus = bonusFor(size.planeCount, size.shiftLength);
    return size;
}

void setUpShift(GameState& game, const ShiftSetup& setup, const Options& options, RandomGenerator& random) {
    const int voiceCursor = setup.voiceSetCount > 0 ? Random(random, setup.voiceSetCount) : 0;
    const bool voicesUpward = RandomPercent(random) > voicesUpwardAbove;
    const ShiftSize size = shiftSizeFor(setup.skill, options);
    const bool isEasy = setup.skill == Skill::easy;

    game.score = 0;
    game.shiftLength = size.shiftLength;
    game.bonus = size.bonus;
    if (!isEasy) {
        game.bonus += options.stormTrak != 0 ? cloudCoverBonus : 0;
        game.bonus += options.directEntry != 0 ? directEntryBonus : 0;
    }
    game.freeOrders = freeOrdersPerPlane * size.planeCount;
    game.flights.assign(static_cast<std::size_t>(size.planeCount), Flight{});
    game.possibleScore = game.bonus;
    for (FlightIndex i = 0; i < size.planeCount; ++i) {
        scheduleFlight(game, i, game.flight(i), options.directEntry != 0, random);
        const bool lands = game.flight(i).destinationKind == DestinationKind::airport;
        game.possibleScore += lands ? points::landing : points::exit;
    }
    handOutVoices(game, voiceCursor, voicesUpward, setup.voiceSetCount);
    makeClouds(game, !isEasy, setup.cloudSizes, random);
}

VorIndex pickVor(const GameState& game, VorKind kind, RandomGenerator& random) {
    std::vector<VorIndex> candidates;
    for (VorIndex i = 0; i < game.vorCount(); ++i) {
        if (kind == VorKind::exit ? game.vor(i).isExit : game.vor(i).isAirport) {
            candidates.push_back(i);
        }
    }
    if (kind == VorKind::arrivalAirport && RandomPercent(random) >= majorAirportFrom) {
        const auto major = std::find_if(candidates.begin(), candidates.end(),
                                        [&](VorIndex i) { return game.vor(i).isMajor; });
        if (major != candidates.end()) {
            return *major;
        }
    }
    return candidates[static_cast<std::size_t>(Random(random, static_cast<int>(candidates.size())))];
}

void placeFlight(const GameState& game, Flight& flight, bool directEntry, RandomGenerator& random) {
    PlanStep& step = flight.plan[0];
    step = {};
    if (flight.origin != noVor) {
        const Vor& origin = game.vor(flight.origin);
        step.setCell(origin.cell);
        step.altitude = approachAltitude;
        step.heading = origin.runwayHeading;
        return;
    }
    const Quadrant side = drawSideAwayFrom(quadrantOf(game.vor(flight.destination).cell), random);
    const EntryPoint entry = drawEntry(side, random);
    step.setCell(entry.cell);
    step.heading = entry.heading;
    step.altitude = Random(random, lowestEntry, highestEntry);
    if (directEntry) {
        buildCourse(flight, game.vors, flight.destination, step.altitude);
    }
}

} // namespace ventrel
