// What must hold in every shift, whatever is drawn and whatever is ordered.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "sim/flight_step.h"
#include "sim/orders.h"
#include "small_airspace.h"

namespace ventrel {
namespace {

constexpr ClockSeconds longestRun = 18000;

/// A shift with a controller who presses EXEC at random.
struct WildShift {
    TestGame test;
    RandomGenerator player;
    ClockSeconds now = -15;
    bool running = true;

    explicit WildShift(std::uint32_t seed) : player{seed + 1} {
        test.random.state = seed * 2654435761U;
        test.game.lastStepTime = -1;
        Options options;
        options.directEntry = seed % 3 != 0 ? 1 : 0;
        setUpShift(test.game, {.skill = static_cast<Skill>(seed % 4), .voiceSetCount = 3}, options,
                   test.random);
    }

    void order() {
        const FlightIndex index = Random(player, test.game.planeCount());
        PanelOrder order{.altitude = Random(player, 1, 10), .heading = 45 * Random(player, 8)};
        order.speed = Random(player, 3) - 1;
        order.hold = Random(player, 2);
        order.directTarget = Random(player, test.game.vorCount() + order.hold + 1) - 1;
        if (test.game.flight(index).isActive()) {
            executeOrder(test.simulation, index, order);
        }
    }

    void advance() {
        now += stepInterval;
        running = SimulationStep(test.simulation, now) && now < longestRun;
        if (running) {
            setLamp(test.lamps, test.events, gatherAlertLevel(test.game));
            order();
        }
    }
};

void expectSoundPlan(const Flight& flight) {
    ASSERT_GE(flight.planLength, 1);
    ASSERT_LE(flight.planLength, 47);
    ASSERT_GE(flight.planIndex, 0);
    ASSERT_LT(flight.planIndex, flight.planLength);
    for (std::size_t i = 1; i < static_cast<std::size_t>(flight.planLength); ++i) {
        const PlanStep& from = flight.plan[i - 1];
        const PlanStep& to = flight.plan[i];
        const int turn = (to.heading - from.heading + 360) % 360;
        EXPECT_TRUE(turn == 0 || turn == 45 || turn == 315) << turn;
        EXPECT_LE(std::abs(to.altitude - from.altitude), 1);
        EXPECT_GE(to.altitude, 1);
        EXPECT_LE(to.altitude, 10);
    }
}

/// What was told of the score adds up, and so do the flights that are out of play.
void expectSoundScore(const WildShift& shift) {
    int score = 0;
    long handled = 0;
    for (const std::string& line : shift.test.events.lines) {
        if (line.starts_with("score ")) {
            const int delta = std::stoi(line.substr(6));
            score = delta < 0 ? std::max(score + delta, 0) : score + delta;
            handled += delta == 150 || delta == 75 || delta == -200 ? 1 : 0;
            EXPECT_EQ(line.substr(line.find("= ") + 2), std::to_string(score));
        }
    }
    EXPECT_EQ(score, shift.test.game.score);
    EXPECT_EQ(std::ranges::count(shift.test.game.flights, false, &Flight::inPlay), handled);
}

TEST(WholeShift, PlansStaySmoothAndScoresAddUpAndNeverFallBelowZero) {
    for (std::uint32_t seed = 0; seed < 24; ++seed) {
        WildShift shift{seed};
        while (shift.running) {
            const GameState before = shift.test.game;
            shift.advance();
            EXPECT_GE(shift.test.game.score, 0);
            for (FlightIndex i = 0; i < before.planeCount(); ++i) {
                const Flight& flight = shift.test.game.flight(i);
                expectSoundPlan(flight);
                EXPECT_FALSE(flight.inPlay && !before.flight(i).inPlay);
                // One move at most, and none for a flight that is not airborne.
                EXPECT_TRUE(areNeighbours(flight.current().cell(), before.flight(i).current().cell()));
                EXPECT_TRUE(flight.inPlay || before.flight(i).isActive());
            }
        }
        expectSoundScore(shift);
    }
}

TEST(WholeShift, TwoSimulationsInOneProcessDoNotDisturbEachOther) {
    for (std::uint32_t seed = 1; seed < 5; ++seed) {
        WildShift alone{seed};
        while (alone.running) {
            alone.advance();
        }
        WildShift first{seed};
        WildShift second{seed + 1};
        while (first.running) {
            first.advance();
            second.advance();
        }
        EXPECT_EQ(first.test.events.lines, alone.test.events.lines);
        EXPECT_EQ(first.test.random.state, alone.test.random.state);
        EXPECT_NE(second.test.events.lines, alone.test.events.lines);
    }
}

} // namespace
} // namespace ventrel
