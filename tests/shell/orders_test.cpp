// Choosing flights and sending them orders, in every way that the console has.

#include <algorithm>

#include "resources/menus.h"
#include "shell/popup_menus.h"
#include "shell/quiet_shift.h"
#include "shell/selection.h"

namespace ventrel {
namespace {

class OrdersTest : public ::testing::Test {
protected:
    GameStage stage;

    /// Three flights well apart, in the air at 60.
    void begin() {
        QuietShift shift(stage);
        shift.enter(FlightIndex{0}, {.cell = {10, 20}, .altitude = 5, .heading = 90});
        shift.enter(FlightIndex{1}, {.cell = {30, 12}, .altitude = 7, .heading = 180});
        shift.enter(FlightIndex{2}, {.cell = {20, 35}, .altitude = 9, .heading = 0});
        stage.skipTo(QuietShift::entryTime);
    }

    void expectSelected(FlightIndex flight, const char* how) {
        stage.look([this, flight, how] {
            for (const FlightIndex i : stage.game().flightPlaces()) {
                EXPECT_EQ(stage.game().flight(i).selected, i == flight)
                    << "flight " << i.number() << ", " << how;
            }
            EXPECT_EQ(stage.shell().panel.state.flight, flight) << how;
            EXPECT_EQ(stage.shell().pressedStrip, StripsFlightSlot(stage.shell().strips, flight)) << how;
            EXPECT_TRUE(stage.shell().exec.window.isEnabled()) << how;
        });
    }

    void press(Key key, int times = 1) {
        stage.todo([key, times](Script& script) {
            for (int i = 0; i < times; ++i) {
                script.key(key);
            }
            script.wait(1);
        });
    }

