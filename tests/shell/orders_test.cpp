// Sending orders, in every way that the console has.

#include <algorithm>

#include "resources/menus.h"
#include "shell/popup_menus.h"
#include "shell/three_flights.h"

namespace ventrel {
namespace {

using OrdersTest = ThreeFlights;

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

} // namespace
} // namespace ventrel
