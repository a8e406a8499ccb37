#include "base/format.h"

#include <gtest/gtest.h>

#include "base/windows1252.h"

namespace ventrel {
namespace {

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

} // namespace
} // namespace ventrel
