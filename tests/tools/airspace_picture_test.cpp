// What the airspace tool gives back of an airport file: a source that builds it again, and its map as a
// picture.

#include <algorithm>
#include <array>

#include "airspace_stage.h"
#include "console/radar_layout.h"
#include "platform/images/image.h"
#include "sim/airport_file.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;
using namespace airport_layout;

std::string shown(const fs::path& file, int expectedStatus, const fs::path& picture = {}) {
    return printedBy(expectedStatus, [&] { return apt::show(file, picture); });
}

/// Whether what is shown of FOLDER/first.apt, as FOLDER/shown.toml, builds the same bytes again.
bool buildsAgain(const TempFolder& folder, int width = 800, const fs::path& picture = {}) {
    writeText(folder / "shown.toml", shown(folder / "first.apt", apt::success, picture));
    EXPECT_EQ(built(folder / "shown.toml", folder / "again.apt", apt::success, width), "");
    return readText(folder / "first.apt") == readText(folder / "again.apt");
}

TEST(AirspaceShow, WhatIsShownBuildsTheSameFileAgain) {
    const TempFolder folder;
    // Places beside the grid and odd letters too.
    const std::string odd =
        "\n[[point]]\nident = \"\\\\\\\"€\"\nname = \"Über\"\nexit = true\nlabel = \"left\"\n";
    const std::string corner = "pixel = [539, 0]\nmajor = true\nlabel_colour = \"#123456\"\nsymbol_colour = "
                               "\"#654321\"\nrunway_colour = \"#abcdef\"\n"; // of a cell that is on no grid
    writeText(folder / "odd.toml", "layout = 800\n" + readText(planted("sound.toml")) + odd + corner);
    built(folder / "odd.toml", folder / "first.apt", apt::success);
    EXPECT_TRUE(buildsAgain(folder));
    const std::string said = readText(folder / "shown.toml");
    expectSays(said, "the [grid], the coordinates and the");
    expectSays(said, "major = true");
    EXPECT_EQ(said.find("lose"), std::string::npos) << said;
    EXPECT_EQ(said.find("lost"), std::string::npos) << said;
    for (const int width : {800, 1024}) {
        built(planted("sound.toml"), folder / "first.apt", apt::success, width);
        EXPECT_TRUE(buildsAgain(folder, width));
    }
    expectSays(built(folder / "shown.toml", folder / "x.apt", apt::faulty, 800), "shown.toml:");
    EXPECT_FALSE(fs::exists(folder / "x.apt"));
}

TEST(AirspaceShow, ThePictureTravelsWithTheFile) {
    const TempFolder folder;
    fs::copy_file(planted("map800.jpg"), folder / "map.jpg");
    writeSource(folder / "map.toml", "\n[picture]\n800 = \"map.jpg\"\n");
    built(folder / "map.toml", folder / "first.apt", apt::success);
    EXPECT_TRUE(buildsAgain(folder, 800, folder / "out.jpg"));
    EXPECT_EQ(readText(folder / "out.jpg"), readText(folder / "map.jpg"));
    expectSays(shown(folder / "first.apt", apt::success), "# The picture (");
    expectSays(shown(folder / "first.apt", apt::faulty, folder / "a\nb.jpg"), "that a source cannot hold");
    expectSays(shown(folder / "first.apt", apt::faulty, folder / "\u4e00.jpg"), "that a source cannot hold");
    // A picture that build refuses is written, and not named.
    std::string bytes = readText(folder / "first.apt");
    bytes[bytes.size() - readText(folder / "map.jpg").size()] = 'x';
    writeText(folder / "first.apt", bytes);
    EXPECT_FALSE(buildsAgain(folder, 800, folder / "out.jpg"));
    expectSays(readText(folder / "shown.toml"), "left out, as build refuses it: the game drops the picture");
    EXPECT_EQ(readText(folder / "out.jpg").front(), 'x');
}

