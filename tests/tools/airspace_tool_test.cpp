// The airspace tool, as an author meets it: every fault is named with its line, its place and its size.

#include <algorithm>
#include <array>
#include <sstream>

#include "airspace_stage.h"
#include "sim/airport_file.h"
#include "tools/apt/airspace_source.h"
#include "tools/apt/airspace_writer.h"
#include "tools/apt/files.h"
#include "tools/apt/scope_measure.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

struct PlantedFault {
    const char* file;
    const char* said;
};
constexpr PlantedFault plantedFaults[] = {
    {"point_outside_scope", ":31: point 'OUT': it lies outside the scope by 3 cells;"},
    {"cut_by_edge",
     ":31: point 'RIM': its circle is cut by the edge of the scope (21 pixels) (at 800 pixels)"},
    {"cone_leaves_scope",
     ":33: point 'EDG': its approach cone leaves the scope by 14 pixels (at 1024 pixels)"},
    {"points_too_near", ":38: point 'CLO': it is only 2 cells from 'SSS'; 3 are needed\n"},
    {"no_exit", ":1: airspace: no point is an exit"},
    {"no_airport", ":1: airspace: no point is an airport"},
    {"labels_collide", ":40: point 'TWO': its label collides with that of 'ONE' (8 x 11 pixels)"},
    {"label_covers_runway", ":33: point 'COV': its label covers 'AAA' (18 x 11 pixels)"},
    {"label_in_cone", ":19: point 'AAA': its label lies in its own approach cone (18 x 5 pixels)"},
    {"too_many_points", ":12: there are 34 points; the order menu offers 32\n"},
    {"exit_and_airport", ":32: point 'BTH': it is both an exit and an airport"},
    {"dark_colours", ":5: the aircraft colour cannot be seen on black: its brightest part is 20 of 255, 72"},
    {"same_colours", ":6: a selected aircraft looks like the others: the colours are 10 apart, 30 are"},
    {"unknown_key", ":15: point 1: unknown key 'cells'"},
    {"long_name", ":2: airspace: 'name' must have 1 to 31 characters; it has 38\n"},
    {"bad_heading", ":17: point 1: 'runway' must be a multiple of 45"},
    {"duplicate_ident", ":29: point 3: another point is called 'NNN'"},
    {"not_in_character_set", ":23: point 2: 'name' has a character"},
    {"outside_grid", ":20: point 1: its place lies outside the grid, 4 cells east\n"},
    {"broken", "broken.toml:1: "},
};

TEST(AirspaceTool, NamesEveryPlantedFault) {
    for (const auto& [name, said] : plantedFaults) {
        const std::string file = std::string(name) + ".toml";
        const std::string printed = checked(planted(file), apt::faulty);
        expectSays(printed, said);
        expectSays(printed, file);
    }
}

/// A change of the sound source, and what is said about it.
struct Change {
    const char* from;
    const char* to;
    const char* said;
};
constexpr Change faultyChanges[] = {
    {"symbol = \"#e0a848\"", "symbol = \"#101010\"", ":9: the symbol colour of 'AAA' cannot be seen"},
    {"runway = \"#f4f4f4\"", "runway = \"#101010\"", ":10: the runway colour of 'AAA' cannot be seen"},
    {"route = \"#4aa3c8\"", "route = \"#101010\"", ":7: the route colour cannot be seen"},
    {"label = \"below\"", "label = \"below\"\nlabel_colour = \"#101010\"", ":27: the label colour of 'NNN'"},
    {"[24, 8]\nexit = true", "[24, 8]", ":21: point 'NNN': it is neither an exit nor an airport"},
    {"cell = [24, 8]", "pixel = [264, 88]", ":24: point 2: a 'pixel' position needs the airspace's 'layout'"},
    {"cell = [24, 8]", "latitude = 1.0\nlongitude = 1.0",
     ":24: point 2: a place on the earth needs a [grid]"},
    {"\"Nnn Field\"", "\"\"", ":23: point 2: 'name' must have 1 to 19 characters; it has 0"},
    {"[24, 24]", "[46, 24]",
     "the approach cone of the opposite direction leaves the scope by 4 pixels (at 800"},
    {"#ffe23c", "#e8f4a0", ":6: a selected aircraft looks like the others to eyes without"},
    {"lower right", "upper right", ":19: point 'AAA': its label lies in its own approach cone"},
    {"[24, 40]", "[24, 10]", ":26: point 'NNN': its label covers 'SSS' (11 x 2 pixels) (at 800 pixels)"},
};

