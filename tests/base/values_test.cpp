// Numbers, chances and texts: the small values that every room uses.

#include <gtest/gtest.h>

#include <limits>

#include "base/arithmetic.h"
#include "base/format.h"
#include "base/geometry.h"
#include "base/random.h"
#include "base/utc_time.h"
#include "base/windows1252.h"

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

TEST(Format, FillsEveryKindOfPlaceholder) {
    EXPECT_EQ(FormatText("%s at %02d:%02d", {"UA39", 5L, 65L}), "UA39 at 05:65");
    EXPECT_EQ(FormatText("%5d|%-5d|%05d", {-42L, 42L, -42L}), "  -42|42   |-0042");
    EXPECT_EQ(FormatText("%u %x %X", {-1L, 255L, 255L}), "4294967295 ff FF");
    EXPECT_EQ(FormatText("%.3s%c 100%%", {"LAXX", long{'*'}}), "LAX* 100%");
    EXPECT_EQ(FormatText("%d", {0x1'0000'0001L}), "1");
}

TEST(Format, SurvivesPatternsThatAreWrong) {
    EXPECT_EQ(FormatText("%q %", {1L}), "%q %");
    EXPECT_EQ(FormatText("%d and %d", {1L}), "1 and ");
    EXPECT_EQ(FormatText("%l, %l", {1L, 2L}), "1, 2");
    EXPECT_EQ(FormatText("%99999999d", {1L}).size(), 1023U);
    EXPECT_EQ(FormatText(std::string(3000, 'x'), {}).size(), 1023U);
}

TEST(Windows1252, GoesToUtf8AndBack) {
    std::string every;
    for (int byte = 1; byte < 256; ++byte) {
        every += static_cast<char>(byte);
    }
    EXPECT_EQ(fromUtf8(toUtf8(every)), every);
    EXPECT_EQ(toUtf8("90\xB0 \x80"), "90° €");
    EXPECT_EQ(fromUtf8("Łódź \xFF\xC3"), "?\xF3"
                                         "d? ??");
    EXPECT_EQ(fromUtf8("a😀b", '\0'), "ab");
    EXPECT_EQ(fromUtf8("\xE0\x81\x81"), "???"); // an "A" in disguise
}

TEST(Windows1252, NeverCommandsATerminal) {
    EXPECT_EQ(toTerminal("a\x1B[2J\r\nb\x7F\x9D\xB0"), "a?[2J?\nb??°");
}

TEST(UtcTime, IsReadAsItIsWrittenAndNoOtherwise) {
    for (const std::string_view moment : {"1970-01-01T00:00:00Z", "2028-02-29T23:59:59Z"}) {
        EXPECT_EQ(momentText(readMoment(moment).value()), moment);
    }
    for (const std::string_view wrong :
         {"", "2026-02-29T12:00:00Z", "2026-13-01T12:00:00Z", "2026-11-25T24:00:00Z", "2026-11-25T12:60:00Z",
          "2026-11-25T12:00:60Z", "2026-11-25 12:00:00Z", "2026-11-25T12:00:00", "2026-11-25T12:00:00Z "}) {
        EXPECT_EQ(readMoment(wrong), std::nullopt) << wrong;
    }
}

} // namespace
} // namespace ventrel
