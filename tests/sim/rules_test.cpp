// The small rules around a shift: the grid, phrases, ticker queue, texts and options.

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>

#include "../base/temp_folder.h"
#include "sim/message_queue.h"
#include "sim/phrase.h"
#include "sim/shift_texts.h"
#include "small_airspace.h"

namespace ventrel {
namespace {

TEST(Grid, CornersAreCutAndTheMiddleBelongsToTheLowerRight) {
    EXPECT_TRUE(isOutsideScope({0, 14}));
    EXPECT_FALSE(isOutsideScope({0, 15}));
    EXPECT_TRUE(isOutsideScope({48, 13}));
    EXPECT_FALSE(isOutsideScope({48, 14}));
    EXPECT_TRUE(isOutsideScope({0, 35}));
    EXPECT_FALSE(isOutsideScope({0, 34}));
    EXPECT_TRUE(isOutsideScope({48, 48}));
    EXPECT_EQ(quadrantOf({24, 0}), Quadrant::lowerRight);
    EXPECT_EQ(quadrantOf({0, 24}), Quadrant::lowerRight);
    EXPECT_FALSE(isOutsideScope({24, -1})); // only the cell's own corner is looked at
    EXPECT_EQ(stepCell({0, 0}, 315), (Cell{-1, -1}));
    EXPECT_EQ(stepCell({5, 5}, 30), (Cell{5, 5}));
}

TEST(GameStates, AnswerAboutNothing) {
    Game game;
    EXPECT_EQ(firstScheduledTime(game), 30000_s);
    EXPECT_EQ(copyVor(game, std::nullopt), Vor{});
    EXPECT_TRUE(game.airspace->picture.empty());
    EXPECT_FALSE(step(game));
}

TEST(Phrases, EveryCharacterHasItsOwnSnippetFile) {
    std::set<std::string_view> files;
    for (int number = 0; number < snippetCount; ++number) {
        files.insert(snippetFile(number));
    }
    EXPECT_EQ(files.size(), 61U);
    EXPECT_EQ(snippetFile(snippetNumber(VoiceAltitudeCode(10))), "10k.snd");
    EXPECT_EQ(snippetFile(snippetNumber(VoiceHeadingCode(7))), "turn0.snd");
    EXPECT_EQ(snippetNumber('\x1F'), -1);
    EXPECT_EQ(snippetNumber('\x5D'), -1);
    EXPECT_EQ(snippetNumber('\xE4'), -1);
    EXPECT_EQ(phraseAsWords("R=B1"), "American two seven heavy");
    EXPECT_EQ(phraseInFigures("R=B1G\"'"), "American 27 heavy turn heading 090 descending to 1,000");
}

TEST(MessageQueues, DropTheNinthLineAndFillTheLowestFreeSlot) {
    MessageQueue queue;
    for (int i = 0; i < 8; ++i) {
        EXPECT_TRUE(postMessage(queue, "line", MessageClass::success));
    }
    queue.idle = true;
    EXPECT_FALSE(postMessage(queue, "ninth", MessageClass::emergency));
    EXPECT_FALSE(queue.idle);

    queue.slots[3].inUse = false;
    const std::string longName(69, 'x');
    EXPECT_TRUE(postMessage(queue, longName, MessageClass::emergency));
    EXPECT_EQ(queue.slots[3].text, longName);
}

TEST(ShiftTexts, NameTheControllerTheScoreAndTheBlame) {
    TestGame test;
    test.game.controllerName = "Mary";
    test.fly({24, 30}, 5, 90, PointIndex{1}).scheduledAt = 75_s;
    test.fly({24, 30}, 5, 90, PointIndex{1});
    test.game.flight(FlightIndex{1}).inPlay = false;
    test.game.score = 40;
    test.game.collisionFlights = {FlightIndex{1}, FlightIndex{0}};
    EXPECT_EQ(welcomeText(test.game), "Welcome Mary-  First plane arrives at 01:15");
    EXPECT_EQ(scoreSoFarText(test.game), "Mary's score so far: 40");
    std::tm day{};
    day.tm_mday = 5;
    day.tm_year = 99;
    day.tm_wday = 2;
    const PressRelease release = composePressRelease(test.game, pressReleaseDate(day));
    EXPECT_EQ(release.heading, "Tuesday, January 05, 1999\r\nFOR IMMEDIATE RELEASE");
    EXPECT_NE(release.accident.find("the Testville terminal"), std::string::npos);
    EXPECT_NE(release.accident.find("F1 and F0 collided head-on at an altitude of 5000 feet."),
              std::string::npos);
    EXPECT_NE(release.controller.find("pending against Mary."), std::string::npos);
}

} // namespace
} // namespace ventrel
