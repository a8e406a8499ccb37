// The panel's preview line, and what the order menu is told of a flight.

#include <gtest/gtest.h>

#include <array>

#include "console/panel_areas.h"
#include "controls/control_panel_drawing.h"
#include "controls/tight_line.h"
#include "panel_stage.h"

namespace ventrel {
namespace {

TEST(PreviewTest, TellsWhatTheFlightIsDoing) {
    PanelStage stage;
    Flight& flight = stage.fly();
    flight.callsign = "UA123";
    EXPECT_EQ(previewLine(stage.panel.state, stage.game), "");
    CtrlSetFlight(stage.panel, FlightIndex{0});
    const auto line = [&](PlanStep now, PlanStep goal) {
        flight.plan = {now, goal};
        return previewLine(stage.panel.state, stage.game);
    };
    EXPECT_EQ(line(flying(5, 45), flying(3, 90)), "UA123: Turn 90\xB0, descend 3000 ft");
    EXPECT_EQ(line(flying(5, 90), flying(5, 90)), "UA123: 90\xB0, 5000 ft");
    EXPECT_EQ(line(flying(9, 0), flying(10, 0)), "UA123: 0\xB0, up to 10000 ft");
    EXPECT_EQ(line(flying(5, 0, 2), flying(5, 45)), "Direct to SEA, 5000 ft");
    EXPECT_EQ(line(flying(5, 0, 0), flying(1, 45)), "Direct to ALB, descend 1000 ft");
    EXPECT_EQ(line(flying(5, 0, 1, 1), flying(5, 45)), "Holding pattern at 5000 ft");
    EXPECT_EQ(line(flying(5, 0, 1, 1), flying(4, 45)), "Holding pattern, descend 4000 ft");
    EXPECT_EQ(line(flying(5, 0, 1, 1), flying(6, 45)), "Holding pattern. up to 6000 ft");
    flight.groundState = GroundState::waiting;
    EXPECT_EQ(previewLine(stage.panel.state, stage.game), "UA123: Waiting for takeoff");
    for (const GroundState state : {GroundState::cleared, GroundState::rolling}) {
        flight.groundState = state;
        EXPECT_EQ(previewLine(stage.panel.state, stage.game), "UA123: Takeoff in progress");
    }
}

TEST(PreviewTest, EveryWordOfEveryOrderFitsIntoTheLine) {
    PanelStage stage;
    Flight& flight = stage.fly();
    CtrlSetFlight(stage.panel, FlightIndex{0});
    const Font& font = stage.fonts.font({Face::arial, -11, false});
    const int room = panelLayout.preview.width();
    int tooWide = 0;
    for (const char* callsign : {"UA123", "TWA89", "AMW8492H"}) {
        flight.callsign = std::string_view{callsign};
        for (int heading = 0; heading < fullCircle; heading += headingStep) {
            for (int altitude = 1; altitude <= 10; ++altitude) {
                flight.plan = {flying(5, 45), flying(altitude, heading)};
                const std::string line = previewLine(stage.panel.state, stage.game);
                tooWide += font.width(line) > room ? 1 : 0;
                EXPECT_LE(tightLineWidth(font, line, room), room) << line;
            }
        }
    }
    EXPECT_GT(tooWide, 50) << "else nothing has to give way";
}

TEST(PreviewTest, OnlyWhatIsTooWideMovesCloser) {
    PanelStage stage;
    const Font& font = stage.fonts.font({Face::arial, -11, false});
    const auto drawn = [&](std::string_view text, const Rect& box) {
        Bitmap picture({200, 20});
        Canvas canvas(picture);
        drawTightLine(canvas, font, box, text, {selectedWhite, black});
        return picture;
    };
    const int natural = font.width("to fly");
    const int blank = font.width(" ");
    EXPECT_EQ(tightLineWidth(font, "to fly", natural), natural);
    EXPECT_EQ(tightLineWidth(font, "to fly", natural - 1), natural - 1);
    EXPECT_EQ(tightLineWidth(font, "to fly", 1), natural - (blank - 1) - 4) << "four letters can move";
    const Rect box{2, 2, 2 + natural - blank + 1, 15};
    const Bitmap picture = drawn("to fly", box);
    EXPECT_EQ(crop(picture, {2, 2, 2 + font.width("to"), 15}),
              crop(drawn("to", box), {2, 2, 2 + font.width("to"), 15}))
        << "the blank gives way before the letters";
    EXPECT_EQ(count(picture, black, {box.right, 0, 200, 20}), (200 - box.right) * 20)
        << "nothing leaves the box";
}

TEST(PreviewTest, IsPaintedAnewOnceAfterEveryMoveOfTheFlights) {
    PanelStage stage;
    Flight& flight = stage.fly(90);
    CtrlSetFlight(stage.panel, FlightIndex{0});
    const Bitmap before = stage.picture(stage.panel.window);
    flight.plan[0].heading = 45;
    const auto changesAt = [&](ClockSeconds now) {
        stage.clock = now;
        CtrlTick(stage.panel);
        return stage.picture(stage.panel.window) != before;
    };
    EXPECT_FALSE(changesAt(105_s));
    EXPECT_TRUE(changesAt(106_s));
}

TEST(PreviewTest, TheMenuIsToldWhatIsFlownNotWhatIsPending) {
    PanelStage stage;
    Flight& flight = stage.fly(45);
    const auto now = [&] {
        const CurrentSettings is = currentSettings(stage.panel.state, stage.game);
        return std::array{is.heading.value_or(-1), is.altitude.value_or(-1), static_cast<int>(is.speed),
                          is.holds    ? -1
                          : is.direct ? is.direct->number()
                                      : -2};
    };
    EXPECT_EQ(now(), (std::array{-1, -1, -1, -2}));
    CtrlSetFlight(stage.panel, FlightIndex{0});
    CtrlSetHeading(stage.panel, 180);
    EXPECT_EQ(now(), (std::array{45, 5, 0, -2}));
    flight.plan[0].directTarget = PointIndex{2};
    EXPECT_EQ(now(), (std::array{-1, 5, 0, 2}));
    flight.plan[0].hold = true;
    EXPECT_EQ(now(), (std::array{-1, 5, 0, -1}));
}

} // namespace
} // namespace ventrel
