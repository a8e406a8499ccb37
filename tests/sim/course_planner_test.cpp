#include "sim/course_planner.h"

#include <gtest/gtest.h>

#include "small_airspace.h"

namespace ventrel {
namespace {

Flight flightAt(Cell cell, int altitude, int heading) {
    Flight flight;
    flight.plan[0] = {.cell = cell, .altitude = altitude, .heading = heading};
    return flight;
}

constexpr PointIndex aimedPoint{2};

std::vector<Vor> targetAt(Cell cell) {
    Vor vor;
    vor.cell = cell;
    return {Vor{}, Vor{}, vor};
}

std::vector<int> headings(const Flight& flight) {
    std::vector<int> result;
    for (const PlanStep& step : flight.plan.steps()) {
        result.push_back(step.heading);
    }
    return result;
}

using Headings = std::vector<int>;

TEST(Course, IsNotMadeForATargetBesideTheFlight) {
    for (const Cell beside : {Cell{10, 10}, Cell{9, 11}, Cell{11, 10}}) {
        Flight flight = flightAt({10, 10}, 5, 0);
        flight.plan[0].directTarget = PointIndex{77};
        EXPECT_FALSE(buildCourse(flight, targetAt(beside), aimedPoint, 10));
        EXPECT_EQ(flight.plan.length(), 1);
        EXPECT_EQ(flight.plan[0].directTarget, PointIndex{77});
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
        ASSERT_TRUE(buildCourse(flight, targetAt(behind), aimedPoint, 5));
        EXPECT_EQ(flight.plan[1].heading, heading == 270 ? 225 : (heading + 45) % 360);
        EXPECT_EQ(flight.lastStep().cell, behind);
    }
}

TEST(Course, ReachesItsTargetAtTheAltitudeAndEndsThere) {
    Flight flight = flightAt({10, 10}, 5, 0);
    ASSERT_TRUE(buildCourse(flight, targetAt({10, 20}), aimedPoint, 7));
    EXPECT_EQ(flight.plan[1].cell, (Cell{11, 9}));
    EXPECT_EQ(flight.plan[1].altitude, 6);
    EXPECT_EQ(flight.plan[2].altitude, 7);
    for (int i = 0; i < flight.plan.length() - 1; ++i) {
        EXPECT_EQ(flight.plan[i].directTarget, aimedPoint);
    }
    EXPECT_EQ(flight.lastStep().directTarget, DirectTarget::none());
    EXPECT_EQ(flight.lastStep().cell, (Cell{10, 20}));
    EXPECT_EQ(flight.lastStep().altitude, 7);
}

TEST(Course, CirclesBackUntilTheAltitudeIsReachedOrThePlanIsFull) {
    Flight climbing = flightAt({10, 10}, 1, 90);
    ASSERT_TRUE(buildCourse(climbing, targetAt({14, 10}), aimedPoint, 10));
    EXPECT_EQ(climbing.lastStep().cell, (Cell{14, 10}));
    EXPECT_EQ(climbing.lastStep().altitude, 10);
    EXPECT_GT(climbing.plan.length(), 9);

    Flight far = flightAt({-60, 10}, 5, 90);
    ASSERT_TRUE(buildCourse(far, targetAt({40, 10}), aimedPoint, 5));
    EXPECT_EQ(far.plan.length(), 47);
    EXPECT_EQ(far.plan[46].directTarget, DirectTarget::none());
    EXPECT_EQ(far.plan[46].cell, (Cell{-14, 10}));
}

TEST(Course, ByOrderTakesTheSpeedAndEndsAHold) {
    Flight flight = flightAt({10, 10}, 5, 90);
    planHold(flight, 5);
    flight.planIndex = 3;
    const PlanStep now = flight.current();
    planDirect(flight, targetAt({30, 12}), aimedPoint, 5, Speed::fast);
    EXPECT_EQ(flight.planIndex, 0);
    EXPECT_EQ(flight.plan[0].cell, now.cell);
    for (int i = 0; i < flight.plan.length(); ++i) {
        EXPECT_EQ(flight.plan[i].hold, false);
        EXPECT_EQ(flight.plan[i].speed, Speed::fast);
    }
}

TEST(Turn, GoesTheShorterWayAndLeftForAReversal) {
    const auto turn = [](int from, int to) {
        Flight flight = flightAt({20, 20}, 5, from);
        planTurn(flight, to, 5, Speed::normal);
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
    flight.plan[0].hold = true;
    flight.plan[0].directTarget = PointIndex{4};
    planTurn(flight, 180, 10, Speed::slow);
    EXPECT_EQ(flight.plan.length(), 8);
    EXPECT_EQ(headings(flight), (Headings{90, 135, 180, 180, 180, 180, 180, 180}));
    EXPECT_EQ(flight.plan[7].altitude, 10);
    EXPECT_EQ(flight.plan[0].directTarget, DirectTarget::none());
    EXPECT_EQ(flight.plan[0].hold, false);
    EXPECT_EQ(flight.plan[7].speed, Speed::slow);
}

TEST(Turn, OfAFlightOnNoHeadingEndsWithTheFullPlan) {
    Flight flight = flightAt({20, 20}, 3, 37);
    planTurn(flight, 180, 3, Speed::normal);
    EXPECT_EQ(flight.plan.length(), 47);
}

TEST(Hold, IsOneClockwiseCircleBackToItsCell) {
    Flight flight = flightAt({20, 20}, 5, 90);
    planHold(flight, 3);
    ASSERT_EQ(flight.plan.length(), 9);
    EXPECT_EQ(headings(flight), (Headings{90, 135, 180, 225, 270, 315, 0, 45, 90}));
    const std::vector<Cell> cells{{20, 20}, {21, 21}, {21, 22}, {20, 23}, {19, 23},
                                  {18, 22}, {18, 21}, {19, 20}, {20, 20}};
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(flight.plan[i].cell, cells[static_cast<std::size_t>(i)]);
        EXPECT_EQ(flight.plan[i].hold, i < 8);
        EXPECT_EQ(flight.plan[i].directTarget, i < 8 ? PointIndex{1} : DirectTarget{});
        EXPECT_EQ(flight.plan[i].altitude, std::max(3, 5 - i));
    }
}

} // namespace
} // namespace ventrel
