#include "sim/orders.h"

#include <gtest/gtest.h>

#include "small_airspace.h"

namespace ventrel {

namespace {

constexpr VorIndex mid = 0;
constexpr VorIndex northWest = 1;

class Orders : public ::testing::Test {
protected:
    Orders() { test.game.freeOrders = 100; }

    /// Sends an order made from the flight's present state; what happened after the EXEC click.
    Lines send(Flight& flight, void (*change)(PanelOrder&), OrderResult expected = OrderResult::carriedOut) {
        PanelOrder order = flight.current();
        order.setCell({}); // the panel's order has no cell
        change(order);
        EXPECT_EQ(executeOrder(test.simulation, static_cast<FlightIndex>(&flight - test.game.flights.data()),
                               order),
                  expected);
        Lines lines = test.events.take();
        EXPECT_EQ(lines.front(), "sent 0");
        lines.erase(lines.begin());
        return lines;
    }

    TestGame test;
};

TEST_F(Orders, AreReadBackAsTheyWereUnderstood) {
    Flight& flight = test.fly({20, 30}, 5, 90, northWest);
    EXPECT_EQ(send(flight, [](PanelOrder& o) { o.heading = 270; }), (Lines{"radio turning 270", "panel"}));
    EXPECT_EQ(send(flight, [](PanelOrder& o) { o.altitude = 3; }),
              (Lines{"radio descending to 3 thousand", "panel"}));
    EXPECT_EQ(send(flight,
                   [](PanelOrder& o) {
                       o.altitude = 10;
                       o.heading = 180;
                   }),
              (Lines{"radio turning 180 climbing to 10 thousand", "panel"}));
    EXPECT_EQ(send(flight, [](PanelOrder& o) { o.speed = fastSpeed; }), (Lines{"radio ", "panel"}));
    EXPECT_EQ(send(flight,
                   [](PanelOrder& o) {
                       o.directTarget = 4;
                       o.altitude = 8;
                   }),
              (Lines{"radio climbing to 8 thousand direct to VOR", "panel"}));
    EXPECT_EQ(send(flight,
                   [](PanelOrder& o) {
                       o.directTarget = 4;
                       o.hold = 1;
                   }),
              (Lines{"radio roger", "panel"}));
    EXPECT_EQ(send(flight,
                   [](PanelOrder& o) {
                       o.directTarget = 5;
                       o.hold = 1;
                       o.altitude = 1;
                   }),
              (Lines{"radio descending to 1 thousand", "panel"}));
}

TEST_F(Orders, ThatChangeNothingAreAcknowledgedWithoutTouchingThePlan) {
    Flight& flight = test.fly({20, 30}, 5, 90, northWest);
    send(flight, [](PanelOrder& o) { o.heading = 0; });
    const int length = flight.planLength;
    EXPECT_EQ(send(
                  flight, [](PanelOrder&) {}, OrderResult::acknowledged),
              (Lines{"quiet radio roger"}));
    EXPECT_EQ(flight.planLength, length);
    EXPECT_EQ(test.game.freeOrders, 98);
}

TEST_F(Orders, BesideTheTargetADirectCourseIsRefusedButCharged) {
    for (const Cell cell : {Cell{12, 12}, Cell{13, 11}}) {
        test.game.flights.clear();
        Flight& flight = test.fly(cell, 5, 90, northWest);
        EXPECT_EQ(send(
                      flight, [](PanelOrder& o) { o.directTarget = northWest; }, OrderResult::acknowledged),
                  (Lines{"radio repeat requesting VOR", "13 F0 is too close to NW for a direct VOR course"}));
        EXPECT_EQ(flight.planLength, 1);
    }
    EXPECT_EQ(test.game.freeOrders, 98);
    test.game.flights.clear();
    Flight& flight = test.fly({14, 12}, 5, 90, northWest);
    send(flight, [](PanelOrder& o) { o.directTarget = northWest; });
    EXPECT_GT(flight.planLength, 1);
}

TEST_F(Orders, ClearADepartureOnceAndAreThenChargedInVain) {
    Flight& flight = test.wait(mid, northWest);
    EXPECT_EQ(send(flight, [](PanelOrder& o) { o.altitude = 9; }), (Lines{"radio roger", "panel", "strips"}));
    EXPECT_EQ(flight.groundState, GroundState::cleared);
    EXPECT_EQ(send(flight, [](PanelOrder& o) { o.altitude = 9; }), Lines{});
    flight.groundState = GroundState::rolling;
    EXPECT_EQ(send(flight, [](PanelOrder&) {}), Lines{});
    EXPECT_EQ(flight.current().altitude, 1);
    EXPECT_EQ(test.game.freeOrders, 97);
}

TEST_F(Orders, CostFivePointsOnceTheFreeOnesAreUsedUp) {
    Flight& flight = test.fly({20, 30}, 5, 90, northWest);
    test.game.freeOrders = 1;
    test.game.score = 12;
    EXPECT_EQ(send(
                  flight, [](PanelOrder&) {}, OrderResult::acknowledged)
                  .size(),
              1U);
    EXPECT_EQ(test.game.score, 12);
    EXPECT_EQ(send(
                  flight, [](PanelOrder&) {}, OrderResult::acknowledged),
              (Lines{"score -5 = 7", "quiet radio roger"}));
    send(flight, [](PanelOrder& o) { o.speed = slowSpeed; });
    send(flight, [](PanelOrder& o) { o.speed = fastSpeed; });
    EXPECT_EQ(test.game.score, 0);
    EXPECT_EQ(test.game.freeOrders, 0);
}

TEST_F(Orders, ToAFinishedFlightOrWithoutAGameCostNothing) {
    Flight& flight = test.fly({20, 30}, 5, 90, northWest);
    flight.inPlay = false;
    EXPECT_EQ(executeOrder(test.simulation, 0, {}), OrderResult::acknowledged);
    flight.inPlay = true;
    test.game.gameRunning = false;
    EXPECT_EQ(executeOrder(test.simulation, 0, {}), OrderResult::acknowledged);
    EXPECT_EQ(test.events.take(), Lines{});
    EXPECT_EQ(test.game.freeOrders, 100);
}

} // namespace

} // namespace ventrel
