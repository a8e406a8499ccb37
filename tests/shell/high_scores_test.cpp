// The table of high scores: who gets in, where, and what becomes of the file.

#include "records/high_scores.h"

#include <fstream>

#include <gtest/gtest.h>

#include "base/temp_folder.h"
#include "base/whole_file.h"

namespace ventrel {
namespace {

class HighScoresTest : public ::testing::Test {
protected:
    TempFolder folder;
    std::filesystem::path file = folder.path() / "hiscore.dat";

    void SetUp() override { ASSERT_TRUE(makeHighScoreFile(file)); }

    std::optional<int> insert(int score, std::string name = "Mary", std::string airport = "Harbour") {
        auto place = InsertHighScore(file, {std::move(name), score, std::move(airport)});
        EXPECT_TRUE(place) << place.error().text;
        EXPECT_TRUE(place->saved);
        return place->row;
    }
    std::vector<int> scores() {
        std::vector<int> list;
        const HighScores table = readHighScores(file).value();
        for (const HighScoreEntry& entry : table) {
            list.push_back(entry.score);
        }
        return list;
    }
    std::string bytes() { return readText(file); }
};

TEST_F(HighScoresTest, ScoresStandInOrderAndTellTheirRow) {
    EXPECT_EQ(insert(500), 0);
    EXPECT_EQ(insert(700), 0);
    EXPECT_EQ(insert(600), 1);
    EXPECT_EQ(insert(0), std::nullopt);
    EXPECT_EQ(scores(), (std::vector{700, 600, 500, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(readHighScores(file).value()[1], (HighScoreEntry{"Mary", 600, "Harbour"}));
}

TEST_F(HighScoresTest, OnlyMoreThanTheLowestOfTenGetsIn) {
    for (int score = 100; score <= 1000; score += 100) {
        insert(score);
    }
    EXPECT_EQ(insert(100, "Other"), std::nullopt);
    EXPECT_EQ(insert(101, "Other"), 9);
    EXPECT_EQ(scores().back(), 101);
    EXPECT_EQ(insert(2000), 0);
    EXPECT_EQ(scores().back(), 200);
}

TEST_F(HighScoresTest, ATiedNewcomerFindsItsOwnRowAndAnEqualOneTheEarlier) {
    insert(500, "Ann");
    EXPECT_EQ(insert(500, "Bob"), 1);
    EXPECT_EQ(insert(500, "Ann"), 0);
    EXPECT_EQ(insert(500, "Ann", "Other Bay"), 3);
}

TEST_F(HighScoresTest, TheFileKeepsItsFormAndEveryByteThatIsNotItsOwn) {
    insert(0x1234, std::string(40, 'n'), std::string(90, 'a'));
    std::string table = bytes();
    ASSERT_EQ(table.size(), 1040U);
    EXPECT_EQ(table.substr(0, 32), std::string(31, 'n') + '\0');
    EXPECT_EQ(table.substr(32, 2), "\x34\x12");
    EXPECT_EQ(table.substr(34, 70), std::string(69, 'a') + '\0');
    EXPECT_EQ(table.substr(104), std::string(936, '\0'));
    EXPECT_EQ(insert(0x10000), std::nullopt) << "the low 16 bits count";
    table[20] = '\0';
    table[21] = 'x'; // behind the end of the name
    std::ofstream(file, std::ios::binary) << table;
    EXPECT_EQ(insert(0x2000), 0);
    EXPECT_EQ(bytes().substr(104, 104), table.substr(0, 104));
    ASSERT_TRUE(deleteHighScores(file));
    EXPECT_EQ(bytes(), std::string(1040, '\0'));
}

TEST_F(HighScoresTest, AFileOfAnotherLengthIsNamedAndLeftAlone) {
    for (const std::size_t size : {0U, 1039U, 1041U}) {
        std::ofstream(file, std::ios::binary) << std::string(size, 'x');
        const auto place = InsertHighScore(file, {"Mary", 500, "Harbour"});
        ASSERT_FALSE(place);
        EXPECT_NE(place.error().text.find("hiscore.dat"), std::string::npos) << place.error().text;
        EXPECT_FALSE(readHighScores(file));
        EXPECT_FALSE(deleteHighScores(file));
        EXPECT_TRUE(makeHighScoreFile(file));
        EXPECT_EQ(bytes(), std::string(size, 'x'));
    }
    std::filesystem::remove(file);
    EXPECT_FALSE(InsertHighScore(file, {"Mary", 500, "Harbour"}));
}

TEST_F(HighScoresTest, DamagedTextsEndWithTheirField) {
    std::ofstream(file, std::ios::binary) << std::string(1040, '\xFF');
    const HighScores table = readHighScores(file).value();
    EXPECT_EQ(table[0].name.size(), 32U);
    EXPECT_EQ(table[9].airport.size(), 70U);
    EXPECT_EQ(table[5].score, 0xFFFF);
}

} // namespace
} // namespace ventrel
