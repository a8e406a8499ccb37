// The control panel: composing an order by mouse and by operations, and what the panel shows of it.

#include <gtest/gtest.h>

#include "console/panel_areas.h"
#include "controls/control_panel_drawing.h"
#include "golden.h"
#include "panel_stage.h"

namespace ventrel {
namespace {

TEST(PanelTest, TakesAFlightAsItFlies) {
    PanelStage stage;
    Flight& flight = stage.fly(45);
    flight.plan = {flight.plan[0], flying(3, 90)};
    CtrlSetFlight(stage.panel, FlightIndex{0});
    EXPECT_EQ(stage.pending(), flight.plan[0]) << "the present heading, not the goal";
    CtrlClearFlight(stage.panel);
    EXPECT_EQ(stage.take(), (Lines{"exec on", "exec off"}));
}

TEST(PanelTest, MarksWhatExecWouldChange) {
    PanelStage stage;
    Flight& flight = stage.fly();
    CtrlSetFlight(stage.panel, FlightIndex{0});
    const auto unsent = [&](PlanStep now, PlanStep goal, PlanStep order) {
        flight.plan = {now, goal};
        stage.panel.state.pending = order;
        const UnsentSettings marks = unsentSettings(stage.panel.state, stage.game);
        return std::string(marks.heading ? "h" : "") + (marks.altitude ? "a" : "") +
               (marks.speed ? "s" : "") + (marks.direct ? "d" : "");
    };
    const PlanStep now = flying(5, 90);
    const PlanStep goal = flying(8, 180);
    EXPECT_EQ(unsent(now, goal, now), "") << "as it flies: the pilot does not change a thing";
    EXPECT_EQ(unsent(now, goal, goal), "") << "it is told that already";
    EXPECT_EQ(unsent(now, goal, flying(5, 180)), "a") << "it would no longer climb";
    EXPECT_EQ(unsent(now, goal, atSpeed(Speed::fast, goal)), "s");
    EXPECT_EQ(unsent(now, goal, flying(8, 90, 2)), "d");
    EXPECT_EQ(unsent(flying(5, 90, 2), flying(5, 45), flying(6, 90, 2)), "a");
    EXPECT_EQ(unsent(flying(5, 90, 2), flying(5, 45), flying(5, 45)), "h") << "off the direct course";
    EXPECT_EQ(unsent(flying(5, 90, 1, true), flying(5, 45), flying(5, 90, 3, true)), "");
    flight.groundState = GroundState::waiting;
    EXPECT_EQ(unsent(now, goal, flying(5, 180)), "");
}

TEST(PanelTest, TheSelectorRunsInARingOverThePointsAndHold) {
    PanelStage stage;
    stage.fly();
    CtrlSetFlight(stage.panel, FlightIndex{0});
    using At = std::pair<int, bool>;
    const auto at = [&] {
        return At{directTargetNumber(stage.pending().directTarget, pointCount), stage.pending().hold};
    };
    const auto selector = [&](bool up) {
        CtrlStepDirect(stage.panel, up);
        return at();
    };
    EXPECT_EQ(selector(true), (At{0, 0})) << "either arrow first switches it on";
    EXPECT_EQ(selector(true), (At{3, 1}));
    EXPECT_EQ(selector(true), (At{2, 0}));
    EXPECT_EQ(selector(false), (At{3, 1}));
    EXPECT_EQ(selector(false), (At{0, 0}));
    EXPECT_EQ(selector(false), (At{1, 0}));
    CtrlSetHold(stage.panel);
    EXPECT_EQ(at(), (At{3, 1}));
    CtrlToggleDirect(stage.panel);
    EXPECT_EQ(at(), (At{-1, 1}));
    EXPECT_EQ(selector(false), (At{0, 0}));
    CtrlSetDirect(stage.panel, PointIndex{2});
    CtrlSetHeading(stage.panel, 135);
    EXPECT_EQ(stage.pending(), flying(5, 135));
    CtrlSetAltitude(stage.panel, 10);
    CtrlStepAltitude(stage.panel, true);
    EXPECT_EQ(stage.pending().altitude, 10);
    EXPECT_EQ(stage.take().size(), 14U) << "EXEC enabled once, and a click for every step";
    stage.game.flight(FlightIndex{0}).plan = {flying(5, 90, 1, true)}; // as it flies a hold
    CtrlSetFlight(stage.panel, FlightIndex{0});
    EXPECT_EQ(selector(false), (At{2, 1})) << "on the way down a flown hold stays one";
    EXPECT_EQ(selector(true), (At{1, 0}));
}

TEST(PanelTest, NothingCanBeSetForAFlightThatIsNotInTheAir) {
    PanelStage stage;
    Flight& flight = stage.fly();
    const auto trySettings = [&] {
        CtrlSetHeading(stage.panel, 180);
        CtrlSetAltitude(stage.panel, 9);
        CtrlStepAltitude(stage.panel, true);
        CtrlSetSpeed(stage.panel, Speed::fast);
        CtrlToggleDirect(stage.panel);
        CtrlStepDirect(stage.panel, true);
        CtrlSetDirect(stage.panel, PointIndex{1});
        return stage.take();
    };
    EXPECT_EQ(trySettings(), Lines{}) << "without a flight";
    CtrlSetFlight(stage.panel, FlightIndex{0});
    stage.take();
    const PlanStep before = stage.pending();
    flight.groundState = GroundState::waiting;
    EXPECT_EQ(trySettings(), Lines{});
    flight.groundState = GroundState::airborne;
    flight.inPlay = false;
    EXPECT_EQ(trySettings(), Lines{});
    EXPECT_EQ(stage.pending(), before);
    stage.script.click(stage.inMain({130, 9}));
    stage.play();
    EXPECT_EQ(stage.pending().altitude, 9) << "but the scale does not ask whether it is still in play";
    EXPECT_EQ(stage.take(), Lines{"click"});
    flight.inPlay = true;
    flight.groundState = GroundState::cleared;
    stage.panel.state.pending.directTarget = PointIndex{2};
    CtrlStepDirect(stage.panel, true);
    EXPECT_EQ(stage.pending().directTarget, PointIndex{1}) << "a selector that is on turns on the ground too";
    EXPECT_EQ(stage.take(), Lines{"click"});
}

struct WantedArea {
    PanelControl control;
    Rect press;
    Rect hand;
};

// Pixel by pixel: the places are put together from anchors, and fields overlap.
TEST(PanelTest, EveryPointOfThePanelBelongsToItsControlAndItsHeading) {
    using enum PanelControl;
    constexpr std::array<WantedArea, 8> controls{{
        {dial, {17, 5, 77, 65}, {17, 5, 77, 65}},
        {altitude, {111, 0, 161, 89}, {111, 0, 161, 89}},
        {fast, {93, 11, 102, 20}, {93, 11, 103, 21}},
        {normal, {93, 31, 102, 40}, {93, 31, 103, 41}},
        {slow, {93, 51, 102, 60}, {93, 51, 103, 61}},
        {direct, {3, 74, 18, 89}, {3, 74, 18, 89}},
        {targetUp, {79, 73, 90, 82}, {79, 73, 90, 82}},
        {targetDown, {79, 83, 90, 92}, {79, 83, 90, 92}},
    }};
    constexpr std::array<std::pair<Rect, int>, 8> headings{{
        {{43, 9, 50, 33}, 0},
        {{48, 31, 75, 39}, 90},
        {{43, 36, 50, 64}, 180},
        {{20, 31, 46, 39}, 270},
        {{17, 5, 38, 32}, 315},
        {{38, 5, 77, 32}, 45},
        {{38, 32, 77, 65}, 135},
        {{17, 32, 38, 65}, 225},
    }};
    for (int i = 0; i < 168 * 109; ++i) {
        const Point p{i % 168, i / 168};
        const auto* const control =
            std::ranges::find_if(controls, [p](const WantedArea& area) { return area.press.contains(p); });
        const bool isControl = control != controls.end();
        EXPECT_EQ(panelControlAt(p), isControl ? std::optional(control->control) : std::nullopt)
            << p.x << ", " << p.y;
        for (const bool directIsOn : {false, true}) {
            const bool isHand = std::ranges::any_of(controls, [&](const WantedArea& area) {
                const bool isArrow = area.control == targetUp || area.control == targetDown;
                return area.hand.contains(p) && (directIsOn ? area.control != dial : !isArrow);
            });
            EXPECT_EQ(isHandArea(p, directIsOn), isHand) << p.x << ", " << p.y;
        }
        const auto* const heading =
            std::ranges::find_if(headings, [p](const auto& field) { return field.first.contains(p); });
        EXPECT_EQ(dialHeadingAt(p), heading != headings.end() ? std::optional(heading->second) : std::nullopt)
            << p.x << ", " << p.y;
    }
}

TEST(PanelTest, EveryControlAnswersToAPress) {
    struct Press {
        Point at;
        PlanStep wanted;
    };
    const PlanStep low = flying(1, 225);
    const std::array<Press, 14> presses{{
        {{45, 20}, flying(5, 0)}, // the strip before the quarter
        {{70, 60}, flying(5, 135)},
        {{17, 64}, flying(5, 225)},
        {{161, 50}, flying(5, 225)}, // right of the scale
        {{111, 8}, flying(10, 225)},
        {{160, 9}, flying(9, 225)},
        {{120, 88}, low},
        {{93, 11}, atSpeed(Speed::fast, low)},
        {{95, 59}, atSpeed(Speed::slow, low)},
        {{101, 39}, low},
        {{3, 74}, flying(1, 225, 0)},
        {{79, 83}, flying(1, 225, 1)},
        {{84, 82}, flying(1, 225, 1)}, // between the arrows
        {{89, 81}, flying(1, 225, 0)},
    }};
    PanelStage stage;
    stage.fly(0);
    CtrlSetFlight(stage.panel, FlightIndex{0});
    for (const Press& press : presses) {
        stage.script.click(stage.inMain(press.at)).then([&] {
            EXPECT_EQ(stage.pending(), press.wanted) << press.at.x << ", " << press.at.y;
        });
    }
    stage.script.click(stage.inMain({30, 34})).then([&] {
        EXPECT_EQ(stage.pending(), flying(1, 270)) << "the dial switches the direct course off";
        stage.game.flight(FlightIndex{0}).heavy = true;
    });
    stage.script.click(stage.inMain({97, 15})).then([&] {
        CtrlSetSpeed(stage.panel, Speed::slow);
        EXPECT_EQ(stage.pending().speed, Speed::normal) << "a heavy flight keeps its speed";
    });
    stage.take();
    stage.play();
    EXPECT_EQ(stage.take(), Lines(13, "click"));
}

TEST(PanelTest, APressIsATouchWhateverElseItDoes) {
    PanelStage stage;
    stage.clock = 321_s;
    stage.script.click(stage.inMain({160, 100}), MouseButton::right).then([&] {
        EXPECT_EQ(CtrlTouchTime(stage.panel), 0_s);
    });
    stage.script.click(stage.inMain({160, 100})).then([&] {
        EXPECT_EQ(CtrlTouchTime(stage.panel), 321_s);
        CtrlResetTouch(stage.panel);
    });
    stage.script.doubleClick(stage.inMain({1, 1}));
    stage.play();
    EXPECT_EQ(CtrlTouchTime(stage.panel), 321_s);
}

TEST(PanelTest, TheHandShowsWhereAPressWouldDoSomething) {
    PanelStage stage;
    Flight& flight = stage.fly();
    const auto isHand = [&](Point p, bool expected) {
        stage.script.moveTo(stage.inMain(p)).then([&stage, p, expected] {
            EXPECT_EQ(stage.backend.cursor() == &stage.hand, expected) << p.x << ", " << p.y;
        });
    };
    isHand({130, 40}, false);
    stage.script.then([&] { CtrlSetFlight(stage.panel, FlightIndex{0}); });
    isHand({130, 41}, true);
    isHand({40, 30}, true);
    isHand({84, 78}, false);
    isHand({102, 20}, true);
    isHand({100, 70}, false);
    stage.script.then([&] { CtrlSetDirect(stage.panel, PointIndex{1}); });
    isHand({40, 31}, false);
    isHand({84, 77}, true);
    isHand({84, 90}, true);
    stage.script.then([&] { flight.groundState = GroundState::rolling; });
    isHand({130, 42}, false);
    stage.play();
}

/// A state of the panel for the sheet.
struct PanelLook {
    PlanStep pending;
    GroundState ground = GroundState::airborne;
    bool heavy = false;
};

TEST(PanelPictureTest, LooksAsItDidInEveryState) {
    PanelStage stage;
    Flight& flight = stage.fly(90);
    std::vector<PanelLook> looks;
    for (int i = 0; i < 8; ++i) {
        looks.push_back({atSpeed(static_cast<Speed>(i % 3 - 1), flying(i + 1, i * headingStep)),
                         GroundState::airborne, i == 7});
    }
    looks.push_back({flying(9, 0, 0)});
    looks.push_back({flying(10, 0, 1)});
    looks.push_back({flying(10, 0, 3, 1)});
    looks.push_back({flying(1, 0, 2), GroundState::waiting});
    constexpr int columns = 3;
    Bitmap sheet({columns * (panelLayout.size.width + 4), 4 * (panelLayout.size.height + 4)});
    for (int i = 0; i < static_cast<int>(looks.size()); ++i) {
        const PanelLook& look = looks[static_cast<std::size_t>(i)];
        flight.groundState = look.ground;
        flight.heavy = look.heavy;
        CtrlSetFlight(stage.panel, FlightIndex{0});
        stage.panel.state.pending = look.pending;
        CtrlRepaint(stage.panel);
        const Point corner{i % columns * (panelLayout.size.width + 4),
                           i / columns * (panelLayout.size.height + 4)};
        Canvas(sheet).draw(corner, stage.picture(stage.panel.window));
    }
    expectGolden(sheet, "controls_panel");
    const auto shown = [&](PlanStep order) {
        stage.panel.state.pending = order;
        CtrlRepaint(stage.panel);
        return stage.picture(stage.panel.window);
    };
    EXPECT_EQ(shown(flying(1, 0, 1, true)), shown(flying(1, 0, 3, true))) << "a flown hold reads hold, too";
    CtrlClearFlight(stage.panel);
    const Bitmap idle = stage.picture(stage.panel.window);
    EXPECT_EQ(count(idle, consoleGrey, idle.bounds()), idle.width() * idle.height());
}

} // namespace
} // namespace ventrel
