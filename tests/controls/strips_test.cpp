// The flight strips: who is listed where, what each strip says, and the button that goes with the selection.

#include "controls/strips.h"

#include <gtest/gtest.h>

#include "console_stage.h"

namespace ventrel {
namespace {

struct StripsStage : ConsoleStage {
    StripsStage() { StripsCreate(strips, main, smallWindow); }

    Strips strips{
        .sources = {game, options, fonts, arrow},
        .callbacks = {.press = [this](int slot) { log.push_back("press " + std::to_string(slot)); }}};

    /// So many flights, each scheduled a quarter of a minute after the one before.
    void flyMany(int number) {
        for (int i = 0; i < number; ++i) {
            fly().scheduledAt = i * stepInterval;
        }
        rebuild();
    }
    void rebuild() {
        countListed();
        StripsRebuild(strips);
    }
    /// The flights by number; -1 for an empty strip.
    std::vector<int> slots() const {
        std::vector<int> numbers;
        for (const auto& flight : strips.list.slots) {
            numbers.push_back(flight ? flight->number() : -1);
        }
        return numbers;
    }
};

TEST(StripsTest, EachScreenfulIsOrderedByTimeWithTheEmptyStripsLast) {
    StripsStage stage;
    for (const ClockSeconds when : {60_s, 300_s, 15_s, 300_s}) {
        stage.fly().scheduledAt = when;
    }
    stage.fly().inPlay = false;
    Flight& announced = stage.fly();
    announced.activatedAt = 0_s;
    announced.announced = true;
    announced.scheduledAt = 400_s;
    stage.fly().activatedAt = 0_s;
    stage.rebuild();
    const std::vector<int> wanted{5, 1, 3, 0, 2, -1, -1, -1, -1, -1};
    EXPECT_EQ(stage.slots(), wanted);
    EXPECT_EQ(selectableFlights(stage.game),
              (std::vector{FlightIndex{1}, FlightIndex{3}, FlightIndex{0}, FlightIndex{2}}));
    EXPECT_EQ(StripsFlightSlot(stage.strips, FlightIndex{0}), 3);
    EXPECT_EQ(StripsFlightSlot(stage.strips, FlightIndex{4}), noSlot);
    EXPECT_TRUE(StripsSlotSelectable(stage.strips, 1));
    EXPECT_FALSE(StripsSlotSelectable(stage.strips, 0)) << "only announced";
    EXPECT_FALSE(StripsSlotSelectable(stage.strips, 5));
    EXPECT_FALSE(StripsSlotSelectable(stage.strips, noSlot));
    stage.game.phase = Phase::idle;
    EXPECT_FALSE(StripsSlotSelectable(stage.strips, 1));
}

TEST(StripsTest, ElevenFlightsScrollByOneAndComeBackWhenOneLeaves) {
    StripsStage stage;
    stage.flyMany(11);
    const std::vector<int> top{9, 8, 7, 6, 5, 4, 3, 2, 1, 0};
    const std::vector<int> scrolled{10, 9, 8, 7, 6, 5, 4, 3, 2, 1};
    EXPECT_EQ(stage.slots(), top);
    EXPECT_FALSE(StripsScrollUp(stage.strips));
    EXPECT_TRUE(StripsScrollDown(stage.strips));
    EXPECT_FALSE(StripsScrollDown(stage.strips));
    EXPECT_EQ(stage.slots(), scrolled);
    EXPECT_TRUE(StripsScrollUp(stage.strips));
    EXPECT_EQ(stage.slots(), top);
    StripsScrollDown(stage.strips);
    stage.game.flight(FlightIndex{10}).inPlay = false;
    stage.rebuild();
    EXPECT_EQ(stage.slots(), top) << "every strip is filled again";
    StripsReset(stage.strips);
    EXPECT_EQ(stage.slots(), std::vector<int>(10, -1));
}

TEST(StripsTest, EveryStateOfAFlightHasItsWords) {
    StripsStage stage;
    Flight& flight = stage.fly(90);
    flight.callsign = "UA123";
    EXPECT_EQ(stripRouteLine(flight, stage.game), "UA123  to  JFK*");
    EXPECT_EQ(stripStateLine(flight), "90\xB0    5000 ft");
    flight.plan[0].directTarget = PointIndex{1};
    flight.plan[0].altitude = 10;
    EXPECT_EQ(stripStateLine(flight), "90\xB0  (direct)   10000 ft");
    flight.origin = PointIndex{1};
    flight.destination = PointIndex{2};
    EXPECT_EQ(stripRouteLine(flight, stage.game), "UA123  JFK* to SEA ");
    flight.groundState = GroundState::waiting;
    EXPECT_EQ(stripStateLine(flight), "Request Takeoff");
    flight.groundState = GroundState::cleared;
    EXPECT_EQ(stripStateLine(flight), "Takeoff in progress");
    flight.groundState = GroundState::rolling;
    EXPECT_EQ(stripStateLine(flight), "Takeoff in progress");
    flight.announced = true;
    flight.scheduledAt = 4515_s;
    EXPECT_EQ(stripStateLine(flight), "Arrives at: 75:15");
}

TEST(StripsTest, ColoursAndPressedButtonFollowTheFlight) {
    StripsStage stage;
    Flight& flight = stage.fly();
    const auto colourOf = [&](Alert alert, bool selected, bool announced) {
        flight.alert = alert;
        flight.selected = selected;
        flight.announced = announced;
        stage.take();
        stage.rebuild();
        EXPECT_EQ(stage.take(), Lines{selected ? "press 0" : "press -1"});
        return stripColour(flight, stage.game, usualSignals);
    };
    EXPECT_EQ(colourOf(Alert::nearMiss, true, false), Colour::rgb(255, 0, 0));
    EXPECT_EQ(colourOf(Alert::success, true, false), Colour::rgb(0, 220, 0));
    EXPECT_EQ(colourOf(Alert::failure, true, false), selectedWhite);
    EXPECT_EQ(colourOf(Alert::none, true, true), selectedWhite);
    EXPECT_EQ(colourOf(Alert::none, false, true), Colour::rgb(164, 164, 164));
    EXPECT_EQ(colourOf(Alert::failure, false, false), flightGreen);
}

TEST(StripsTest, AreEmptyWithoutAGame) {
    StripsStage stage;
    stage.flyMany(3);
    stage.game.phase = Phase::idle;
    StripsRebuild(stage.strips);
    const Bitmap empty = stage.picture(stage.strips.window);
    EXPECT_EQ(count(empty, Colour::rgb(64, 8, 0), empty.bounds()), empty.width() * empty.height());
}

} // namespace
} // namespace ventrel