TEST(AirspaceShow, SaysWhatASourceCannotHold) {
    const TempFolder folder;
    built(planted("sound.toml"), folder / "first.apt", apt::success);
    const std::string whole = readText(folder / "first.apt");
    const std::size_t secondPoint = headerSize + pointSize; // NNN, no airport
    const auto expectLoss = [&](std::size_t offset, char byte, const std::string& said) {
        std::string bytes = whole;
        bytes[offset] = byte;
        writeText(folder / "first.apt", bytes);
        EXPECT_FALSE(buildsAgain(folder));
        expectSays(readText(folder / "shown.toml"), said);
        EXPECT_EQ(checked(folder / "again.apt", apt::success), "");
    };
    expectLoss(secondPoint + labelPlaceOffset, 7, "# Point 'NNN': label place 7 becomes 3");
    expectLoss(secondPoint + runwayHeadingOffset, 7,
               "# Point 'NNN': the runway of a point that is no airport");
    expectLoss(secondPoint + symbolColourOffset + 3, 7, "# Point 'NNN': its colours lose their fourth byte");
    expectLoss(routeColourOffset + 3, 7, "# The colours of aircraft or routes lose their fourth byte");
    expectLoss(flightColourOffset + 3, 7, "# The colours of aircraft or routes lose their fourth byte");
    expectLoss(selectedFlightColourOffset + 3, 7, "# The colours of aircraft or routes lose");
    expectLoss(completionOffset, 7, "# Bytes of the file that are not read");
}

TEST(AirspaceShow, NeverPrintsWhatBuildRefuses) {
    const TempFolder folder;
    built(planted("sound.toml"), folder / "first.apt", apt::success);
    const std::string whole = readText(folder / "first.apt");
    const auto expectRefused = [&](std::size_t offset, const std::string& bytes, const std::string& reason) {
        std::string file = whole;
        file.replace(offset, bytes.size(), bytes);
        writeText(folder / "bad.apt", file);
        const std::string printed = shown(folder / "bad.apt", apt::faulty);
        expectSays(printed, "bad.apt: no source makes this file:");
        expectSays(printed, reason);
        EXPECT_EQ(printed.find("[[point]]"), std::string::npos) << printed;
    };
    expectRefused(nameOffset, std::string(nameSize, 'x'), "'name' must have 1 to 31 characters; it has 32");
    expectRefused(headerSize + identOffset, "LONG", "point 1: 'ident' must have 1 to 3");
    expectRefused(headerSize + pointSize + identOffset, "AAA", "point 2: another point is called 'AAA'");
    expectRefused(headerSize + runwayHeadingOffset, "\x07", "'runway' must be a multiple of 45");
    expectRefused(headerSize + reverseChanceOffset, "\x65", "'reverse_chance' must be a whole number");
    expectRefused(layoutWidthOffset, "\x07", "'layout' must be");
}

TEST(AirspaceShow, AFullDeviceIsAnError) {
    const TempFolder folder;
    built(planted("sound.toml"), folder / "first.apt", apt::success);
    const std::string command = "show " + (folder / "first.apt").string();
    EXPECT_EQ(ran(command + " >/dev/full 2>/dev/null"), apt::faulty);
    EXPECT_EQ(ran(command + " >/dev/null"), apt::success);
}

Image drawn(const TempFolder& folder, apt::Drawing drawing) {
    drawing.target = folder / "map.png";
    drawing.fonts = PROGRAM_FOLDER "/fonts";
    EXPECT_EQ(printedBy(apt::success, [&] { return apt::draw(drawing); }), "");
    Image image;
    EXPECT_EQ(ImageLoadFile(image, drawing.target, ImageFormat::png), ImageError::none);
    return image;
}

std::uint32_t pixelAt(const Image& image, Point p) {
    const std::size_t at = 3 * (static_cast<std::size_t>(p.y) * image.width + static_cast<std::size_t>(p.x));
    return static_cast<std::uint32_t>(image.pixels[at] << 16 | image.pixels[at + 1] << 8 |
                                      image.pixels[at + 2]);
}

