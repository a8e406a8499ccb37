#include "sim/schedule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "sim/cloud_cover.h"
#include "sim/custom_skill.h"
#include "small_airspace.h"

namespace ventrel {
namespace {

/// Three airports, the second of which is major, and one point that is both exit and airport.
SmallAirspace busyAirspace() {
    SmallAirspace air = SmallAirspace::usual().airport("MAJ", {30, 20}, 180);
    air.last().isMajor = true;
    air.airport("BTH", {40, 24}, 0);
    air.last().isExit = true;
    return air;
}

Game shift(std::uint32_t seed, const ShiftSetup& setup = {}) {
    return busyAirspace().game(setup, seed);
}

ShiftSetup customSetup(int planes, ClockSeconds length, int bonus = 0) {
    return {.skill = Skill::custom, .custom = {planes, length, bonus}};
}

TEST(Bonus, GrowsWithTheTraffic) {
    EXPECT_EQ(bonusFor(25, 2100_s), 475);
    EXPECT_EQ(bonusFor(35, 2400_s), 950);
    EXPECT_EQ(bonusFor(45, 2400_s), 1400);
    EXPECT_EQ(bonusFor(99, 7200_s), 825);
    EXPECT_EQ(bonusFor(99, 1500_s), 2550);
    EXPECT_EQ(bonusFor(10, 600_s), 1200);
    EXPECT_EQ(bonusFor(12, 1200_s), 0);
    EXPECT_EQ(bonusFor(10, 599_s), 0);
    EXPECT_EQ(bonusFor(0, 2100_s), 0);
    EXPECT_EQ(bonusFor(10, 1010_s), 0);
    EXPECT_EQ(bonusFor(-5, 2147483647_s), 0);
}

TEST(CustomShift, IsRefusedWithTheTextOfItsFault) {
    EXPECT_EQ(customShiftFault(96, 24), std::nullopt);
    EXPECT_EQ(customShiftFault(97, 24), TextId::tooManyPlanes);
    EXPECT_EQ(customShiftFault(0, 0), TextId::planesOutOfRange);
    EXPECT_EQ(customShiftFault(100, 120), TextId::planesOutOfRange);
    EXPECT_EQ(customShiftFault(1, 0), TextId::minutesOutOfRange);
    EXPECT_EQ(customShiftFault(1, 121), TextId::minutesOutOfRange);
    EXPECT_EQ(customShiftFault(1, 1073741824), TextId::minutesOutOfRange);
}

TEST(Schedule, HoldsTheTrafficOfItsSkill) {
    const Game easy = shift(3, {.skill = Skill::easy});
    EXPECT_EQ(easy.planeCount(), 12);
    EXPECT_EQ(easy.bonus, 0);
    EXPECT_EQ(easy.freeOrders, 60);
    EXPECT_TRUE(easy.clouds.empty());
    const auto arrives = [](const Flight& f) {
        return !f.origin && f.destinationKind == DestinationKind::airport;
    };
    EXPECT_EQ(std::count_if(easy.flights.begin(), easy.flights.end(), arrives), 3);
    EXPECT_EQ(std::count_if(easy.flights.begin() + 6, easy.flights.begin() + 9,
                            [](const Flight& f) { return f.groundState == GroundState::waiting; }),
              3);
    int possible = 0;
    for (const Flight& flight : easy.flights) {
        possible += flight.destinationKind == DestinationKind::exit ? 75 : 150;
    }
    EXPECT_EQ(easy.possibleScore, possible);

    EXPECT_EQ(shift(3, {.skill = Skill::hard}).bonus, 1400 + 300 - 100);
    EXPECT_EQ(shift(3, {.skill = Skill::moderate, .cloudCover = false, .directEntry = false}).bonus, 950);
}

TEST(Schedule, SmallAndLargeCustomShiftsCanBePlayed) {
    const Game one = shift(1, customSetup(1, 120 * clockMinute));
    ASSERT_EQ(one.planeCount(), 1);
    EXPECT_EQ(one.flight(FlightIndex{0}).scheduledAt, 60_s);
    EXPECT_EQ(one.flight(FlightIndex{0}).destinationKind, DestinationKind::exit);
    ASSERT_EQ(one.clouds.size(), 30U);
    EXPECT_EQ(one.clouds[29].appearAt, 3600_s);
    EXPECT_EQ(shift(1, customSetup(3, clockMinute)).clouds.size(), 0U);
    // Numbers that only an edited options file can hold.
    const Game wild = shift(1, customSetup(2000000, ClockSeconds{-7}, 2147483647));
    EXPECT_EQ(wild.planeCount(), 99);
    EXPECT_EQ(wild.shiftLength, 60_s);
    EXPECT_GT(wild.possibleScore, wild.bonus) << "no sum has run over";
    EXPECT_LT(shift(1, customSetup(1, clockMinute, -2147483647)).possibleScore, 0);
}

Quadrant sideEnteredFrom(int heading) {
    switch (heading) {
    case 135: return Quadrant::upperLeft;
    case 225: return Quadrant::upperRight;
    case 45: return Quadrant::lowerLeft;
    default: return Quadrant::lowerRight;
    }
}

void expectSoundFlight(const Game& game, FlightIndex index) {
    const Flight& flight = game.flight(index);
    EXPECT_EQ(flight.scheduledAt % stepInterval, 0_s);
    EXPECT_GE(flight.scheduledAt, stepInterval);
    EXPECT_LE(flight.scheduledAt, game.shiftLength);
    const Vor& destination = game.vor(flight.destination);
    EXPECT_TRUE(flight.destinationKind == DestinationKind::exit ? destination.isExit : destination.isAirport);
    if (flight.origin) {
        EXPECT_EQ(flight.plan[0].cell, game.vor(*flight.origin).cell);
        EXPECT_EQ(flight.plan[0].heading, game.vor(*flight.origin).runwayHeading);
        return;
    }
    EXPECT_FALSE(isOutsideScope(flight.plan[0].cell));
    EXPECT_NE(sideEnteredFrom(flight.plan[0].heading), quadrantOf(destination.cell));
    EXPECT_GE(flight.plan[0].altitude, 3);
    EXPECT_LE(flight.plan[0].altitude, 9);
    EXPECT_EQ(flight.plan.length() > 1, flight.plan[0].directTarget == flight.destination);
}

TEST(Schedule, EveryFlightHasAWayAndAnEntryAwayFromItsGoal) {
    for (std::uint32_t seed = 0; seed < 40; ++seed) {
        const Game game = shift(seed, {.skill = Skill::hard});
        EXPECT_EQ(game.flight(FlightIndex{0}).scheduledAt, 60_s);
        for (const FlightIndex i : game.flightPlaces()) {
            expectSoundFlight(game, i);
        }
    }
}

TEST(Schedule, ADepartureOfTheOnlyAirportMayHaveToLandWhereItTookOff) {
    int returns = 0;
    for (std::uint32_t seed = 0; seed < 20; ++seed) {
        const Game game = SmallAirspace::usual().game({.skill = Skill::hard}, seed);
        for (const Flight& flight : game.flights) {
            returns += flight.origin == flight.destination ? 1 : 0;
        }
    }
    EXPECT_GT(returns, 0);
}

TEST(Callsign, HasNoZeroNoDoubleDigitAndNoHeavyLightAircraft) {
    const std::set<std::string> light{"CH", "PC", "LR", "GF", "CS"};
    int heavies = 0;
    for (std::uint32_t seed = 0; seed < 30; ++seed) {
        for (const Flight& flight : shift(seed, {.skill = Skill::hard}).flights) {
            const std::string sign{std::string_view{flight.callsign}};
            EXPECT_EQ(sign.find('0'), std::string::npos);
            EXPECT_EQ(std::adjacent_find(sign.begin() + 2, sign.end()), sign.end()) << sign;
            EXPECT_LE(sign.size(), 6U);
            EXPECT_EQ(flight.callsignPhrase.size() + 1, sign.size());
            EXPECT_EQ(sign.back() == 'H', flight.heavy);
            EXPECT_FALSE(flight.heavy && light.count(sign.substr(0, 2)) == 1);
            heavies += flight.heavy ? 1 : 0;
        }
    }
    EXPECT_GT(heavies, 0);
}

TEST(Voices, AreHandedOutInOrderOfAppearanceAndWrapRound) {
    std::set<int> directions;
    for (std::uint32_t seed = 0; seed < 10; ++seed) {
        Game game = shift(seed, {.skill = Skill::normal, .voiceSetCount = 5});
        std::stable_sort(game.flights.begin(), game.flights.end(),
                         [](const Flight& a, const Flight& b) { return a.scheduledAt < b.scheduledAt; });
        const int step =
            (game.flight(FlightIndex{1}).pilotVoice - game.flight(FlightIndex{0}).pilotVoice + 5) % 5;
        for (std::size_t i = 1; i < game.flights.size(); ++i) {
            EXPECT_EQ(game.flights[i].pilotVoice, (game.flights[i - 1].pilotVoice + step) % 5);
        }
        directions.insert(step);
    }
    EXPECT_EQ(directions, (std::set<int>{1, 4}));
    for (const Flight& flight : shift(1, {.voiceSetCount = 0}).flights) {
        EXPECT_EQ(flight.pilotVoice, 0);
    }
}

TEST(Clouds, DriftInTogetherAndOnlyTheFirstThreeAreThereAtOnce) {
    const std::vector<Size> sizes(16, Size{600, 600}); // wider than the picture: still no harm
    std::set<int> drifts;
    for (std::uint32_t seed = 0; seed < 60; ++seed) {
        const Game game = shift(seed, {.skill = Skill::hard, .cloudSizes = sizes});
        ASSERT_EQ(game.clouds.size(), 10U);
        for (std::size_t i = 0; i < game.clouds.size(); ++i) {
            const Cloud& cloud = game.clouds[i];
            EXPECT_EQ(cloud.driftHeading, game.clouds[0].driftHeading);
            EXPECT_EQ(cloud.appearAt == 0_s, i < 3);
            const bool isOnPicture =
                cloud.start.x >= 0 && cloud.start.x < 539 && cloud.start.y >= 0 && cloud.start.y < 539;
            EXPECT_EQ(isOnPicture, i < 3);
            EXPECT_LT(cloud.image, 11);
            const Cell drift = stepCell({0, 0}, cloud.driftHeading);
            const auto edge = [](int step) { return step > 0 ? -600 : 539; };
            EXPECT_TRUE(isOnPicture ||
                        (drift.x != 0 ? cloud.start.x == edge(drift.x) : cloud.start.y == edge(drift.y)))
                << "to " << cloud.driftHeading << " from " << cloud.start.x << ", " << cloud.start.y;
            drifts.insert(cloud.driftHeading);
        }
    }
    EXPECT_EQ(drifts.size(), 8U);
}

TEST(Clouds, GoOnDriftingUntilNothingOfThemIsLeft) {
    constexpr int picture = 539;
    constexpr Size size{60, 40};
    for (int heading = 0; heading < fullCircle; heading += headingStep) {
        Cloud cloud{.position = {240, 250}, .size = size, .driftHeading = heading};
        Point before;
        for (int step = 0; step < 2000 && CloudDrift(cloud, picture); ++step) {
            before = cloud.position;
        }
        const auto [x, y] = cloud.position;
        EXPECT_TRUE(x < -size.width || y < -size.height || x > picture || y > picture) << heading;
        EXPECT_FALSE(before.x < -size.width || before.y < -size.height || before.x > picture ||
                     before.y > picture)
            << heading;
        cloud.visible = false;
        EXPECT_FALSE(CloudDrift(cloud, picture));
        EXPECT_EQ(cloud.position, (Point{x, y})) << "it rests";
    }
}

} // namespace
} // namespace ventrel