TEST(AirspaceTool, NamesTheLineOfWhatTroublesAPlayer) {
    const TempFolder folder;
    for (const auto& [from, to, said] : faultyChanges) {
        std::string text = readText(planted("sound.toml"));
        text.replace(text.find(from), std::string_view(from).size(), to);
        writeText(folder / "changed.toml", text);
        expectSays(checked(folder / "changed.toml", apt::faulty), said);
    }
}

TEST(AirspaceTool, NamesWhatOnlyAFileCanHold) {
    using namespace airport_layout;
    const TempFolder folder;
    built(planted("sound.toml"), folder / "sound.apt", apt::success);
    const std::string whole = readText(folder / "sound.apt");
    const auto expectProblem = [&](std::size_t offset, char byte, const std::string& said) {
        std::string bytes = whole;
        bytes[offset] = byte;
        writeText(folder / "file.apt", bytes);
        expectSays(checked(folder / "file.apt", apt::faulty), "file.apt: " + said);
    };
    expectProblem(nameOffset, '\0', "the airspace has no name");
    expectProblem(layoutWidthOffset, 7, "the layout width is 775, neither 800 nor 1024; the game never");
    expectProblem(headerSize + identOffset, '\0', "point 1 has no ident");
    expectProblem(headerSize + descriptionOffset, '\0', "point 'AAA': it has no name");
    expectProblem(headerSize + runwayHeadingOffset, 7, "point 'AAA': its runway heading 7 is none of");
    expectProblem(headerSize + reverseChanceOffset, 101, "point 'AAA': its reverse chance is 101 percent");
    writeText(folder / "file.apt", whole);
    EXPECT_EQ(checked(folder / "file.apt", apt::success), "");
}

TEST(AirspaceTool, ASourceForOneLayoutIsCheckedForThatAlone) {
    const TempFolder folder;
    const std::string point = "\n[[point]]\nident = \"E\"\nname = \"E\"\nexit = true\nlabel = \"left\"\n";
    writeText(folder / "large.toml",
              "layout = 1024\n" + readText(planted("sound.toml")) + point + "pixel = [640, 350]\n");
    EXPECT_EQ(checked(folder / "large.toml", apt::success), "");
}

TEST(AirspaceTool, TellsAllFaultsOfASourceAtOnce) {
    const std::string file = planted("many_faults.toml").string();
    std::string expected;
    std::istringstream lines(readText(planted("many_faults.txt")));
    for (std::string line; std::getline(lines, line);) {
        expected += file + ':' + line + '\n';
    }
    EXPECT_EQ(checked(file, apt::faulty), expected);
}

TEST(AirspaceTool, IsSilentOnSoundAirspaces) {
    std::vector<fs::path> files{planted("sound.toml")};
    for (const auto& entry : fs::directory_iterator(SHIPPED_AIRSPACES)) {
        if (entry.path().extension() == ".toml") {
            files.push_back(entry.path());
        }
    }
#ifdef VENTREL_SANITIZED // which makes it five times slower
    files.resize(files.size() / 4);
#endif
    EXPECT_EQ(printedBy(apt::success, [&] { return apt::check(files); }), "");
}

TEST(AirspaceTool, ChecksTheFilesThatPlayersGet) {
    const TempFolder folder;
    built(planted("points_too_near.toml"), folder / "near.apt", apt::success);
    const std::string printed =
        printedBy(apt::faulty, [&] { return apt::check({folder / "near.apt", folder / "none.apt"}); });
    expectSays(printed, "near.apt: point 'CLO'");
    expectSays(printed, "none.apt cannot be read: ");
}

