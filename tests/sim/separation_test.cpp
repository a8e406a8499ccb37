#include "sim/separation.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "small_airspace.h"

namespace ventrel {
namespace {

/// Lines without the radio calls, whose wording is drawn.
Lines withoutCalls(Lines lines) {
    std::erase_if(lines, [](const std::string& line) { return line.starts_with("radio"); });
    return lines;
}

TEST(Separation, TouchingFlightsAtOneAltitudePayAtEachMoveOfTheirs) {
    TestGame test;
    Flight& first = test.fly({24, 30}, 5, 90, SmallAirspace::northWest);
    Flight& second = test.fly({25, 31}, 5, 90, SmallAirspace::northWest);
    second.activatedAt = 45_s;
    test.game.score = 500;
    const Lines lines = test.step(60_s);
    ASSERT_EQ(lines.size(), 5U);
    EXPECT_EQ(lines[0], "12 F0, Emergency! Near miss with F1");
    EXPECT_TRUE(lines[1].starts_with("radio mayday, mayday ") &&
                lines[2].starts_with("radio mayday, mayday "));
    EXPECT_EQ(lines[3], "score -100 = 400");
    EXPECT_EQ(lines[4], "lamp 2");
    EXPECT_EQ(first.alert, Alert::nearMiss);
    EXPECT_EQ(second.alert, Alert::none);
    // The red lamp silences the second pair of calls, and their draws.
    const std::uint32_t state = test.game.random.state;
    EXPECT_EQ(test.step(75_s), (Lines{"12 F1, Emergency! Near miss with F0", "score -100 = 300"}));
    EXPECT_EQ(test.game.random.state, state);
}

TEST(Separation, AltitudeGroundAndDistanceKeepFlightsApart) {
    TestGame test;
    test.fly({23, 24}, 1, 135, SmallAirspace::northWest);
    test.wait(PointIndex{0}, SmallAirspace::northWest);  // on the ground beside it
    test.fly({22, 24}, 2, 90, SmallAirspace::northWest); // above it
    test.fly({21, 26}, 1, 90, SmallAirspace::northWest); // two cells away
    Flight& gone = test.fly({23, 24}, 1, 90, SmallAirspace::northWest);
    gone.inPlay = false;
    Flight& notYet = test.fly({23, 24}, 1, 90, SmallAirspace::northWest);
    notYet.activatedAt = 0_s;
    notYet.scheduledAt = 900_s;
    EXPECT_EQ(test.step(60_s), Lines{});
}

TEST(Separation, TheFlightThatMovesSecondFindsTheCollision) {
    TestGame test;
    const Flight& standing = test.fly({24, 30}, 5, 90, SmallAirspace::northWest);
    test.fly({25, 30}, 5, 270, SmallAirspace::northWest);
    test.fly({10, 24}, 5, 90, SmallAirspace::northWest).current().speed = Speed::fast;
    test.game.flight(FlightIndex{1}).activatedAt = 45_s;
    EXPECT_EQ(withoutCalls(test.step(60_s)),
              (Lines{"12 F0, Emergency! Near miss with F1", "score -100 = 0", "lamp 2"}));
    EXPECT_EQ(standing.current().cell, (Cell{25, 30}));
    EXPECT_EQ(test.step(75_s), (Lines{"ended -1"}));
    EXPECT_EQ(test.game.collisionFlights, (std::array{FlightIndex{0}, FlightIndex{1}}));
    EXPECT_EQ(test.game.flight(FlightIndex{2}).current().cell.x, 11); // nobody moved any more
}

TEST(Separation, NearMissesBeforeTheCollisionAreStillPaid) {
    TestGame test;
    test.fly({24, 31}, 5, 90, SmallAirspace::northWest).activatedAt = 45_s;
    test.fly({24, 30}, 5, 90, SmallAirspace::northWest);
    test.fly({24, 30}, 5, 90, SmallAirspace::northWest);
    test.game.score = 300;
    EXPECT_EQ(withoutCalls(test.step(60_s)),
              (Lines{"12 F1, Emergency! Near miss with F0", "score -100 = 200", "ended -1"}));
    EXPECT_EQ(test.game.collisionFlights, (std::array{FlightIndex{2}, FlightIndex{1}}));
}

TEST(Separation, OverlooksNobodyWhereverFlightsStandAndMove) {
    RandomGenerator random{5};
    const auto place = [&](Flight& flight) {
        // A few columns and rows, here and far outside the grid, where bits of packed numbers run out.
        constexpr std::array corners{0, 30, 62, -3, -1025, 1021, -70000};
        const auto coordinate = [&] {
            return corners.at(random.next() % corners.size()) + Random(random, 5);
        };
        flight.current().cell = {coordinate(), coordinate()};
        flight.current().altitude = Random(random, 1, 3);
        flight.inPlay = RandomPercent(random) < 90;
    };
    std::vector<Flight> flights(60);
    std::vector<FlightIndex> all;
    for (Flight& flight : flights) {
        flight.activatedAt = 30_s;
        place(flight);
        all.emplace_back(static_cast<int>(all.size()));
    }
    Crowd crowd{flights, all};
    int neighbours = 0;
    for (int move = 0; move < 500; ++move) {
        const FlightIndex mover{Random(random, 60)};
        place(flights[mover.place()]);
        crowd.note(mover, flights[mover.place()]);
        const PlanStep& here = flights[mover.place()].current();
        std::vector<FlightIndex> found;
        for (auto near = crowd.nextNear(here, FlightIndex{0}); near;
             near = crowd.nextNear(here, FlightIndex{near->number() + 1})) {
            found.push_back(*near);
        }
        for (const FlightIndex i : all) {
            const PlanStep& there = flights[i.place()].current();
            if (i != mover && flights[mover.place()].inPlay && flights[i.place()].inPlay &&
                there.altitude == here.altitude && areNeighbours(there.cell, here.cell)) {
                ++neighbours;
                EXPECT_TRUE(std::ranges::binary_search(found, i)) << "move " << move;
            }
        }
    }
    EXPECT_GT(neighbours, 50) << "or the test sees nothing";
}

TEST(Lamps, TheLaterOfFailureAndNearMissCountsAndSuccessOnlyAlone) {
    TestGame test;
    const auto level = [&](std::vector<Alert> alerts) {
        test.game.flights.clear();
        for (const Alert alert : alerts) {
            test.fly({24, 30}, 5, 90, SmallAirspace::northWest).alert = alert;
        }
        return gatherAlertLevel(test.game);
    };
    EXPECT_EQ(level({Alert::nearMiss, Alert::failure}), LampLevel::yellow);
    EXPECT_EQ(level({Alert::failure, Alert::nearMiss, Alert::success}), LampLevel::red);
    EXPECT_EQ(level({Alert::success, Alert::failure}), LampLevel::yellow);
    EXPECT_EQ(level({Alert::none, Alert::success, Alert::none}), LampLevel::green);
    EXPECT_EQ(level({}), LampLevel::none);
    test.wait(PointIndex{0}, SmallAirspace::northWest).alert = Alert::failure;
    EXPECT_EQ(gatherAlertLevel(test.game), LampLevel::none);
}

TEST(Lamps, OnlyChangesAreTold) {
    TestGame test;
    for (const LampLevel level : {LampLevel::none, LampLevel::yellow, LampLevel::yellow, LampLevel::red}) {
        setLamp(test.game, test.events, level);
    }
    EXPECT_EQ(test.events.take(), (Lines{"lamp 1", "lamp 2"}));
    EXPECT_TRUE(isLampLit(test.game, LampLevel::red));
    EXPECT_FALSE(isLampLit(test.game, LampLevel::yellow));
    EXPECT_TRUE(isLampLit(test.game, LampLevel::none));
}

} // namespace
} // namespace ventrel