TEST(AirspaceDraw, TheMapIsThatOfTheGame) {
    const TempFolder folder;
    const Image small = drawn(folder, {.file = planted("sound.toml"), .target = {}, .width = {}});
    EXPECT_EQ(small.width, 539U);
    EXPECT_EQ(pixelAt(small, {24 * 11, 8 * 11}), 0xE0A848U); // the dot of NNN
    EXPECT_EQ(pixelAt(small, {20 * 11, 10 * 11}), 0U);
    const Image large = drawn(folder, {.file = planted("sound.toml"), .target = {}, .width = 1024});
    EXPECT_EQ(large.height, 686U);
    EXPECT_EQ(pixelAt(large, {24 * 14, 8 * 14}), 0xE0A848U);
    const Image dotted = drawn(
        folder, {.file = planted("sound.toml"), .target = {}, .width = {}, .dots = apt::GridDots::shown});
    EXPECT_EQ(pixelAt(dotted, {20 * 11, 10 * 11}), 0xD0D000U);

    fs::copy_file(planted("map800.jpg"), folder / "map.jpg");
    writeSource(folder / "map.toml", "\n[picture]\n800 = \"map.jpg\"\n");
    built(folder / "map.toml", folder / "map.apt", apt::success);
    for (const char* const file : {"map.apt", "map.toml"}) {
        const Image pictured = drawn(folder, {.file = folder / file, .target = {}, .width = {}});
        EXPECT_NE(pixelAt(pictured, {20 * 11, 10 * 11}), 0U) << file;
        EXPECT_EQ(pixelAt(pictured, {2, 2}), 0U) << file; // beside the scope
    }
}

TEST(AirspaceDraw, TheBlankGridHasEveryCell) {
    const TempFolder folder;
    for (const auto& [width, side, cell] : {std::array{800, 539, 11}, {1024, 686, 14}}) {
        const Image grid = drawn(folder, {.file = {}, .target = {}, .width = width});
        EXPECT_EQ(grid.width, static_cast<std::uint32_t>(side));
        const auto ground = pixelAt(grid, {22 * cell + 5, 22 * cell + 5});
        EXPECT_NE(pixelAt(grid, {22 * cell, 22 * cell + 5}), ground);
        EXPECT_NE(pixelAt(grid, {22 * cell + 5, 22 * cell}), ground);
        EXPECT_NE(pixelAt(grid, {20 * cell, 22 * cell + 5}), pixelAt(grid, {22 * cell, 22 * cell + 5}));
        EXPECT_NE(pixelAt(grid, {3 * cell + 5, 3 * cell + 5}), ground); // flights are lost there
        const Rect rim = radarLayoutFor(width).scopeEllipse;
        EXPECT_EQ(pixelAt(grid, {rim.left, (rim.top + rim.bottom) / 2}), 0xE0A848U);
        // White of the numbers at column 30 of the middle row.
        int white = 0;
        for (int x = 0; x < cell; ++x) {
            for (int y = 0; y < cell; ++y) {
                white += pixelAt(grid, {30 * cell + x, 24 * cell + y}) == 0xF0F0F0U ? 1 : 0;
            }
        }
        EXPECT_GT(white, 8);
    }
}

TEST(AirspaceDraw, SaysWhyThereIsNoPicture) {
    const TempFolder folder;
    apt::Drawing drawing{.file = planted("no_exit.toml"),
                         .target = folder / "map.png",
                         .width = {},
                         .fonts = PROGRAM_FOLDER "/fonts"};
    const auto said = [&] { return printedBy(apt::faulty, [&] { return apt::draw(drawing); }); };
    expectSays(said(), "no_exit.toml:1: airspace: no point is an exit");
    built(planted("sound.toml"), folder / "sound.apt", apt::success);
    drawing.file = folder / "sound.apt";
    drawing.width = 1024;
    expectSays(said(), "sound.apt: is for the layout of 800 pixels");
    drawing.width = 800;
    drawing.target = folder / "missing/map.png";
    expectSays(said(), "missing/map.png cannot be written");
    drawing.fonts = folder / "fonts";
    expectSays(said(), "fonts: no face to write with");
    EXPECT_FALSE(fs::exists(folder / "map.png"));
}

} // namespace
} // namespace ventrel