TEST(AirspaceTool, FarOffIsMeasuredFromTheEdge) {
    // The small scope is the ellipse 27 to 535 across; on its middle row a point 10 beyond is 10 outside.
    const auto outside = [](Point p) { return apt::pixelsOutside(smallRadarLayout, std::array{p}); };
    EXPECT_EQ(outside({534, 267}), 0);
    EXPECT_EQ(outside({535, 267}), 1);
    EXPECT_EQ(outside({545, 267}), 10);
    EXPECT_EQ(outside({17, 267}), 10);
    // Each corner of a box counts: of these boxes only the outer one lies beyond the rim.
    for (const Point corner : {Point{100, 88}, {453, 88}, {100, 438}, {453, 438}}) {
        const Rect box = Rect::at(corner, {10, 10});
        EXPECT_GT(apt::pixelsOutside(smallRadarLayout, box), 0) << corner.x << ", " << corner.y;
    }
    EXPECT_EQ(apt::pixelsOutside(smallRadarLayout, Rect{104, 91, 459, 446}), 0);
    EXPECT_EQ(apt::cellsOutside({24, 0}), 0);
    EXPECT_EQ(apt::cellsOutside({24, 52}), 4);
    EXPECT_EQ(apt::cellsOutside({0, 0}), 8); // towards the middle of the corner's diagonal
}

TEST(AirspaceTool, BuildRefusesWhatCannotBePlayedAndLeavesTheOldFile) {
    const TempFolder folder;
    writeText(folder / "old.apt", "old");
    expectSays(built(planted("no_exit.toml"), folder / "old.apt", apt::faulty), "no point is an exit");
    expectSays(built(planted("no_airport.toml"), folder / "old.apt", apt::faulty), "no point is an airport");
    EXPECT_EQ(readText(folder / "old.apt"), "old");
    EXPECT_EQ(ran("build " + planted("no_exit.toml").string() + " --width 800 -o " +
                  (folder / "x.apt").string() + " 2>/dev/null"),
              apt::faulty);
    EXPECT_FALSE(fs::exists(folder / "x.apt"));
}

TEST(AirspaceTool, NothingIsWrittenOverItsInput) {
    const TempFolder folder;
    fs::copy_file(planted("map800.jpg"), folder / "map.jpg");
    writeSource(folder / "map.toml", "\n[picture]\n800 = \"map.jpg\"\n");
    fs::create_symlink("map.toml", folder / "link.toml");
    fs::create_hard_link(folder / "map.jpg", folder / "hard.jpg");
    const std::string source = readText(folder / "map.toml");
    for (const char* const target : {"map.toml", "link.toml", "map.jpg", "hard.jpg"}) {
        expectSays(built(folder / "map.toml", folder / target, apt::faulty), "is the same file as the input");
    }
    built(folder / "map.toml", folder / "map.apt", apt::success);
    fs::create_symlink("map.apt", folder / "link.jpg");
    const std::string file = readText(folder / "map.apt");
    const auto show = [&] { return apt::show(folder / "map.apt", folder / "link.jpg"); };
    expectSays(printedBy(apt::faulty, show), "is the same file as the input");
    const apt::Drawing drawing{.file = folder / "map.toml",
                               .target = folder / "map.jpg",
                               .width = {},
                               .fonts = PROGRAM_FOLDER "/fonts"};
    expectSays(printedBy(apt::faulty, [&] { return apt::draw(drawing); }), "is the same file as the input");
    EXPECT_EQ(readText(folder / "map.toml"), source);
    EXPECT_EQ(readText(folder / "map.apt"), file);
    EXPECT_EQ(readText(folder / "map.jpg"), readText(planted("map800.jpg")));
}

