// The airspace tool, as an author meets it: faults are named, and what is shown can be built again.

#include <gtest/gtest.h>

#include <algorithm>

#include "../base/temp_folder.h"
#include "sim/airport_file.h"
#include "sim/grid.h"
#include "tools/apt/airspace_source.h"
#include "tools/apt/airspace_writer.h"
#include "tools/apt/commands.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

fs::path planted(const std::string& name) {
    return fs::path(AIRSPACE_FOLDER) / (name + ".toml");
}

/// What a command prints on standard output, or on standard error.
template <typename Command>
std::string printedBy(Command command, int expectedStatus) {
    ::testing::internal::CaptureStdout();
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(command(), expectedStatus);
    return ::testing::internal::GetCapturedStdout() + ::testing::internal::GetCapturedStderr();
}

struct PlantedFault {
    const char* file;
    const char* said;
};
constexpr PlantedFault plantedFaults[] = {
    {"point_outside_scope", "'OUT': it lies outside the scope"},
    {"cut_by_edge", "'RIM': its circle is cut by the edge"},
    {"cone_leaves_scope", "'EDG': its approach cone leaves the scope"},
    {"points_too_near", "'CLO': it is only 2 cells from 'SSS'"},
    {"no_exit", "no VOR through which flights may leave"},
    {"no_airport", "has no airport"},
    {"labels_collide", "'TWO': its label collides with that of 'ONE'"},
    {"label_covers_runway", "'COV': its label covers 'AAA'"},
    {"label_in_cone", "'AAA': its label lies in its own approach cone"},
    {"too_many_points", "there are 34 points"},
    {"exit_and_airport", "'BTH': it is both an exit and an airport"},
    {"dark_colours", "aircraft colour cannot be seen"},
    {"same_colours", "a selected aircraft looks like the others"},
    {"unknown_key", ":15: point 1: unknown key 'cells'"},
    {"long_name", ":2: airspace: 'name' must have 1 to 31 characters"},
    {"bad_heading", ":17: point 1: 'runway' must be a multiple of 45"},
    {"duplicate_ident", ":29: point 3: another point is called 'NNN'"},
    {"not_in_character_set", ":23: point 2: 'name' has a character"},
    {"broken", "broken.toml:1"},
};

TEST(AirspaceTool, NamesEveryPlantedFault) {
    for (const auto& [file, said] : plantedFaults) {
        const std::string printed = printedBy([&] { return apt::check({planted(file)}); }, apt::faulty);
        EXPECT_NE(printed.find(said), std::string::npos) << printed;
        EXPECT_NE(printed.find(std::string(file) + ".toml"), std::string::npos) << printed;
    }
}

TEST(AirspaceTool, IsSilentOnSoundAirspaces) {
    std::vector<fs::path> files{planted("sound")};
    for (const auto& entry : fs::directory_iterator(SHIPPED_AIRSPACES)) {
        if (entry.path().extension() == ".toml") {
            files.push_back(entry.path());
        }
    }
    EXPECT_EQ(printedBy([&] { return apt::check(files); }, apt::success), "");
}

TEST(AirspaceTool, ChecksTheFilesThatPlayersGet) {
    const TempFolder folder;
    ASSERT_EQ(apt::build(planted("points_too_near"), folder / "near.apt", 800), apt::success);
    const auto check = [&] { return apt::check({folder / "near.apt", folder / "none.apt"}); };
    const std::string printed = printedBy(check, apt::faulty);
    EXPECT_NE(printed.find("near.apt: point 'CLO'"), std::string::npos) << printed;
    EXPECT_NE(printed.find("none.apt: cannot be opened"), std::string::npos) << printed;
}

/// Builds a file from the source, and the same file again from what is shown of it as FOLDER/shown.toml.
void expectShownBuildsAgain(const TempFolder& folder, const fs::path& source, int width) {
    ASSERT_EQ(apt::build(source, folder / "first.apt", width), apt::success);
    const auto show = [&] { return apt::show(folder / "first.apt", {}); };
    writeText(folder / "shown.toml", printedBy(show, apt::success));
    ASSERT_EQ(apt::build(folder / "shown.toml", folder / "again.apt", width), apt::success);
    EXPECT_EQ(readText(folder / "first.apt"), readText(folder / "again.apt"));
}

TEST(AirspaceTool, WhatIsShownBuildsTheSameFileAgain) {
    const TempFolder folder;
    // Places beside the grid and odd letters too.
    const std::string odd =
        "\n[[point]]\nident = \"\\\\\\\"€\"\nname = \"Über\"\nexit = true\nlabel = \"left\"\n";
    const std::string corner = "pixel = [539, 0]\n"; // of a cell, but of none on the grid
    writeText(folder / "odd.toml", "layout = 800\n" + readText(planted("sound")) + odd + corner);
    expectShownBuildsAgain(folder, folder / "odd.toml", 800);
    expectShownBuildsAgain(folder, planted("sound"), 800);
    expectShownBuildsAgain(folder, planted("sound"), 1024);
    const auto otherWidth = [&] { return apt::build(folder / "shown.toml", folder / "x.apt", 800); };
    EXPECT_NE(printedBy(otherWidth, apt::faulty).find("1024"), std::string::npos);
    EXPECT_FALSE(fs::exists(folder / "x.apt"));
}

TEST(AirspaceTool, PictureTravelsWithTheFileAndMustFit) {
    const TempFolder folder;
    // The head of a JPEG: start of image, then a frame of the given height and width.
    const auto jpeg = [](int side) {
        const std::string size{static_cast<char>(side >> 8), static_cast<char>(side)};
        return std::string("\xFF\xD8\xFF\xC0\x00\x0B\x08", 7) + size + size +
               std::string("\x01\x01\x11\x00", 4);
    };
    const std::string source = readText(planted("sound"));
    writeText(folder / "map.toml", source + "\n[picture]\n800 = \"map.jpg\"\n");

    writeText(folder / "map.jpg", jpeg(540));
    const auto build = [&] { return apt::build(folder / "map.toml", folder / "map.apt", 800); };
    EXPECT_NE(printedBy(build, apt::faulty).find("map.jpg: not a JPEG of 539 x 539"), std::string::npos);

    writeText(folder / "map.jpg", jpeg(539));
    ASSERT_EQ(build(), apt::success);
    const auto show = [&] { return apt::show(folder / "map.apt", folder / "out.jpg"); };
    printedBy(show, apt::success);
    EXPECT_EQ(readText(folder / "out.jpg"), jpeg(539));
}

TEST(AirspaceTool, PointsStandWhereTheirFlightsAreDrawn) {
    const std::string text = readText(planted("sound"));
    const auto source = apt::parseAirspace(text, "sound.toml");
    EXPECT_EQ(apt::pixelOf(source.points[1], smallRadarLayout), (Point{24 * 11, 8 * 11}));
    EXPECT_EQ(apt::pixelOf(source.points[1], largeRadarLayout), (Point{24 * 14, 8 * 14}));
    // Hartsfield-Jackson on the grid of Atlanta.
    EXPECT_EQ(apt::cellOf({33.73, -84.71, 4.0}, 33.63470, -84.42845), (Cell{28, 25}));
}

} // namespace
} // namespace ventrel
