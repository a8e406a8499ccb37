#include <gtest/gtest.h>

#include "../base/temp_folder.h"
#include "small_airspace.h"

namespace ventrel {
namespace {

using namespace airport_layout;

/// Reads a file; what was said about it, or nothing when it was accepted.
std::string refusal(const std::vector<std::byte>& file) {
    const auto airport = readAirportFile(file, "broken.apt");
    return airport ? "" : airport.error().text;
}

void expectRefused(const std::vector<std::byte>& file, std::string_view reason) {
    const std::string text = refusal(file);
    EXPECT_NE(text.find("broken.apt"), std::string::npos) << text;
    EXPECT_NE(text.find(reason), std::string::npos) << text;
}

TEST(AirportFile, EveryFieldArrivesAndStoredCellsAreNotBelieved) {
    SmallAirspace air = SmallAirspace{}.exit("ABCD", {3, 4}).airport("XY", {40, 41}, 315);
    air.name = "A name of just thirty-two chars!";
    air.last().description = "Twenty characters...";
    air.last().isMajor = true;
    air.last().labelColour = {0x01020304};
    air.last().symbolColour = {0x05060708};
    air.last().runwayColour = {0x090A0B0C};
    air.last().labelPlace = 3;
    const Game game = air.game();
    EXPECT_EQ(game.airspace->name, air.name);
    EXPECT_EQ(game.airspace->routeColour, Colour{0x112233});
    EXPECT_EQ(game.airspace->layoutWidth, 800);
    EXPECT_EQ(game.vor(PointIndex{0}).ident, "ABCD");
    EXPECT_EQ(game.vor(PointIndex{0}).cell, (Cell{3, 4}));
    EXPECT_TRUE(game.vor(PointIndex{0}).isExit);
    Vor expected = air.last();
    expected.cell = {40, 41};
    EXPECT_EQ(game.vor(PointIndex{1}), expected);
    ASSERT_EQ(game.airspace->picture.size(), 5U);
    EXPECT_EQ(game.airspace->picture[0], std::byte{'i'});
}

TEST(AirportFile, TruncatedFileIsRefusedByName) {
    const auto whole = SmallAirspace::usual().file();
    EXPECT_EQ(refusal(whole), "");
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const std::vector<std::byte> cut{whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)};
        const std::size_t tableEnd = headerSize + 5 * pointSize;
        expectRefused(cut, size < headerSize ? "too short" : size < tableEnd ? "map points" : "picture");
    }
}

TEST(AirportFile, CountsAndOffsetsBeyondTheFileAreRefused) {
    const auto whole = SmallAirspace::usual().file();
    auto file = whole;
    putWord(file, pointCountOffset, 0xFFFF);
    expectRefused(file, "map points");
    for (const std::uint32_t wild : {0x7FFFFFFFU, 0xFFFFFFFFU, 0xFFFFFFC8U}) {
        for (const auto& [offset, reason] : {std::pair{pointTableOffset, "map points"},
                                             {pictureSizeOffset, "picture"},
                                             {pictureStartOffset, "picture"}}) {
            file = whole;
            putDoubleWord(file, offset, wild);
            expectRefused(file, reason);
        }
    }
}

TEST(AirportFile, UnfinishedAndForeignFilesAreToldApart) {
    for (std::size_t i = 0; i < completionCount; ++i) {
        auto file = SmallAirspace::usual().file();
        putWord(file, completionOffset + 2 * i, i == 3 ? 2 : 0);
        expectRefused(file, "The 'broken.apt' apt file (Testville) is incomplete");
    }
    auto file = SmallAirspace::usual().file();
    putWord(file, magicOffset, magic + 1U);
    expectRefused(file, "is not an airport file");
    putWord(file, completionOffset, 5); // any number but 0 will do
    putWord(file, magicOffset, magic);
    EXPECT_EQ(refusal(file), "");
}

TEST(AirportFile, AnAirspaceWithoutExitOrAirportIsRefused) {
    expectRefused(SmallAirspace{}.airport("A", {24, 24}, 0).file(), "no VOR");
    expectRefused(SmallAirspace{}.exit("E", {24, 5}).file(), "no airport");
    expectRefused(SmallAirspace{}.file(), "no VOR");
}

TEST(AirportFile, AControlCharacterInANameIsRefused) {
    for (const char bad : {'\n', '\x1B', '\x7F', '\x81'}) {
        SmallAirspace air = SmallAirspace::usual();
        air.name = std::string("Test") + bad + "ville";
        expectRefused(air.file(), "('Test?ville') is damaged: a name in it has a control character");
        air = SmallAirspace::usual();
        air.last().ident = bad;
        expectRefused(air.file(), "control character");
        air = SmallAirspace::usual();
        air.last().description = std::string("Field") + bad;
        expectRefused(air.file(), "control character");
    }
}

int reversals(int heading, int chance, bool isAirport) {
    SmallAirspace air = SmallAirspace::usual().airport("REV", {10, 24}, heading);
    air.last().isAirport = isAirport;
    air.last().reverseChance = chance;
    int count = 0;
    for (std::uint32_t seed = 0; seed < 300; ++seed) {
        count += air.game({}, seed * 7919).vors().back().runwayHeading == (heading + 180) % 360 ? 1 : 0;
    }
    return count;
}

TEST(AirportLoading, RunwaysAreReversedByTheirChanceAlone) {
    EXPECT_EQ(reversals(45, 100, true), 300);
    EXPECT_EQ(reversals(315, 100, true), 300);
    EXPECT_EQ(reversals(45, 0, true), 0);
    EXPECT_EQ(reversals(45, 100, false), 0);
    EXPECT_EQ(reversals(30, 100, true), 0); // no heading that can be flown
    // A draw below the chance reverses, one equal to it does not: the shift's first draw is the runway's.
    SmallAirspace air = SmallAirspace::usual();
    air.airport("REV", {10, 24}, 90).last().reverseChance = 30;
    for (std::uint32_t seed = 0; seed < 400; ++seed) {
        RandomGenerator random{seed};
        EXPECT_EQ(air.game({}, seed).vors().back().runwayHeading == 270, RandomPercent(random) < 30);
    }
}

TEST(AirportLoading, CellsFollowTheLayoutAndWhatCannotBeReadIsNamed) {
    const TempFolder folder;
    const std::filesystem::path path = folder / "cut.apt";
    const auto whole = SmallAirspace::usual().file();
    const std::string_view bytes{reinterpret_cast<const char*>(whole.data()), whole.size()};
    writeText(path, bytes.substr(0, 100));
    for (const auto& broken : {path, folder / "missing.apt"}) {
        const auto loaded = loadAirport(broken);
        ASSERT_FALSE(loaded);
        EXPECT_NE(loaded.error().text.find(broken.filename().string()), std::string::npos);
    }
    writeText(path, bytes);
    const Game game{loadAirport(path).value(), {.layout = largeLayout}, RandomGenerator{9}};
    EXPECT_EQ(game.vor(PointIndex{0}).cell, (Cell{274 / 14, 264 / 14}));
}

} // namespace
} // namespace ventrel
