// The automatic controller: what it foresees, and how well it plays; and the conflicts that a player is
// warned of.

#include "controller/controller.h"

#include <gtest/gtest.h>

#include "../sim/small_airspace.h"
#include "controller/choices.h"
#include "controller/prediction.h"
#include "controller/traffic.h"

namespace ventrel {
namespace {

/// What a game without further orders loses in the time that the look ahead covers.
int pointsLost(Game game) {
    struct Losses final : SimulationEvents {
        int points = 0;
        void scoreChanged(const ScoreChange& change) override {
            points -= change.delta < 0 ? change.delta : 0;
        }
    } losses;
    for (int i = 0; i < stepsAhead && step(game, losses); ++i) {
    }
    return losses.points;
}

/// The pairs' conflicts as the look ahead counts them.
int pointsForeseen(const Game& game) {
    const Traffic traffic{game};
    int points = 0;
    for (const FlightIndex i : game.flightPlaces()) {
        points += traffic.conflictsOf(i, game.flight(i));
    }
    return points / 2;
}

TEST(Traffic, ForeseesWhatTheGameWillJudge) {
    TestGame test;
    test.game.score = 10000;
    test.fly({20, 24}, 5, 90, PointIndex{1});
    test.fly({28, 25}, 5, 270, PointIndex{1});
    test.fly({22, 33}, 5, 0, PointIndex{1}).current().speed = Speed::fast;
    test.fly({10, 41}, 5, 90, PointIndex{1});
    test.fly({12, 41}, 6, 90, PointIndex{1});
    test.step(30_s);
    const int lost = pointsLost(test.game);
    const int foreseen = pointsForeseen(test.game);
    EXPECT_GE(lost, 300);
    // What is far ahead weighs less, down to a half.
    EXPECT_LE(foreseen, lost);
    EXPECT_GE(foreseen, lost / 2);
}

TEST(Traffic, CountsACollisionMoreThanAnythingElse) {
    TestGame test;
    test.fly({20, 24}, 5, 90, PointIndex{1});
    test.fly({28, 24}, 5, 270, PointIndex{1});
    test.step(30_s);
    EXPECT_GT(pointsForeseen(test.game), 20000);
}

TEST(Prediction, LooksThreeMovesAheadAndStaysTheSameBetweenSteps) {
    using Conflicts = std::vector<PredictedConflict>;
    constexpr FlightIndex first{0};
    constexpr FlightIndex second{1};
    const std::vector<std::pair<int, Conflicts>> cases{
        {27, {}}, {26, {{second, first}}}, {25, {{first, second}, {second, first, true}}}};
    for (const Speed speed : {Speed::slow, Speed::normal, Speed::fast}) {
        for (const auto& [column, conflicts] : cases) {
            TestGame test;
            test.fly({20, 24}, 5, 90, PointIndex{1}).current().speed = speed;
            test.fly({column, 24}, 5, 270, PointIndex{1}).current().speed = speed;
            test.game.lastStepTime = 30_s;
            // From the step until the next one has acted.
            for (const ClockSeconds now : {30_s, 37_s, 45_s}) {
                test.game.clock = now;
                EXPECT_EQ(predictConflicts(test.game), conflicts)
                    << "column " << column << " at " << now.count() << ", speed " << static_cast<int>(speed);
            }
        }
    }
}

TEST(Controller, NeverAsksForADirectCourseThatThePilotRefuses) {
    TestGame test;
    for (const Cell cell : {Cell{12, 12}, Cell{13, 11}, Cell{14, 12}}) {
        for (const int altitude : {1, 6, 9, 10}) {
            test.game.flights.clear();
            const Flight& flight = test.fly(cell, altitude, 90, SmallAirspace::northWest);
            EXPECT_EQ(judgeOrder(test.game, FlightIndex{0}, bestWayToExit(test.game, flight)),
                      OrderVerdict::accepted)
                << cell.x << " " << cell.y << " " << altitude;
        }
    }
}

TEST(Controller, OrdersNothingTwiceAndAlwaysTheSame) {
    Game game = SmallAirspace::usual().game({.skill = Skill::hard}, 5);
    const Controller controller{game};
    int orders = 0;
    while (step(game)) {
        const auto decided = controller.decide(game);
        EXPECT_EQ(decided, controller.decide(game));
        for (const ControllerOrder& next : decided) {
            EXPECT_EQ(judgeOrder(game, next.flight, next.order), OrderVerdict::accepted);
            executeOrder(game, next.flight, next.order);
            ++orders;
        }
        for (const ControllerOrder& next : controller.decide(game)) {
            const Flight& flight = game.flight(next.flight);
            EXPECT_FALSE(flight.isAirborne() && changesNothing(game, flight, next.order));
        }
    }
    EXPECT_EQ(game.phase, Phase::lastLine) << "every flight was handled";
    EXPECT_GT(orders, game.planeCount());
}

TEST(Controller, BringsEveryFlightHomeWithinTheFreeOrders) {
    for (const Skill skill : {Skill::easy, Skill::normal, Skill::hard}) {
        int score = 0;
        int possible = 0;
        for (std::uint32_t seed = 1; seed <= 8; ++seed) {
            Game game =
                SmallAirspace::usual().airport("TWO", {32, 28}, 180).game({.skill = skill}, seed * 977);
            const Controller controller{game};
            while (step(game)) {
                for (const ControllerOrder& next : controller.decide(game)) {
                    executeOrder(game, next.flight, next.order);
                }
            }
            EXPECT_EQ(game.phase, Phase::lastLine);
            EXPECT_GT(game.freeOrders, 0);
            score += game.score;
            possible += game.possibleScore;
        }
        EXPECT_GE(score * 100, possible * 97) << "skill " << static_cast<int>(skill);
    }
}

} // namespace
} // namespace ventrel
