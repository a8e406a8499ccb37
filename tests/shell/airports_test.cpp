// The list of airports: the program's and the player's own, and what is told of damaged files.

#include "platform/images/image.h"
#include "records/airport_catalogue.h"
#include "resources/dialogs.h"
#include "shell/game_stage.h"
#include "sim/airport_file.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

const fs::path programsOwn = fs::path(PROGRAM_FOLDER) / "apt";

/// As the list of airports has them.
const std::vector<std::string> shippedNames{"Amsterdam",    "Atlanta", "Chicago",        "Hong Kong",
                                            "Johannesburg", "London",  "Los Angeles",    "Miami",
                                            "New York",     "Paris",   "Rio de Janeiro", "San Francisco",
                                            "Seattle",      "Sydney",  "Tokyo",          "Zurich"};

/// Another airport's file under a name of its own.
std::string airportNamed(std::string_view name) {
    std::string file = readText(programsOwn / "atlanta10.apt");
    file.replace(airport_layout::nameOffset, name.size() + 1, std::string(name) + '\0');
    return file;
}

std::vector<std::string> namesOf(const AirportCatalogue& catalogue) {
    std::vector<std::string> names;
    for (const CatalogueEntry& entry : catalogue.entries) {
        names.push_back(entry.name);
    }
    return names;
}

TEST(Airports, ThePlayersOwnJoinTheProgramsAndStandInForThoseOfTheirFileName) {
    const TempFolder own;
    writeText(own / "yard.APT", airportNamed("yard"));
    writeText(own / "zoo.apt", airportNamed("Zoo"));
    writeText(own / "new_york10.apt", airportNamed("Big Apple"));
    writeText(own / "no_airport.txt", airportNamed("Text"));
    writeText(own / "no_magic.apt", "??" + airportNamed("Magic").substr(2));
    fs::create_directory(own / "folder.apt");
    fs::copy(programsOwn / "miami8.apt", own / "other_size.apt");
    const AirportCatalogue catalogue = BuildAirportCatalogue(programsOwn, own.path(), 1024);
    std::vector<std::string> expected = shippedNames;
    *std::ranges::find(expected, "New York") = "Big Apple";
    expected.insert(expected.end(), {"Zoo", "yard"});
    std::ranges::sort(expected);
    EXPECT_EQ(namesOf(catalogue), expected);
    EXPECT_TRUE(catalogue.troubles.empty());
    for (const int width : {800, 1024}) {
        EXPECT_EQ(namesOf(BuildAirportCatalogue(programsOwn, own / "none", width)), shippedNames) << width;
    }
}

TEST(Airports, MoreThanTheListHoldsAreToldOf) {
    const TempFolder own;
    const std::size_t room = 512 - shippedNames.size();
    const std::string start = airportNamed("Another").substr(0, airport_layout::headerSize);
    for (std::size_t i = 0; i < room + 3; ++i) {
        writeText(own / ("zz" + std::to_string(1000 + i) + ".apt"), start);
    }
    const AirportCatalogue catalogue = BuildAirportCatalogue(programsOwn, own.path(), 1024);
    EXPECT_EQ(catalogue.entries.size(), 512U);
    ASSERT_EQ(catalogue.troubles.size(), 1U);
    const std::string first = "zz" + std::to_string(1000 + room) + ".apt";
    EXPECT_NE(catalogue.troubles[0].find("3 are left out"), std::string::npos) << catalogue.troubles[0];
    EXPECT_NE(catalogue.troubles[0].find(first), std::string::npos) << catalogue.troubles[0];
}

