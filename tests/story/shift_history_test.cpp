// The list of the player's finished shifts.

#include "story/shift_history.h"

#include <gtest/gtest.h>

#include "base/temp_folder.h"

namespace ventrel {
namespace {

PastShift pastShift(int score) {
    return {"2026-01-31 23:59", "Zürich\tWest", Skill::hard, score, 3000, 20, 25, 1, true,
            4294967295U,        "mary"};
}

TEST(ShiftHistory, KeepsEveryShiftAndOfVeryManyTheLatest) {
    const TempFolder folder;
    const auto file = folder / "shifts.txt";
    EXPECT_TRUE(readShiftHistory(file).value().empty());
    for (int score = 0; score < 3; ++score) {
        ASSERT_TRUE(addToShiftHistory(file, pastShift(score)).has_value());
    }
    const auto shifts = readShiftHistory(file).value();
    PastShift last = pastShift(2);
    last.airspace = "Zürich West"; // a field holds no tab
    ASSERT_EQ(shifts.size(), 3U);
    EXPECT_EQ(shifts.back(), last);
    EXPECT_EQ(comparableShifts(shifts, last).size(), 3U);
    last.skill = Skill::easy;
    EXPECT_TRUE(comparableShifts(shifts, last).empty());

    std::string many = "Ventrel shifts 1\n";
    for (int i = 0; i < 2000; ++i) {
        many += "d\tPlace\t0\t" + std::to_string(i) + "\t1\t1\t1\t0\t0\t1\tmary\n";
    }
    writeText(file, many);
    ASSERT_TRUE(addToShiftHistory(file, pastShift(9)).has_value());
    EXPECT_EQ(readShiftHistory(file).value().size(), 2000U);
    EXPECT_EQ(readShiftHistory(file).value().front().score, 1);
}

TEST(ShiftHistory, IsLeftAsItIsWhenDamaged) {
    const TempFolder folder;
    const auto file = folder / "shifts.txt";
    const std::string head = "Ventrel shifts 1\n";
    const std::string good = "d\tPlace\t3\t1\t1\t1\t1\t0\t0\t1\tmary\n";
    for (const std::string& damaged :
         {std::string("nothing of ours\n"), std::string(), head + good.substr(0, good.size() / 2),
          head + "d\tPlace\t7\t1\t1\t1\t1\t0\t0\t1\tmary\n", head + good + "\n",
          head + "d\tPlace\t3\t1x\t1\t1\t1\t0\t0\t1\tmary\n",
          head + "d\tPlace\t3\t1\t1\t1\t1\t0\t0\t4294967296\tmary\n",
          head + good + std::string(2'000'000, 'x')}) {
        writeText(file, damaged);
        const auto read = readShiftHistory(file);
        ASSERT_FALSE(read.has_value()) << damaged.substr(0, 80);
        EXPECT_NE(read.error().text.find("shifts.txt"), std::string::npos);
        EXPECT_FALSE(addToShiftHistory(file, pastShift(1)).has_value());
        EXPECT_EQ(readText(file), damaged);
    }
}

} // namespace
} // namespace ventrel
