// Choosing flights on radar and strips and by keys, and the strips scrolling with the choice.

#include <algorithm>

#include "shell/three_flights.h"

namespace ventrel {
namespace {

using SelectionTest = ThreeFlights;

TEST_F(SelectionTest, RadarStripsAndKeysChooseFlights) {
    begin();
    press(Key::up);
    stage.look([this] {
        EXPECT_EQ(stage.shell().panel.state.flight, StripsSlotFlight(stage.shell().strips, 0))
            << "with none chosen the first strip comes first";
    });
    stage.look([this] { stage.sounds.heard.clear(); });
    stage.todo([this](Script& script) { script.click(stage.onFlight(FlightIndex{1})).wait(1); });
    expectSelected(FlightIndex{1}, "by the radar");
    stage.todo([this](Script& script) { script.click(stage.onFlight(FlightIndex{1})).wait(1); });
    stage.look([this] { EXPECT_EQ(stage.sounds.count("select"), 1) << "it was selected already"; });
    stage.selectByStrip(FlightIndex{2});
    expectSelected(FlightIndex{2}, "by its strip");
    stage.todo([this](Script& script) {
        const int slot = StripsFlightSlot(stage.shell().strips, FlightIndex{0});
        const int from = stage.shell().pressedStrip;
        for (int i = from; i != slot; i += slot > from ? 1 : -1) {
            script.key(slot > from ? Key::down : Key::up);
        }
        script.wait(1);
    });
    expectSelected(FlightIndex{0}, "by keys");
    stage.todo([this](Script& script) { script.click(stage.onRadar({40, 40})).wait(1); });
    expectSelected(FlightIndex{0}, "a click on nothing");
    stage.play();
}

TEST_F(SelectionTest, UpAndDownScrollWhereTheStripsEnd) {
    stage.startNewGame();
    stage.look([this] {
        for (Flight& flight : stage.game().flights) {
            flight.scheduledAt = QuietShift::entryTime;
        }
    });
    stage.skipTo(QuietShift::entryTime);
    const auto expectStrip = [this](int strip, int scrolled, const char* when) {
        stage.look([this, strip, scrolled, when] {
            EXPECT_EQ(stage.shell().pressedStrip, strip) << when;
            EXPECT_EQ(stage.shell().strips.list.scrollOffset, scrolled) << when;
        });
    };
    press(Key::down, 13);
    expectStrip(13, 0, "at the last strip");
    press(Key::down, 2);
    expectStrip(13, 2, "below it");
    press(Key::up, 14);
    expectStrip(0, 1, "above the first");
    press(Key::up, 2);
    expectStrip(0, 0, "at the top of the list");
    stage.play();
}

TEST_F(SelectionTest, TheWheelScrollsTheStripsAndTheButtonFollowsItsFlight) {
    stage.startNewGame();
    stage.look([this] {
        for (Flight& flight : stage.game().flights) {
            flight.scheduledAt = QuietShift::entryTime;
        }
    });
    stage.skipTo(QuietShift::entryTime);
    stage.selectByStrip(FlightIndex{20});
    stage.todo([](Script& script) { script.wheel({900, 300}, 20).wait(1); });
    stage.look([this] { EXPECT_EQ(stage.shell().pressedStrip, noSlot) << "its strip is out of sight"; });
    stage.todo([](Script& script) { script.wheel({900, 300}, -20).wait(1); });
    stage.todo([](Script& script) { script.wheel({900, 300}, 20).wait(1); });
    stage.todo([](Script& script) { script.moveTo({900, 300}).wheel({900, 300}, -3).wait(1); });
    stage.look([this] { EXPECT_EQ(stage.shell().strips.list.scrollOffset, 3); });
    stage.todo([](Script& script) { script.wheel({850, 300}, 2).wheel({400, 300}, 1).wait(1); });
    stage.look([this] { EXPECT_EQ(stage.shell().strips.list.scrollOffset, 1); });
    const auto offsetAfter = [this](std::initializer_list<Point> clicks, int offset) {
        for (const Point click : clicks) {
            stage.todo([click](Script& script) { script.click(click).wait(1); });
        }
        stage.look([this, offset] { EXPECT_EQ(stage.shell().strips.list.scrollOffset, offset); });
    };
    offsetAfter({{863, 608}, {851, 608}, {857, 613}, {857, 603}}, 1); // beside the lower arrow
    offsetAfter({{852, 604}, {862, 612}}, 3);
    offsetAfter({{863, 72}, {851, 72}, {857, 78}, {857, 68}}, 3); // beside the upper one
    offsetAfter({{852, 69}, {862, 77}}, 1);
    stage.play();
}

TEST_F(SelectionTest, TabGoesThroughAllThatCanBeSelectedWhereverTheyStand) {
    stage.startNewGame();
    stage.look([this] {
        for (Flight& flight : stage.game().flights) {
            flight.scheduledAt = QuietShift::entryTime;
        }
        stage.game().flights[0].scheduledAt = 150_s;
        stage.game().flights[1].inPlay = false;
        stage.game().flights[2].scheduledAt = 75_s;
    });
    stage.skipTo(90_s);
    auto order = std::make_shared<std::vector<FlightIndex>>();
    stage.look([this, order] { *order = selectableFlights(stage.game()); });
    stage.todo([this, order](Script& script) {
        ASSERT_GT(order->size(), 14U);
        EXPECT_EQ(order->front(), FlightIndex{2}) << "the latest";
        EXPECT_EQ(std::ranges::count(*order, FlightIndex{0}), 0) << "it is only announced";
        EXPECT_EQ(std::ranges::count(*order, FlightIndex{1}), 0) << "it is gone";
        for (std::size_t i = 0; i < order->size(); ++i) {
            script.key(Key::tab).wait(1).then([this, order, i] {
                EXPECT_TRUE(flight((*order)[i]).selected) << i;
                EXPECT_NE(stage.shell().pressedStrip, noSlot) << i;
            });
        }
    });
    press(Key::tab);
    stage.look([this, order] { EXPECT_TRUE(flight(order->front()).selected) << "round"; });
    stage.todo([](Script& script) { script.key(Key::tab, withShift).wait(1); });
    stage.look([this, order] { EXPECT_TRUE(flight(order->back()).selected) << "and back"; });
    stage.todo([](Script& script) { script.key(Key::tab, withShift).wait(1); });
    stage.look([this, order] { EXPECT_TRUE(flight((*order)[order->size() - 2]).selected); });
    stage.play();
}

TEST(Selection, AFlightAboveTheShownStripsIsScrolledTo) {
    GameStage stage(800, "[Game]\nName=mary\nSkill=3\n");
    stage.startNewGame();
    constexpr FlightIndex chosen{16}; // beyond the strips of a console that is scrolled to its top
    stage.look([&] {
        for (Flight& flight : stage.game().flights) {
            flight.scheduledAt = QuietShift::entryTime;
            flight.plan[0].cell = {20, 20};
        }
        stage.game().flight(chosen).plan[0].cell = {35, 35};
    });
    stage.skipTo(QuietShift::entryTime);
    stage.todo([](Script& script) { script.wheel({700, 200}, -40).wait(1); });
    stage.todo([&](Script& script) { script.click(stage.onFlight(chosen)).wait(1); });
    stage.look([&] {
        const int slot = StripsFlightSlot(stage.shell().strips, chosen);
        EXPECT_NE(slot, noSlot);
        EXPECT_EQ(stage.shell().pressedStrip, slot);
    });
    stage.play();
}

} // namespace
} // namespace ventrel
