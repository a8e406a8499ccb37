#include "sim/orders.h"

#include <gtest/gtest.h>

#include "small_airspace.h"

namespace ventrel {
namespace {

class Orders : public ::testing::Test {
protected:
    Orders() { test.game.freeOrders = 100; }

    /// Sends an order; what happened after the EXEC click.
    Lines send(Flight& flight, const PanelOrder& order, OrderResult expected = OrderResult::carriedOut) {
        const FlightIndex index{static_cast<int>(&flight - test.game.flights.data())};
        EXPECT_EQ(executeOrder(test.game, index, order, test.events), expected);
        Lines lines = test.events.take();
        EXPECT_EQ(lines.front(), "sent 0");
        lines.erase(lines.begin());
        return lines;
    }

    /// What the panel holds when nothing has been set: the flight's present state, without a cell.
    static PanelOrder nothingSet(const Flight& flight) {
        PanelOrder order = flight.current();
        order.cell = {};
        return order;
    }

    TestGame test;
};

TEST_F(Orders, AreReadBackAsTheyWereUnderstood) {
    Flight& flight = test.fly({20, 30}, 5, 90, SmallAirspace::northWest);
    struct Case {
        PanelOrder order;
        const char* readBack;
    };
    for (const Case& each : std::initializer_list<Case>{
             {{.altitude = 5, .heading = 270}, "turn heading two seven zero"},
             {{.altitude = 3, .heading = 90}, "descending to three thousand"},
             {{.altitude = 10, .heading = 180}, "turn heading one eight zero climbing to one zero thousand"},
             {{.altitude = 5, .heading = 90, .speed = Speed::fast}, ""},
             {{.altitude = 8, .heading = 90, .directTarget = PointIndex{4}},
              "climbing to eight thousand direct to the VOR"},
             {{.altitude = 5, .heading = 90, .directTarget = PointIndex{4}, .hold = true}, "roger"},
             {{.altitude = 1, .heading = 90, .directTarget = DirectTarget::holdPlace(), .hold = true},
              "descending to one thousand"}}) {
        EXPECT_EQ(send(flight, each.order), (Lines{std::string("radio ") + each.readBack, "panel"}));
    }
}

TEST_F(Orders, ThatChangeNothingAreAcknowledgedWithoutTouchingThePlan) {
    Flight& flight = test.fly({20, 30}, 5, 90, SmallAirspace::northWest);
    send(flight, {.altitude = 5, .heading = 0});
    const int length = flight.plan.length();
    EXPECT_EQ(send(flight, nothingSet(flight), OrderResult::acknowledged), (Lines{"quiet radio roger"}));
    EXPECT_EQ(flight.plan.length(), length);
    EXPECT_EQ(test.game.freeOrders, 98);
}

TEST_F(Orders, BesideTheTargetADirectCourseIsRefusedButCharged) {
    const PanelOrder toNorthWest{.altitude = 5, .heading = 90, .directTarget = SmallAirspace::northWest};
    for (const Cell cell : {Cell{12, 12}, Cell{13, 11}}) {
        test.game.flights.clear();
        Flight& flight = test.fly(cell, 5, 90, SmallAirspace::northWest);
        EXPECT_EQ(send(flight, toNorthWest, OrderResult::acknowledged),
                  (Lines{"radio say again request vectors to the VOR",
                         "13 F0 is too close to NW for a direct VOR course"}));
        EXPECT_EQ(flight.plan.length(), 1);
    }
    EXPECT_EQ(test.game.freeOrders, 98);
    test.game.flights.clear();
    Flight& flight = test.fly({14, 12}, 5, 90, SmallAirspace::northWest);
    send(flight, toNorthWest);
    EXPECT_GT(flight.plan.length(), 1);
}

TEST_F(Orders, ClearADepartureOnceAndAreThenChargedInVain) {
    Flight& flight = test.wait(SmallAirspace::mid, SmallAirspace::northWest);
    EXPECT_EQ(send(flight, {.altitude = 9, .heading = 90}), (Lines{"radio roger", "panel", "strips"}));
    EXPECT_EQ(flight.groundState, GroundState::cleared);
    EXPECT_EQ(send(flight, {.altitude = 9, .heading = 90}), Lines{});
    flight.groundState = GroundState::rolling;
    EXPECT_EQ(send(flight, nothingSet(flight)), Lines{});
    EXPECT_EQ(flight.current().altitude, 1);
    EXPECT_EQ(test.game.freeOrders, 97);
}

TEST_F(Orders, CostFivePointsOnceTheFreeOnesAreUsedUp) {
    Flight& flight = test.fly({20, 30}, 5, 90, SmallAirspace::northWest);
    test.game.freeOrders = 1;
    test.game.score = 12;
    EXPECT_EQ(send(flight, nothingSet(flight), OrderResult::acknowledged).size(), 1U);
    EXPECT_EQ(test.game.score, 12);
    EXPECT_EQ(send(flight, nothingSet(flight), OrderResult::acknowledged),
              (Lines{"score -5 = 7", "quiet radio roger"}));
    send(flight, {.altitude = 5, .heading = 90, .speed = Speed::slow});
    send(flight, {.altitude = 5, .heading = 90, .speed = Speed::fast});
    EXPECT_EQ(test.game.score, 0);
    EXPECT_EQ(test.game.freeOrders, 0);
}

TEST_F(Orders, AreJudgedAndWhatIsNotHeardCostsNothing) {
    Flight& flight = test.fly({20, 30}, 5, 90, SmallAirspace::northWest);
    const PanelOrder possible{.altitude = 5, .heading = 90};
    const auto with = [&possible](auto change) {
        PanelOrder order = possible;
        change(order);
        return order;
    };
    const auto expect = [this](OrderVerdict verdict, const PanelOrder& order, int place = 0) {
        const FlightIndex index{place};
        EXPECT_EQ(judgeOrder(test.game, index, order), verdict);
        if (!isHeard(verdict)) {
            EXPECT_EQ(executeOrder(test.game, index, order, test.events), OrderResult::acknowledged);
            EXPECT_EQ(test.events.take(), Lines{});
        }
    };
    expect(OrderVerdict::accepted, possible);
    for (const int wrong : {-1, 1, 65535, 65536, 1 << 30}) {
        expect(OrderVerdict::unknownFlight, possible, wrong);
    }
    for (const int wrong : {0, 11, -1, 127, 128, 261}) {
        expect(OrderVerdict::altitudeOutOfRange, with([wrong](PanelOrder& o) { o.altitude = wrong; }));
    }
    for (const int wrong : {-45, 360, 50, 65626}) {
        expect(OrderVerdict::headingOutOfRange, with([wrong](PanelOrder& o) { o.heading = wrong; }));
    }
    for (const int wrong : {-2, 2, 100}) {
        expect(OrderVerdict::speedOutOfRange,
               with([wrong](PanelOrder& o) { o.speed = static_cast<Speed>(wrong); }));
    }
    for (const int wrong : {-2, -1, test.game.vorCount(), 65533, 65534, 65535, 65536}) {
        expect(OrderVerdict::unknownTarget,
               with([wrong](PanelOrder& o) { o.directTarget = PointIndex{wrong}; }));
    }
    expect(OrderVerdict::unknownTarget,
           with([](PanelOrder& o) { o.directTarget = DirectTarget::holdPlace(); }));
    flight.heavy = true;
    expect(OrderVerdict::speedOfHeavy, with([](PanelOrder& o) { o.speed = Speed::fast; }));
    expect(OrderVerdict::accepted, possible);
    flight.activatedAt = Flight{}.activatedAt;
    expect(OrderVerdict::notActive, possible);
    flight.inPlay = false;
    expect(OrderVerdict::notInPlay, possible);
    test.game.phase = Phase::idle;
    expect(OrderVerdict::noGame, possible);
    EXPECT_EQ(test.game.freeOrders, 100);
}

} // namespace
} // namespace ventrel
