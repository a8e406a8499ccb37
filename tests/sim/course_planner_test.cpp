#include "sim/course_planner.h"

#include <gtest/gtest.h>

#include "small_airspace.h"

namespace ventrel {
namespace {

Flight flightAt(Cell cell, int altitude, int heading) {
    Flight flight;
    flight.plan[0] = {.x = cell.x, .y = cell.y, .altitude = altitude, .heading = heading};
    return flight;
}

std::vector<Vor> targetAt(Cell cell) {
    Vor vor;
    vor.cell = cell;
    return {Vor{}, Vor{}, vor};
}

std::vector<int> headings(const Flight& flight) {
    std::vector<int> result;
    for (int i = 0; i < flight.planLength; ++i) {
        result.push_back(flight.plan[static_cast<std::size_t>(i)].heading);
    }
    return result;
}

using Headings = std::vector<int>;

TEST(Course, IsNotMadeForATargetBesideTheFlight) {
    for (const Cell beside : {Cell{10, 10}, Cell{9, 11}, Cell{11, 10}}) {
        Flight flight = flightAt({10, 10}, 5, 0);
        flight.plan[0].directTarget = 77;
        EXPECT_FALSE(buildCourse(flight, targetAt(beside), 2, 10));
        EXPECT_EQ(flight.planLength, 1);
        EXPECT_EQ(flight.plan[0].directTarget, 77);
    }
}

TEST(Course, TurnsRightForATargetBehindButLeftFromTheWest) {
    // By eighths: every heading with its target straight behind.
    for (int heading = 0; heading < 360; heading += 45) {
        Flight flight = flightAt({20, 20}, 5, heading);
        Cell behind{20, 20};
        for (int i = 0; i < 6; ++i) {
            behind = stepCell(behind, (heading + 180) % 360);
        }
        ASSERT_TRUE(buildCourse(flight, targetAt(behind), 2, 5));
        EXPECT_EQ(flight.plan[1].heading, heading == 270 ? 225 : (heading + 45) % 360);
        EXPECT_EQ(flight.lastStep().cell(), behind);
    }
}

TEST(Course, ReachesItsTargetAtTheAltitudeAndEndsThere) {
    Flight flight = flightAt({10, 10}, 5, 0);
    ASSERT_TRUE(buildCourse(flight, targetAt({10, 20}), 2, 7));
    EXPECT_EQ(flight.plan[1].cell(), (Cell{11, 9}));
    EXPECT_EQ(flight.plan[1].altitude, 6);
    EXPECT_EQ(flight.plan[2].altitude, 7);
    for (int i = 0; i < flight.planLength - 1; ++i) {
        EXPECT_EQ(flight.plan[static_cast<std::size_t>(i)].directTarget, 2);
    }
    EXPECT_EQ(flight.lastStep().directTarget, noVor);
    EXPECT_EQ(flight.lastStep().cell(), (Cell{10, 20}));
    EXPECT_EQ(flight.lastStep().altitude, 7);
}

TEST(Course, CirclesBackUntilTheAltitudeIsReachedOrThePlanIsFull) {
    Flight climbing = flightAt({10, 10}, 1, 90);
    ASSERT_TRUE(buildCourse(climbing, targetAt({14, 10}), 2, 10));
    EXPECT_EQ(climbing.lastStep().cell(), (Cell{14, 10}));
    EXPECT_EQ(climbing.lastStep().altitude, 10);
    EXPECT_GT(climbing.planLength, 9);

    Flight far = flightAt({-60, 10}, 5, 90);
    ASSERT_TRUE(buildCourse(far, targetAt({40, 10}), 2, 5));
    EXPECT_EQ(far.planLength, 47);
    EXPECT_EQ(far.plan[46].directTarget, noVor);
    EXPECT_EQ(far.plan[46].cell(), (Cell{-14, 10}));
}

TEST(Course, ByOrderTakesTheSpeedAndEndsAHold) {
    Flight flight = flightAt({10, 10}, 5, 90);
    planHold(flight, 5);
    flight.planIndex = 3;
    const PlanStep now = flight.current();
    planDirect(flight, targetAt({30, 12}), 2, 5, fastSpeed);
    EXPECT_EQ(flight.planIndex, 0);
    EXPECT_EQ(flight.plan[0].cell(), now.cell());
    for (int i = 0; i < flight.planLength; ++i) {
        EXPECT_EQ(flight.plan[static_cast<std::size_t>(i)].hold, 0);
        EXPECT_EQ(flight.plan[static_cast<std::size_t>(i)].speed, fastSpeed);
    }
}

TEST(Turn, GoesTheShorterWayAndLeftForAReversal) {
    const auto turn = [](int from, int to) {
        Flight flight = flightAt({20, 20}, 5, from);
        planTurn(flight, to, 5, normalSpeed);
        return headings(flight);
    };
    EXPECT_EQ(turn(0, 180), (Headings{0, 315, 270, 225, 180}));
    EXPECT_EQ(turn(0, 225), (Headings{0, 315, 270, 225}));
    EXPECT_EQ(turn(0, 135), (Headings{0, 45, 90, 135}));
    EXPECT_EQ(turn(315, 45), (Headings{315, 0, 45}));
    EXPECT_EQ(turn(90, 270), (Headings{90, 45, 0, 315, 270}));
    EXPECT_EQ(turn(90, 90), (Headings{90}));
}

TEST(Turn, ClimbsAndTurnsAtOnce) {
    Flight flight = flightAt({20, 20}, 3, 90);
    flight.plan[0].hold = 1;
    flight.plan[0].directTarget = 4;
    planTurn(flight, 180, 10, slowSpeed);
    EXPECT_EQ(flight.planLength, 8);
    EXPECT_EQ(headings(flight), (Headings{90, 135, 180, 180, 180, 180, 180, 180}));
    EXPECT_EQ(flight.plan[7].altitude, 10);
    EXPECT_EQ(flight.plan[0].directTarget, noVor);
    EXPECT_EQ(flight.plan[0].hold, 0);
    EXPECT_EQ(flight.plan[7].speed, slowSpeed);
}

TEST(Turn, OfAFlightOnNoHeadingEndsWithTheFullPlan) {
    Flight flight = flightAt({20, 20}, 3, 37);
    planTurn(flight, 180, 3, normalSpeed);
    EXPECT_EQ(flight.planLength, 47);
}

TEST(Hold, IsOneClockwiseCircleBackToItsCell) {
    Flight flight = flightAt({20, 20}, 5, 90);
    planHold(flight, 3);
    ASSERT_EQ(flight.planLength, 9);
    EXPECT_EQ(headings(flight), (Headings{90, 135, 180, 225, 270, 315, 0, 45, 90}));
    const std::vector<Cell> cells{{20, 20}, {21, 21}, {21, 22}, {20, 23}, {19, 23},
                                  {18, 22}, {18, 21}, {19, 20}, {20, 20}};
    for (std::size_t i = 0; i < cells.size(); ++i) {
        EXPECT_EQ(flight.plan[i].cell(), cells[i]);
        EXPECT_EQ(flight.plan[i].hold, i < 8 ? 1 : 0);
        EXPECT_EQ(flight.plan[i].directTarget, i < 8 ? 1 : noVor);
        EXPECT_EQ(flight.plan[i].altitude, std::max(3, 5 - static_cast<int>(i)));
    }
}

} // namespace
} // namespace ventrel
