// The shipped lessons, played to their ends and with every mistake, and the reader of their texts.

#include <gtest/gtest.h>

#include <filesystem>

#include "lessons/lesson_file.h"
#include "lessons/pupil.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

std::size_t lessonCount() {
    return lessonFiles(fs::path(PROGRAM_FOLDER) / "lessons").size();
}

class EveryLesson : public ::testing::TestWithParam<std::size_t> {};
INSTANTIATE_TEST_SUITE_P(Lessons, EveryLesson, ::testing::Range(std::size_t{0}, lessonCount()));

TEST_P(EveryLesson, IsDoneByWhoDoesWhatItSays) {
    for (const int width : {800, 1024}) {
        for (const int voices : {0, 21}) {
            Pupil pupil(GetParam(), width, voices);
            pupil.playTo(pupil.lesson().steps.size() - 1);
            EXPECT_EQ(pupil.follower.note().kind, NoteKind::done)
                << pupil.lesson().name << ", at " << width << " with " << voices
                << " voices, stands at: " << pupil.follower.note().text;
            EXPECT_TRUE(pupil.game.isRunning() || pupil.game.phase == Phase::lastLine);
            EXPECT_GE(pupil.game.score, 0);
        }
    }
}

/// The answers that can be given in a step, each with its way there: every alternative of every condition.
TEST_P(EveryLesson, HasAnAnswerToEveryMistake) {
    const Lesson lesson = Pupil(GetParam()).lesson();
    for (std::size_t step = 0; step + 1 < lesson.steps.size(); ++step) {
        std::vector<LessonAnswer> answers = lesson.steps[step].answers;
        if (step == 0) {
            answers.insert(answers.end(), lesson.answers.begin(), lesson.answers.end());
        }
        for (const LessonAnswer& answer : answers) {
            Pupil pupil(GetParam());
            pupil.playTo(step);
            pupil.bringAbout(answer.when.front());
            const LessonNote note = pupil.look();
            EXPECT_EQ(note.text, lessonText(pupil.game, answer.text)) << lesson.name << ", step " << step;
            EXPECT_EQ(note.kind, answer.stops ? NoteKind::stop : NoteKind::answer);
        }
    }
}

TEST(KeepingApart, EndsInACollisionForWhoDoesNothing) {
    Pupil pupil(4);
    while (step(pupil.game, pupil.follower)) {
        pupil.look();
    }
    EXPECT_EQ(pupil.game.phase, Phase::rings);
    EXPECT_EQ(pupil.look().kind, NoteKind::stop);
}

TEST(BusyQuarter, TheFrameGoesWhereTheHandMustGoNext) {
    Pupil pupil(5);
    pupil.playTo(5);
    const FactTerm selected{.fact = Fact::selected, .flight = 3};
    const FactTerm direct{.fact = Fact::panelDirect, .flight = 3, .point = "MCN"};
    const FactTerm hold{.fact = Fact::panelHold, .flight = 3};
    EXPECT_EQ(pupil.look().spot.part, DeskPart::flight);
    for (const auto& [terms, part] : {std::pair{FactTerms{selected}, DeskPart::direct},
                                      {FactTerms{direct}, DeskPart::target},
                                      {FactTerms{hold}, DeskPart::exec}}) {
        pupil.bringAbout(terms);
        EXPECT_EQ(pupil.look().spot.part, part) << pupil.follower.note().text;
    }
}

TEST(LessonTexts, AreFilledInWithCallsignsAndRunways) {
    const Pupil pupil(0);
    const std::string callsign(std::string_view(pupil.game.flights[0].callsign));
    EXPECT_EQ(lessonText(pupil.game, "{A} lands at ATL on {ATL}."), callsign + " lands at ATL on 270.");
}

constexpr std::string_view soundLesson = "lesson Try\n"
                                         "about What is tried.\n"
                                         "airspace atlanta\n"
                                         "seed 3\n"
                                         "flight A at 0:15 from 2,20 heading 90 altitude 7 to AHN\n"
                                         "say First.\n"
                                         "until A selected and not A told altitude 10 or paused\n"
                                         "but A moved 2: Too\n"
                                         "  late.\n"
                                         "say Last.\n";

TEST(LessonFile, IsReadAsItIsWritten) {
    const Lesson lesson = readLesson(soundLesson, "try.lesson").value();
    ASSERT_EQ(lesson.steps.size(), 2U);
    const LessonStep& first = lesson.steps.front();
    EXPECT_EQ(first.until.size(), 2U) << "two alternatives";
    EXPECT_EQ(first.until.front().size(), 2U);
    EXPECT_EQ(first.answers.front().text, "Too late.");
}

struct Slip {
    std::string_view line;    ///< of the sound lesson
    std::string_view instead; ///< what stands there
    std::string_view complaint;
};

TEST(LessonFile, ASlipIsNamedWithItsLine) {
    constexpr std::array slips{std::to_array<Slip>({
        {"until A sel", "until B sel", "try.lesson:7: 'B selected"},
        {"altitude 10", "altitude 11", "try.lesson:7: after 'told altitude'"},
        {"heading 90", "heading 80", "try.lesson:5: a flight comes 'from'"},
        {"at 0:15", "at 0:20", "try.lesson:5: a flight comes 'later'"},
        {"until A selected", "show exec if paused\nuntil A selected",
         "try.lesson:7: 'exec if paused' is nothing"},
        {"until A selected", "show exec when\nuntil A selected", "try.lesson:7: '' begins with no fact"},
        {"moved 2:", "moved 2", "try.lesson:8: between a mistake"},
        {"say Last.", "cry Last.", "try.lesson:10: 'cry' begins no line"},
        {"seed 3", "seed -3", "try.lesson:4: a seed"},
        {"flight A", "flight B", "try.lesson:5: flights go by letters"},
        {"say First.\n", "say First.\nsay Second.\n", "try.lesson:7: the step before has no 'until'"},
        {"say Last.\n", "", "try.lesson: the last step"},
        {"First.", "\xE2\x98\x83", "try.lesson:6: a character"},
    })};
    for (const Slip& slip : slips) {
        std::string text(soundLesson);
        text.replace(text.find(slip.line), slip.line.size(), slip.instead);
        const auto lesson = readLesson(text, "try.lesson");
        ASSERT_FALSE(lesson) << slip.instead;
        EXPECT_EQ(lesson.error().text.substr(0, slip.complaint.size()), slip.complaint);
    }
}

TEST(LessonCheck, NamesAPointThatTheAirspaceDoesNotHave) {
    const auto airspace = loadAirport(fs::path(PROGRAM_FOLDER) / "apt/atlanta8.apt").value();
    std::string text(soundLesson);
    EXPECT_TRUE(checkLesson(readLesson(text, "try").value(), *airspace));
    text.replace(text.find("First."), 6, "Land on {MCN}.");
    EXPECT_EQ(checkLesson(readLesson(text, "try").value(), *airspace).error().text,
              "lesson 'Try': MCN has no runway");
    text.replace(text.find("to AHN"), 6, "to XYZ");
    EXPECT_EQ(checkLesson(readLesson(text, "try").value(), *airspace).error().text,
              "lesson 'Try': there is no point 'XYZ' in Atlanta");
}

} // namespace
} // namespace ventrel