    const Flight& flight(FlightIndex index) { return stage.game().flight(index); }
};

TEST_F(OrdersTest, RadarStripsAndKeysChooseFlights) {
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

TEST_F(OrdersTest, ThePanelSendsEveryKindOfOrder) {
    begin();
    stage.selectByStrip(FlightIndex{0});
    stage.sendByPanel({.altitude = 3, .heading = 180, .speed = Speed::fast});
    stage.look([this] {
        EXPECT_EQ(flight(FlightIndex{0}).lastStep().heading, 180);
        EXPECT_EQ(flight(FlightIndex{0}).lastStep().altitude, 3);
        EXPECT_EQ(flight(FlightIndex{0}).current().speed, Speed::fast);
    });
    stage.sendByPanel({.altitude = 10, .directTarget = PointIndex{3}});
    stage.look([this] {
        EXPECT_EQ(flight(FlightIndex{0}).current().directTarget, PointIndex{3});
        EXPECT_EQ(flight(FlightIndex{0}).lastStep().cell, stage.game().vor(PointIndex{3}).cell);
    });
    stage.sendByPanel({.altitude = 4, .directTarget = DirectTarget::holdPlace()});
    stage.look([this] {
        EXPECT_EQ(flight(FlightIndex{0}).plan.length(), 9);
        EXPECT_TRUE(flight(FlightIndex{0}).current().hold);
        EXPECT_EQ(stage.sounds.count("set"), 3);
    });
    stage.play();
}

TEST_F(OrdersTest, KeysComposeAnOrderAndEnterSendsIt) {
    begin();
    stage.selectByStrip(FlightIndex{1});
    press(Key::keypad3);
    press(Key::keypadMinus, 2);
    press(Key::f);
    stage.look([this] { EXPECT_EQ(flight(FlightIndex{1}).plan.length(), 1) << "nothing is sent yet"; });
    press(Key::keypadEnter);
    stage.look([this] {
        EXPECT_EQ(flight(FlightIndex{1}).lastStep().heading, 135);
        EXPECT_EQ(flight(FlightIndex{1}).lastStep().altitude, 9);
        EXPECT_EQ(flight(FlightIndex{1}).current().speed, Speed::fast);
    });
    press(Key::k);
    press(Key::s);
    press(Key::enter);
    stage.look([this] {
        EXPECT_TRUE(flight(FlightIndex{1}).current().directTarget.isOn());
        EXPECT_EQ(flight(FlightIndex{1}).current().speed, Speed::slow);
    });
    stage.play();
}

TEST_F(OrdersTest, TheKeypadAndTheKeysBesideItSetTheSame) {
    struct PanelKeys {
        Key keypad;
        Key beside;
        PanelOrder order; ///< what either makes of a direct course to the fourth point at 5K
    };
    constexpr PointIndex fourth{3};
    const auto heading = [](int degrees) { return PanelOrder{.altitude = 5, .heading = degrees}; };
    begin();
    stage.selectByStrip(FlightIndex{1});
    for (const PanelKeys& keys : std::initializer_list<PanelKeys>{
             {Key::keypad8, Key::i, heading(0)},
             {Key::keypad9, Key::o, heading(45)},
             {Key::keypad6, Key::l, heading(90)},
             {Key::keypad3, Key::period, heading(135)},
             {Key::keypad2, Key::comma, heading(180)},
             {Key::keypad1, Key::m, heading(225)},
             {Key::keypad4, Key::j, heading(270)},
             {Key::keypad7, Key::u, heading(315)},
             {Key::keypad5, Key::k, heading(0)},
             {Key::keypadMinus, Key::pageUp, {.altitude = 6, .directTarget = fourth}},
             {Key::keypadPlus, Key::pageDown, {.altitude = 4, .directTarget = fourth}},
             {Key::keypadDivide, Key::leftBracket, {.altitude = 5, .directTarget = PointIndex{2}}},
             {Key::keypadMultiply, Key::rightBracket, {.altitude = 5, .directTarget = PointIndex{4}}}}) {
        for (const Key key : {keys.keypad, keys.beside}) {
            stage.look(
                [this] { stage.shell().panel.state.pending = {.altitude = 5, .directTarget = fourth}; });
            press(key);
            stage.look([this, order = keys.order, key] {
                EXPECT_TRUE(stage.shell().panel.state.pending == order) << "key " << static_cast<int>(key);
            });
        }
    }
    stage.play();
}

TEST_F(OrdersTest, TheRightButtonsMenuSendsAtOnce) {
    begin();
    const auto choose = [this](int submenu, int item) {
        stage.todo([this, submenu, item](Script& script) {
            script.click(stage.onFlight(FlightIndex{2}), MouseButton::right).wait(1);
            for (int i = 0; i < submenu; ++i) {
                script.key(Key::down);
            }
            script.key(Key::right);
            for (int i = 0; i < item; ++i) {
                script.key(Key::down);
            }
            script.key(Key::enter).wait(1);
        });
    };
    choose(1, 6); // heading 270
    expectSelected(FlightIndex{2}, "by the right button");
    stage.look([this] { EXPECT_EQ(flight(FlightIndex{2}).lastStep().heading, 270); });
    for (int item = 0; item < 10; ++item) {
        choose(3, item);
        stage.look([this, item] { EXPECT_EQ(flight(FlightIndex{2}).lastStep().altitude, item + 1); });
    }
    for (int item = 0; item < 8; ++item) {
        choose(1, item);
        stage.look([this, item] { EXPECT_EQ(flight(FlightIndex{2}).lastStep().heading, 45 * item); });
    }
    choose(4, 0); // fast
    stage.look([this] { EXPECT_EQ(flight(FlightIndex{2}).current().speed, Speed::fast); });
    choose(2, 2); // the second map point, after the hold
    stage.look([this] {
        EXPECT_EQ(flight(FlightIndex{2}).current().directTarget, PointIndex{1});
        const Menu menu = orderMenu(stage.shell());
        const Menu& targets = menu[planeTargetMenu].items;
        const Vor& chosen = stage.game().vor(PointIndex{1});
        EXPECT_EQ(static_cast<int>(targets.size()), 1 + stage.game().vorCount());
        EXPECT_EQ(targets[2].text, chosen.ident + " - " + chosen.description);
        EXPECT_EQ(std::ranges::count(targets, true, &MenuItem::checked), 1);
        EXPECT_TRUE(targets[2].checked);
    });
    choose(2, 0);
    stage.look([this] { EXPECT_EQ(flight(FlightIndex{2}).current().hold, 1); });
    stage.todo([this](Script& script) { script.click(stage.onRadar({40, 40}), MouseButton::right).wait(1); });
    stage.look([this] {
        EXPECT_EQ(stage.desktop().topLevels().size(), 1U) << "no menu where there is no flight";
        EXPECT_EQ(stage.sounds.count("set"), 22);
    });
    stage.play();
}

TEST_F(OrdersTest, ExecIsGreyUntilAFlightIsChosenAndSendsByMouse) {
    begin();
    const Point exec{1024 - 25, 768 - 80};
    stage.todo([exec](Script& script) { script.click(exec).wait(1); });
    stage.look([this] { EXPECT_EQ(stage.sounds.count("set"), 0); });
    stage.selectByStrip(FlightIndex{0});
    stage.todo([this, exec](Script& script) {
        script.click(stage.onPanel({46, 20})).click(exec).wait(1);
        script.key(Key::keypad1).key(Key::enter).wait(1); // the keyboard is back on the console
    });
    stage.look([this] {
        EXPECT_EQ(stage.sounds.count("set"), 2);
        EXPECT_EQ(flight(FlightIndex{0}).lastStep().heading, 225);
    });
    stage.play();
}

TEST_F(OrdersTest, APressOnThePanelHoldsBackAutomaticSelection) {
    stage.look([this] { stage.shell().options.autoSelect = 2; });
    QuietShift shift(stage);
    shift.enter(FlightIndex{0}, {.cell = {10, 20}, .altitude = 5, .heading = 90});
    stage.skipTo(QuietShift::entryTime);
    expectSelected(FlightIndex{0}, "by entering");
    stage.look([this] {
        Flight& second = stage.game().flight(FlightIndex{1});
        second.scheduledAt = 75_s;
        second.plan = {{.cell = {30, 30}, .altitude = 5, .heading = 90}};
    });
    stage.todo([this](Script& script) {
        const ClockSeconds now = stage.shell().game.clock;
        // Close before the next step the player touches the panel.
        script.wait(401 * (73_s - now).count()).click(stage.onPanel({46, 50})).wait(1300);
    });
    stage.look([this] { EXPECT_TRUE(flight(FlightIndex{1}).isActive()); });
    expectSelected(FlightIndex{0}, "the player was busy with it");
    stage.look([this] {
        Flight& third = stage.game().flight(FlightIndex{2});
        third.scheduledAt = 90_s;
        third.plan = {{.cell = {20, 40}, .altitude = 5, .heading = 90}};
    });
    stage.skipTo(90_s);
    expectSelected(FlightIndex{2}, "ten seconds later it is free again");
    stage.play();
}

TEST_F(OrdersTest, APressInAnEarlierGameHoldsNothingBack) {
    stage.look([this] { stage.shell().options.autoSelect = 2; });
    begin();
    stage.skipTo(300_s);
    stage.selectByStrip(FlightIndex{0});
    stage.todo([this](Script& script) {
        script.click(stage.onPanel({46, 50})).wait(1);
        script.key(Key::f, withAlt).type("e").wait(1).key(Key::enter).wait(1);
    });
    begin();
    expectSelected(FlightIndex{2}, "the last that came in");
    stage.play();
}

TEST_F(OrdersTest, TheHandPointsAtWhatCanBePressed) {
    const auto expectHand = [this](bool isHand, std::function<Point()> place, const char* what) {
        stage.todo([place](Script& script) { script.moveTo(place()).wait(1); });
        stage.look([this, isHand, what] {
            const Pictures& pictures = stage.shell().pictures;
            EXPECT_EQ(stage.backend.cursor(), isHand ? &pictures.hand : &pictures.arrow) << what;
            EXPECT_EQ(stage.backend.cursor()->hotSpot, isHand ? (Point{6, 0}) : (Point{7, 9})) << what;
        });
    };
    const auto button = [this](int strip) {
        return [this, strip] { return stripButtonRect(stage.shell(), strip).topLeft(); };
    };
    const auto systemSquare = [] { return Point{4, 4}; };
    expectHand(false, systemSquare, "the square, without a game");
    begin();
    expectHand(true, systemSquare, "the square");
    expectHand(true, button(0), "a flight");
    expectHand(false, button(3), "no flight");
    expectHand(true, [] { return Point{1024 - 170, 72}; }, "the upper arrow");
    expectHand(true, [this] { return stage.onRadar({24, 24}); }, "the radar");
    stage.look([this] {
        const auto strip = stage.backend.dragStrip();
        ASSERT_TRUE(strip);
        EXPECT_TRUE(strip->contains({0, 0}) && strip->contains({1023, 4}));
        EXPECT_FALSE(strip->contains({4, 4}) || strip->contains({500, 5}));
    });
    stage.play();
}

TEST_F(OrdersTest, UpAndDownScrollWhereTheStripsEnd) {
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

TEST_F(OrdersTest, TheWheelScrollsTheStripsAndTheButtonFollowsItsFlight) {
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

TEST_F(OrdersTest, TabGoesThroughAllThatCanBeSelectedWhereverTheyStand) {
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