TEST(Airports, TheListFollowsItsFoldersAndOnlyLooksWhenTheyHaveChanged) {
    const TempFolder own;
    const auto fresh = fs::file_time_type::clock::now();
    const auto settled = fresh + std::chrono::hours(1);
    writeText(own / "a.apt", airportNamed("Aaa"));
    writeText(own / "b.apt", "short");
    AirportShelf shelf(programsOwn, own.path(), 1024);
    const auto first = [&shelf](fs::file_time_type now) { return shelf.catalogue(now).entries.front().name; };
    EXPECT_EQ(first(fresh), "Aaa");
    writeText(own / "a.apt", airportNamed("Aab"));
    EXPECT_EQ(first(settled), "Aab") << "the folder was too fresh to be relied on";
    writeText(own / "a.apt", airportNamed("Aac"));
    EXPECT_EQ(first(settled), "Aab") << "nothing came or went: the files are not read again";
    writeText(own / "b.apt", airportNamed("AAA"));
    fs::last_write_time(own / "b.apt", fresh + std::chrono::minutes(1));
    EXPECT_EQ(first(settled), "AAA") << "a refused file was mended";
    fs::remove(own / "b.apt");
    EXPECT_EQ(first(settled), "Aac");
}

TEST(Airports, AGameStartsInThePlayersOwn) {
    GameStage stage;
    fs::create_directory(stage.playersAirports());
    writeText(stage.playersAirports() / "a.apt", airportNamed("Aaa"));
    stage.startNewGame();
    stage.look([&] { EXPECT_EQ(stage.game().airspace->name, "Aaa"); });
    stage.play();
}

TEST(Airports, EachDamagedFileIsToldOnceAndAllInOneBox) {
    GameStage stage;
    const fs::path own = stage.playersAirports();
    fs::create_directory(own);
    writeText(own / "empty.apt", "");
    writeText(own / "short.apt", "short");
    fs::create_symlink("loop.apt", own / "loop.apt");
    const auto open = [&stage](std::size_t boxes, const char* when) {
        stage.todo([](Script& script) { script.key(Key::f, withAlt).type("n").wait(1); });
        stage.look([&stage, boxes, when] { EXPECT_EQ(stage.backend.beeps().size(), boxes) << when; });
        stage.todo([](Script& script) { script.key(Key::escape).wait(1).key(Key::escape).wait(1); });
        stage.look([&stage, when] { EXPECT_FALSE(stage.isDialogOpen()) << when; });
    };
    open(1, "three files, one box");
    open(1, "they are known");
    stage.look([own] { writeText(own / "another.apt", "another"); });
    open(2, "one more");
    stage.play();
    const auto troubles = BuildAirportCatalogue(programsOwn, own, 1024).troubles;
    ASSERT_EQ(troubles.size(), 4U);
    EXPECT_NE(troubles[0].find("another.apt"), std::string::npos);
}

TEST(Airports, APictureLargerThanTheScopeIsNotKept) {
    const std::string picture = readText(fs::path(TEST_DATA_FOLDER) / "larger_than_scope.jpg");
    const auto put = [](std::string& file, std::size_t offset, std::size_t number) {
        for (int byte = 0; byte < 4; ++byte, number >>= 8U) {
            file[offset++] = static_cast<char>(number & 0xFFU);
        }
    };
    std::string file = airportNamed("Aaa");
    put(file, airport_layout::pictureStartOffset, file.size());
    put(file, airport_layout::pictureSizeOffset, picture.size());
    std::string plain = airportNamed("Aab");
    put(plain, airport_layout::pictureSizeOffset, 0);
    GameStage stage;
    fs::create_directory(stage.playersAirports());
    writeText(stage.playersAirports() / "a.apt", file + picture);
    writeText(stage.playersAirports() / "plain.apt", plain);
    stage.startNewGame();
    stage.look([&] {
        const auto& kept = stage.shell().radar.airportImage;
        ASSERT_TRUE(kept.has_value());
        EXPECT_EQ(kept->size(), (Size{686, 686}));
        stage.shell().options.airportSelect = 1;
    });
    stage.todo([](Script& script) { script.key(Key::f, withAlt).type("n").wait(1).key(Key::enter).wait(1); });
    stage.todo([](Script& script) { script.key(Key::enter).wait(1); });
    stage.look([&] {
        EXPECT_EQ(stage.game().airspace->name, "Aab");
        EXPECT_FALSE(stage.shell().radar.airportImage.has_value()) << "the last airport's picture stayed";
    });
    stage.play();
}

} // namespace
} // namespace ventrel