TEST(AirspaceTool, PicturesAreDecodedAsInTheGame) {
    const TempFolder folder;
    const std::string whole = readText(planted("map800.jpg"));
    writeSource(folder / "map.toml", "\n[picture]\n800 = \"map.jpg\"\n");
    const auto expectRefused = [&](const std::string& reason) {
        expectSays(checked(folder / "map.toml", apt::faulty), "map.toml:36: " + reason);
        expectSays(built(folder / "map.toml", folder / "map.apt", apt::faulty), reason);
    };
    writeText(folder / "map.jpg", whole.substr(0, whole.size() / 2));
    expectRefused("the game drops the picture: it is damaged");
    writeText(folder / "map.jpg", "no picture");
    expectRefused("the game drops the picture: it is no JPEG");
    fs::remove(folder / "map.jpg");
    expectRefused("The file " + (folder / "map.jpg").string() + " cannot be read: ");
    writeText(folder / "map.jpg", whole);
    EXPECT_EQ(checked(folder / "map.toml", apt::success), "");

    writeSource(folder / "large.toml", "\n[picture]\n1024 = \"map.jpg\"\n");
    expectSays(checked(folder / "large.toml", apt::faulty),
               "the picture has 539 x 539 pixels; the radar has 686 x 686 (at 1024 pixels)");

    // As many blocks, but a row of pixels less than they hold.
    std::string lower = whole;
    lower[lower.find("\xFF\xC0") + 6] = static_cast<char>(538 % 256);
    writeText(folder / "map.jpg", lower);
    expectRefused("the picture has 539 x 538 pixels; the radar has 539 x 539");

    // In a file, too.
    writeText(folder / "map.jpg", whole);
    built(folder / "map.toml", folder / "map.apt", apt::success);
    EXPECT_EQ(checked(folder / "map.apt", apt::success), "");
    std::string bytes = readText(folder / "map.apt");
    bytes.replace(bytes.size() - 200, 100, 100, '\xFF');
    writeText(folder / "map.apt", bytes);
    expectSays(checked(folder / "map.apt", apt::faulty),
               "map.apt: the game drops the picture: it is damaged");
}

TEST(AirspaceTool, PicturesStayBelowTheirSource) {
    const TempFolder folder;
    fs::create_directories(folder / "source/below");
    fs::copy_file(planted("map800.jpg"), folder / "outside.jpg");
    fs::copy_file(planted("map800.jpg"), folder / "source/below/map.jpg");
    fs::create_symlink("../outside.jpg", folder / "source/out.jpg");
    fs::create_symlink("below/map.jpg", folder / "source/in.jpg");
    const auto status = [&](const std::string& name, int expected) {
        writeSource(folder / "source/map.toml", "\n[picture]\n800 = \"" + name + "\"\n");
        return checked(folder / "source/map.toml", expected);
    };
    EXPECT_EQ(status("below/map.jpg", apt::success), "");
    EXPECT_EQ(status("in.jpg", apt::success), "");
    expectSays(status("out.jpg", apt::faulty), "leads out of the source's folder");
    expectSays(status("../outside.jpg", apt::faulty), ":36: picture: '800' must lie in the source's folder");
    expectSays(status("below/../../outside.jpg", apt::faulty), "must lie in the source's folder");
    expectSays(status((folder / "outside.jpg").string(), apt::faulty), "must lie in the source's folder");
}

TEST(AirspaceTool, DeepSourcesAreRefusedBeforeTheyAreRead) {
    const TempFolder folder;
    constexpr int many = 50'000;
    const auto repeated = [](const std::string& piece, int count) {
        std::string text;
        for (int i = 0; i < count; ++i) {
            text += piece;
        }
        return text;
    };
    const fs::path file = folder / "deep.toml";
    for (const std::string& key : {repeated("a.", many) + "a = 1", '[' + repeated("a.", many) + "a]",
                                   repeated("a . \"b\".", 8) + "c = 1"}) {
        writeText(file, "name = \"deep\"\n" + key);
        expectSays(checked(file, apt::faulty), "deep.toml:2: a key has more than 16 parts");
        EXPECT_EQ(ran("check " + file.string() + " >/dev/null"), apt::faulty);
    }
    writeText(file, "a = \"\"\"\\\n\\\"\"\"\n.\"\"\"\nb = " + repeated("[\n", many));
    expectSays(checked(file, apt::faulty), "deep.toml:20: values lie more than 16 deep");
    writeText(file, "a = " + repeated("{a=", many));
    expectSays(checked(file, apt::faulty), "deep.toml:1: values lie more than 16 deep");
    // Dots in texts, comments and numbers, and brackets beside each other, are no depth.
    writeText(file, "# " + repeated(".[", many) + "\na = [" + repeated("[1.5], ", 40) + "]\nb = '" +
                        repeated("[.", 40) + "'\nc = '''\n" + repeated("[.", 40) + "\n'''");
    expectSays(checked(file, apt::faulty), "deep.toml:2: airspace: unknown key 'a'");
}

