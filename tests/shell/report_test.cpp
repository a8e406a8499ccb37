// The report of a shift, and the list of finished shifts that it compares with.

#include "review/report_page.h"

#include "golden.h"
#include "resources/dialogs.h"
#include "shell/game_stage.h"
#include "shell/plain_program.h"

namespace ventrel {
namespace {

/// A Hard shift with something of everything.
ShiftStory eventfulStory() {
    ShiftStory story;
    story.airspace = "Testville";
    story.controller = "mary";
    story.skill = Skill::hard;
    story.seed = 7;
    story.length = 900_s;
    story.possibleScore = 1500;
    story.freeOrders = 2;
    story.places = {{"TST", {24, 24}, true}, {"NOR", {24, 3}, false}, {"EAS", {46, 20}, false}};
    story.flights = {
        {"UA12", "", "TST", 15_s, 15_s, 300_s, FlightEnd::landed, 3, 145},
        {"DL345H", "TST", "NOR", 60_s, 60_s, 420_s, FlightEnd::left, 1, 75},
        {"LR51", "", "EAS", 90_s, 90_s, 450_s, FlightEnd::lost, 0, -200},
        {"TW7", "", "TST", 120_s, 120_s, 600_s, FlightEnd::collided, 2, -100},
        {"QA9", "TST", "EAS", 150_s, 150_s, {}, FlightEnd::none, 0, 0},
        {"KL8", "", "NOR", 700_s, {}, {}, FlightEnd::none, 0, 0},
    };
    int score = 0;
    const auto change = [&](ClockSeconds clock, ScoreCause cause, int delta) {
        const int before = score;
        score = std::max(0, score + delta);
        story.changes.push_back({clock, {cause, FlightIndex{0}, delta, score}, before});
    };
    change(290_s, ScoreCause::order, -5);
    change(300_s, ScoreCause::landing, 150);
    change(420_s, ScoreCause::exit, 75);
    change(450_s, ScoreCause::lost, -200);
    change(555_s, ScoreCause::nearMiss, -100);
    change(570_s, ScoreCause::landing, 450);
    story.nearMisses = {{555_s, FlightIndex{3}, FlightIndex{4}, {30, 12}, 5}};
    story.collisionCell = Cell{12, 30};
    story.clock = 600_s;
    story.score = score;
    story.end = ShiftEnd::collision;
    return story;
}

TEST(ReportPage, ShowsWhatWasGoodAndWhatWasBad) {
    FontSet fonts(std::filesystem::path(PROGRAM_FOLDER) / "fonts");
    const ShiftStory story = eventfulStory();
    ReportFacts facts{story, "2026-11-25 12:30", {}, {}};
    for (const int score : {300, 900, 0, 1400}) {
        PastShift& past = facts.earlier.emplace_back();
        past.score = score;
        past.possibleScore = 1500;
        past.collided = score == 0;
    }
    Bitmap page(reportPageSize);
    Canvas canvas(page);
    paintReport(canvas, reportFontsOf(fonts), facts, page.height(), 0);
    expectGolden(page, "report_page");
}

class ReportTest : public ::testing::Test {
protected:
    PlainProgram program;
    GameStage stage{800, "[Game]\nName=mary\nSkill=1\n", program.folder()};

    ReportTest() {
        std::tm today{};
        today.tm_year = 126;
        today.tm_mon = 10;
        today.tm_mday = 25;
        today.tm_hour = 9;
        today.tm_min = 5;
        stage.backend.setToday(today);
        stage.startNewGame();
        stage.skipTo(60_s);
    }

    std::filesystem::path file(std::string_view name) { return stage.shell().playerFolder / name; }
    /// Every flight is handled, and the table of high scores has been closed.
    void finish() {
        stage.look([this] {
            for (Flight& flight : stage.game().flights) {
                flight.inPlay = false;
            }
            stage.game().bonus = 0;
        });
        stage.skip();
        stage.wait(60'000);
        press(Key::enter);
        stage.look([this] { ASSERT_FALSE(stage.isDialogOpen()); });
    }
    void press(Key key, Modifiers modifiers = {}) {
        stage.todo([key, modifiers](Script& script) { script.key(key, modifiers).wait(20); });
    }
    bool schedulesReportIsShown() {
        const Window inside = stage.desktop().activeWindow().children().front();
        return inside.child(schedule::report).isVisible();
    }
};

TEST_F(ReportTest, IsOfferedByTheScheduleOnceTheShiftIsOverAndSaved) {
    press(Key::s, withControl);
    stage.look([this] { EXPECT_FALSE(schedulesReportIsShown()); });
    press(Key::enter);
    finish();
    stage.look([this] {
        const std::string kept = readText(file("shifts.txt"));
        EXPECT_EQ(kept.find("Ventrel shifts 1\n2026-11-25 09:05\t"), 0U) << kept;
        EXPECT_NE(kept.find("\t1\t0\t"), std::string::npos) << "Normal, no point: " << kept;
    });
    press(Key::s, withControl);
    stage.look([this] { EXPECT_TRUE(schedulesReportIsShown()); });
    press(Key::r, withAlt);
    for (const char* name : {"shift-2026-11-25-1.png", "shift-2026-11-25-2.png"}) {
        press(Key::s, withAlt);
        press(Key::enter); // where it is
        stage.look([this, name] { EXPECT_EQ(readText(file(name)).substr(1, 3), "PNG") << name; });
    }
    press(Key::escape);
    stage.look([this] { EXPECT_TRUE(schedulesReportIsShown()) << "back where it was asked for"; });
    stage.play();
}

TEST_F(ReportTest, LeavesADamagedListAsItIsAndSaysSo) {
    stage.look([this] { writeText(file("shifts.txt"), "Ventrel shifts 1\nno shift\n"); });
    finish();
    stage.look([this] {
        EXPECT_NE(stage.shell().keeping.trouble.find("Line 2"), std::string::npos);
        EXPECT_EQ(readText(file("shifts.txt")), "Ventrel shifts 1\nno shift\n");
    });
    stage.play();
}

TEST_F(ReportTest, KeepsNoPracticeShift) {
    stage.look([this] { stage.shell().shiftKind = ShiftKind::practice; });
    stage.look([this] {
        for (Flight& flight : stage.game().flights) {
            flight.inPlay = false;
        }
    });
    stage.skip();
    stage.look([this] {
        EXPECT_NE(stage.shell().log.story().end, ShiftEnd::running);
        EXPECT_FALSE(std::filesystem::exists(file("shifts.txt")));
    });
    stage.play();
}

} // namespace
} // namespace ventrel
