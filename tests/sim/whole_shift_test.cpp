// What must hold in every shift, whatever is drawn and whatever is ordered.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "sim/event_relay.h"
#include "small_airspace.h"

namespace ventrel {
namespace {

constexpr ClockSeconds longestRun = 18000_s;

/// A shift with a controller who presses EXEC at random.
struct WildShift {
    Game game;
    EventLog events{game};
    RandomGenerator player;
    bool running = true;

    explicit WildShift(std::uint32_t seed)
        : game{SmallAirspace::usual().game(
              {.skill = static_cast<Skill>(seed % 4), .directEntry = seed % 3 != 0, .voiceSetCount = 3},
              seed * 2654435761U)},
          player{seed + 1} {}

    void order() {
        const FlightIndex index{Random(player, game.planeCount())};
        PanelOrder order{.altitude = Random(player, 1, 10), .heading = 45 * Random(player, 8)};
        order.speed = static_cast<Speed>(Random(player, 3) - 1);
        order.hold = Random(player, 2) != 0;
        order.directTarget =
            directTargetOf(Random(player, game.vorCount() + (order.hold ? 2 : 1)) - 1, game.vorCount());
        if (judgeOrder(game, index, order) != OrderVerdict::notActive) {
            executeOrder(game, index, order, events);
        }
    }

    void advance() {
        running = step(game, events) && game.clock < longestRun;
        if (running) {
            order();
        }
    }
};

void expectSoundPlan(const Flight& flight) {
    ASSERT_GE(flight.plan.length(), 1);
    ASSERT_LE(flight.plan.length(), 47);
    ASSERT_GE(flight.planIndex, 0);
    ASSERT_LT(flight.planIndex, flight.plan.length());
    for (int i = 1; i < flight.plan.length(); ++i) {
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
    for (const std::string& line : shift.events.lines) {
        if (line.starts_with("score ")) {
            const int delta = std::stoi(line.substr(6));
            score = delta < 0 ? std::max(score + delta, 0) : score + delta;
            handled += delta == 150 || delta == 75 || delta == -200 ? 1 : 0;
            EXPECT_EQ(line.substr(line.find("= ") + 2), std::to_string(score));
        }
    }
    EXPECT_EQ(score, shift.game.score);
    EXPECT_EQ(std::ranges::count(shift.game.flights, false, &Flight::inPlay), handled);
}

TEST(WholeShift, PlansStaySmoothAndScoresAddUpAndNeverFallBelowZero) {
    for (std::uint32_t seed = 0; seed < 24; ++seed) {
        WildShift shift{seed};
        while (shift.running) {
            const Game before = shift.game;
            shift.advance();
            EXPECT_GE(shift.game.score, 0);
            for (const FlightIndex i : before.flightPlaces()) {
                const Flight& flight = shift.game.flight(i);
                expectSoundPlan(flight);
                EXPECT_FALSE(flight.inPlay && !before.flight(i).inPlay);
                // One move at most, and none for a flight that is not airborne.
                EXPECT_TRUE(areNeighbours(flight.current().cell, before.flight(i).current().cell));
                EXPECT_TRUE(flight.inPlay || before.flight(i).isActive());
            }
        }
        expectSoundScore(shift);
    }
}

TEST(WholeShift, EveryReceiverOfARelayIsToldAllInOrder) {
    WildShift alone{3};
    WildShift relayed{3};
    EventLog second{relayed.game};
    EventLog dismissed{relayed.game};
    EventRelay relay;
    relay.add(relayed.events);
    relay.add(dismissed);
    relay.add(second);
    relay.remove(dismissed);
    while (alone.game.clock < 1800_s && step(alone.game, alone.events)) {
        step(relayed.game, relay);
    }
    EXPECT_GT(alone.events.lines.size(), 100U);
    EXPECT_EQ(relayed.events.lines, alone.events.lines);
    EXPECT_EQ(second.lines, alone.events.lines);
    EXPECT_EQ(dismissed.lines, Lines{});
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
        EXPECT_EQ(first.events.lines, alone.events.lines);
        EXPECT_EQ(first.game.random.state, alone.game.random.state);
        EXPECT_NE(second.events.lines, alone.events.lines);
    }
}

} // namespace
} // namespace ventrel