TEST(AirspaceTool, LargeFilesAreRefusedByNameAndLimit) {
    const TempFolder folder;
    const auto makeSparse = [&](const char* name, std::uintmax_t size) {
        writeText(folder / name, "");
        fs::resize_file(folder / name, size);
        return folder / name;
    };
    constexpr std::uintmax_t huge = std::uintmax_t{20} << 30;
    expectSays(checked(makeSparse("huge.toml", huge), apt::faulty),
               "huge.toml is too large: at most 1048576");
    expectSays(checked(makeSparse("huge.apt", huge), apt::faulty), "huge.apt is too large: at most 16777216");
    makeSparse("map.jpg", apt::largestPicture + 1);
    writeSource(folder / "map.toml", "\n[picture]\n800 = \"map.jpg\"\n");
    expectSays(checked(folder / "map.toml", apt::faulty), "map.jpg is too large: at most 4194304");
    makeSparse("map.jpg", apt::largestPicture);
    expectSays(checked(folder / "map.toml", apt::faulty), "it is no JPEG");
}

TEST(AirspaceTool, TextsOfAFileCannotReachTheTerminalAsTheyAre) {
    const TempFolder folder;
    writeSource(folder / "x.toml", "\n[[point]]\n\"\\u001b[2J\\nkey\" = 1\n\"\\u009b\" = 2\n");
    const std::string printed = checked(folder / "x.toml", apt::faulty);
    expectSays(printed, "unknown key '?[2J?key'");
    expectSays(printed, "unknown key '?'");
    expectSays(built(folder / "\x1B[2J.toml", folder / "x.apt", apt::faulty), "?[2J.toml cannot be read");
}

TEST(AirspaceTool, PointsStandWhereTheirFlightsAreDrawn) {
    const auto source = apt::parseAirspace(readText(planted("sound.toml"))).airspace;
    EXPECT_EQ(apt::pixelOf(source.points[1], smallRadarLayout), (Point{24 * 11, 8 * 11}));
    EXPECT_EQ(apt::pixelOf(source.points[1], largeRadarLayout), (Point{24 * 14, 8 * 14}));
    // Hartsfield-Jackson on the grid of Atlanta.
    EXPECT_EQ(apt::cellOf({33.73, -84.71, 4.0}, 33.63470, -84.42845), (Cell{28, 25}));
    // Two degrees of longitude on the equator, over the date line both ways.
    EXPECT_EQ(apt::cellOf({0, 179, 6.0}, 0, -179), (Cell{24 + 20, 24}));
    EXPECT_EQ(apt::cellOf({0, -179, 6.0}, 0, 179), (Cell{24 - 20, 24}));
}

TEST(AirspaceTool, CommandLineSaysWhatIsWrongWithIt) {
    const TempFolder folder;
    const std::string said = (folder / "said").string();
    const auto refused = [&](const std::string& words) {
        EXPECT_EQ(ran(words + " >/dev/null 2>" + said), 2) << words;
        return readText(said);
    };
    expectSays(refused(""), "A command is required");
    expectSays(refused("frob"), "frob");
    expectSays(refused("build a.toml --width 800"), "-o is required");
    expectSays(refused("build a.toml -o a.apt --width 640"), "640");
    expectSays(refused("check"), "FILE is required");
    expectSays(refused("show a.apt --pictures b"), "--pictures");
    expectSays(refused("draw -o a.png"), "FILE or --blank");
    expectSays(refused("draw a.apt --blank -o a.png"), "excludes");
    EXPECT_EQ(ran("--help >" + said), 0);
    expectSays(readText(said), "Exit status: 0 all is well");
    EXPECT_EQ(ran("check --help >/dev/full 2>/dev/null"), apt::faulty);
    EXPECT_EQ(ran("check " + planted("broken.toml").string() + " >/dev/full 2>" + said), apt::faulty);
    expectSays(readText(said), "standard output cannot be written");
}

} // namespace
} // namespace ventrel
