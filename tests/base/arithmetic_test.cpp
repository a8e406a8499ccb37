#include "base/arithmetic.h"

#include <gtest/gtest.h>

#include <limits>

#include "base/geometry.h"
#include "base/random.h"

namespace ventrel {
namespace {

TEST(Arithmetic, DividesTowardZeroAndToleratesZero) {
    EXPECT_EQ(SafeDiv(7, 0), 0);
    EXPECT_EQ(SafeMod(7, 0), 0);
    EXPECT_EQ(SafeDiv(-7, 2), -3);
    EXPECT_EQ(SafeMod(-7, 2), -1);
    constexpr auto lowest = std::numeric_limits<std::int32_t>::min();
    EXPECT_EQ(SafeDiv(lowest, -1), lowest);
    EXPECT_EQ(SafeMod(lowest, -1), 0);
}

TEST(Arithmetic, MapsPointsBetweenRectanglesAndTakesTheMiddleOfAnEmptyOne) {
    EXPECT_EQ(MapPointBetweenRects({4, 4, 28, 28}, {0, 0, 49, 49}, {48, 0}), (Point{27, 4}));
    EXPECT_EQ(MapPointBetweenRects({0, 0, 10, 20}, {5, 5, 5, 5}, {99, 99}), (Point{5, 10}));
    EXPECT_EQ(MapPointBetweenRects({0, 0, 10, 10}, {0, 0, 3, 3}, {-1, 4}), (Point{-3, 13}));
}

TEST(Chance, StepsTheKnownSequenceAndStaysInRange) {
    RandomGenerator one{1};
    for (const int known : {41, 18467, 6334, 26500, 19169, 15724}) {
        EXPECT_EQ(one.next(), known);
    }
    RandomGenerator drawn{1};
    EXPECT_EQ(Random(drawn, 100), 41);
    EXPECT_EQ(Random(drawn, 1, 8), 1 + 18467 % 8);
    EXPECT_EQ(Random(drawn, 5, 5), 5);
    EXPECT_EQ(Random(drawn, 15, 14), 15);
}

} // namespace
} // namespace ventrel
