// The log of a shift and what its report adds up.

#include "story/shift_log.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "controller/controller.h"
#include "sim/small_airspace.h"
#include "story/log_filter.h"
#include "story/shift_report.h"

namespace ventrel {
namespace {

/// A shift that nobody but a clumsy controller plays: it looks hardly ahead, so that everything occurs.
struct LoggedShift {
    Game game;
    ShiftLog log{game};

    explicit LoggedShift(std::uint32_t seed)
        : game(SmallAirspace::usual().game({.skill = Skill::hard}, seed)) {
        log.shiftBegun(Skill::hard, seed);
        const Controller controller{game, 2};
        while (step(game, log)) {
            for (const ControllerOrder& next : controller.decide(game)) {
                executeOrder(game, next.flight, next.order, log);
            }
        }
    }
};

TEST(ShiftLog, AddsUpToTheScoreWhicheverWayOneCounts) {
    for (std::uint32_t seed = 1; seed <= 20; ++seed) {
        SCOPED_TRACE(seed);
        const LoggedShift shift{seed};
        const ShiftStory& story = shift.log.story();
        EXPECT_EQ(story.score, shift.game.score);
        const auto rows = pointsByCause(story);
        EXPECT_EQ(std::accumulate(rows.begin(), rows.end(), 0,
                                  [](int sum, const CauseRow& row) { return sum + row.points; }),
                  shift.game.score);
        EXPECT_EQ(scoreCurve(story).back().score, shift.game.score);
        const bool isWhole = story.end == ShiftEnd::everyFlightHandled;
        for (const FlightStory& flight : story.flights) {
            EXPECT_TRUE(!isWhole || (flight.appeared && flight.ended && *flight.appeared <= *flight.ended))
                << flight.callsign;
        }
        const auto misses = std::ranges::count(story.changes, ScoreCause::nearMiss,
                                               [](const PointsChange& each) { return each.change.cause; });
        EXPECT_EQ(static_cast<std::ptrdiff_t>(story.nearMisses.size()), misses);
        EXPECT_TRUE(isWhole ||
                    std::ranges::count(story.flights, FlightEnd::collided, &FlightStory::end) == 2);
    }
}

TEST(ShiftLog, AShiftIsGivenUpOnceAndOneThatIsOverNotAtAll) {
    LoggedShift over{1};
    const ShiftEnd end = over.log.story().end;
    const std::size_t entries = over.log.story().entries.size();
    over.log.shiftGivenUp();
    EXPECT_EQ(over.log.story().end, end);
    EXPECT_EQ(over.log.story().entries.size(), entries);
    over.log.shiftBegun(Skill::hard, 1);
    over.log.shiftGivenUp();
    over.log.replayLeft();
    EXPECT_EQ(over.log.story().end, ShiftEnd::givenUp);
    EXPECT_EQ(over.log.story().entries.size(), 2U) << "the beginning, and the end";
}

TEST(ShiftLog, KeepsTheLinesThatTheTickerDroppedAndMarksThem) {
    TestGame test;
    test.fly({20, 24}, 5, 90, PointIndex{1});
    ShiftLog log{test.game};
    log.shiftBegun(Skill::easy, 1);
    const Report leaving{Topic::leaving, FlightIndex{0}, PointIndex{1}};
    const auto tell = [&](const Report& report) {
        log.reported(report);
        postMessage(test.game.messages, reportText(test.game, report), reportClass(report.topic));
    };
    tell(leaving);
    tell({Topic::nearMiss, FlightIndex{0}, {}, FlightIndex{0}});
    tell(leaving);
    const auto& entries = log.story().entries;
    ASSERT_EQ(entries.size(), 4U);
    EXPECT_FALSE(entries[1].wasDropped || entries[2].wasDropped);
    EXPECT_TRUE(entries[3].wasDropped);
    log.tickerCleared();
    EXPECT_TRUE(entries[1].wasDropped && entries[2].wasDropped) << "they still waited";
}

TEST(ShiftLog, WhatHasBeenReadWasNotDroppedWhenTheTickerIsCleared) {
    LoggedShift shift{1};
    clearMessages(shift.game.messages);
    for (const std::string_view words : {"has scrolled by", "still waits"}) {
        shift.log.linePosted(words, MessageClass::information);
        postMessage(shift.game.messages, words, MessageClass::information);
    }
    shift.game.messages.slots[0].inUse = false;
    shift.log.tickerCleared();
    const auto& entries = shift.log.story().entries;
    EXPECT_FALSE(entries[entries.size() - 2].wasDropped);
    EXPECT_TRUE(entries.back().wasDropped);
}

TEST(LogFilter, ShowsANearMissToBothOfItsFlights) {
    LogEntry nearMiss;
    nearMiss.flight = FlightIndex{3};
    nearMiss.other = FlightIndex{5};
    for (const auto& [flight, isShown] : {std::pair{3, true}, {5, true}, {4, false}}) {
        EXPECT_EQ(passesFilter(nearMiss, LogFilter::flight, FlightIndex{flight}), isShown) << flight;
    }
    EXPECT_FALSE(passesFilter(nearMiss, LogFilter::flight, std::nullopt));
}

TEST(ShiftLog, TellsOrdersCallsAndPointsWithTheirCause) {
    TestGame test;
    test.wait(PointIndex{0}, PointIndex{1});
    test.fly({20, 24}, 5, 90, PointIndex{1});
    test.game.freeOrders = 1;
    test.game.score = 100;
    ShiftLog log{test.game};
    log.shiftBegun(Skill::easy, 1);
    test.step(30_s);
    executeOrder(test.game, FlightIndex{0}, test.game.flight(FlightIndex{0}).current(), log);
    PanelOrder order = test.game.flight(FlightIndex{1}).current();
    order.altitude = 7;
    executeOrder(test.game, FlightIndex{1}, order, log);
    Lines words;
    for (const LogEntry& entry : log.story().entries) {
        words.push_back(entry.words);
    }
    EXPECT_EQ(words, (Lines{"Testville: 2 flights within 35:00, 3075 points possible",
                            "F0, cleared for takeoff", "roger", "F1, heading 90 at 7K, normal",
                            "-5, now 95 (order beyond the free ones)", "climbing to seven thousand"}));
    EXPECT_EQ(log.story().flight(FlightIndex{1}).points, -5);
}

} // namespace
} // namespace ventrel
