// The airspaces of the program folder, as a player meets them.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "platform/images/image.h"
#include "sim/game.h"

namespace ventrel {
namespace {

namespace fs = std::filesystem;

const fs::path airportFolder = fs::path(PROGRAM_FOLDER) / "apt";
constexpr std::size_t shippedCount = 16;

/// The names of the sources, without their end.
std::vector<std::string> shippedAirspaces() {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(SHIPPED_AIRSPACES)) {
        if (entry.path().extension() == ".toml") {
            names.push_back(entry.path().stem());
        }
    }
    std::ranges::sort(names);
    return names;
}

Game shiftIn(const std::string& file, const ScopeLayout& layout, std::uint32_t seed) {
    const auto airspace = loadAirport(airportFolder / file);
    EXPECT_TRUE(airspace.has_value()) << file;
    return airspace ? Game{*airspace, {.skill = Skill::hard, .layout = layout}, RandomGenerator{seed}}
                    : Game{};
}

/// All that a player's orders are about: where things are and who comes when, from where, to where.
void expectSameProblem(const Game& small, const Game& large) {
    ASSERT_EQ(small.points->size(), large.points->size());
    for (std::size_t i = 0; i < small.points->size(); ++i) {
        Vor expected = (*small.points)[i];
        expected.pixel = (*large.points)[i].pixel;
        EXPECT_EQ((*large.points)[i], expected) << expected.ident;
    }
    ASSERT_EQ(small.flights.size(), large.flights.size());
    for (std::size_t i = 0; i < small.flights.size(); ++i) {
        const Flight& a = small.flights[i];
        const Flight& b = large.flights[i];
        EXPECT_EQ(a.callsign, b.callsign) << i;
        EXPECT_EQ(a.scheduledAt, b.scheduledAt) << i;
        EXPECT_EQ(a.origin, b.origin) << i;
        EXPECT_EQ(a.destination, b.destination) << i;
        EXPECT_EQ(a.current(), b.current()) << i;
    }
    EXPECT_EQ(small.possibleScore, large.possibleScore);
}

TEST(ShippedAirspaces, BothLayoutsOfEachAreTheSameTrafficProblem) {
    EXPECT_EQ(shippedAirspaces().size(), shippedCount);
    for (const std::string& name : shippedAirspaces()) {
        for (const std::uint32_t seed : {1U, 2U, 3U}) {
            SCOPED_TRACE(name + ", seed " + std::to_string(seed));
            const Game small = shiftIn(name + "8.apt", smallLayout, seed);
            const Game large = shiftIn(name + "10.apt", largeLayout, seed);
            EXPECT_EQ(small.airspace->name, large.airspace->name);
            expectSameProblem(small, large);
        }
    }
}

TEST(ShippedAirspaces, EachHasAPictureOfItsOwnForEachLayout) {
    constexpr std::size_t smallest = 15'000; // bytes; less would be an empty scope
    constexpr std::size_t largest = 150'000;
    std::set<std::string> pictures;
    for (const std::string& name : shippedAirspaces()) {
        for (const auto& [file, side] : {std::pair(name + "8.apt", 539U), {name + "10.apt", 686U}}) {
            const auto airspace = loadAirport(airportFolder / file);
            ASSERT_TRUE(airspace.has_value()) << file;
            const auto& picture = (*airspace)->picture;
            Image image;
            EXPECT_EQ(ImageLoadMemory(image, picture, ImageFormat::jpeg), ImageError::none) << file;
            EXPECT_EQ(image.width, side) << file;
            EXPECT_EQ(image.height, side) << file;
            EXPECT_GT(picture.size(), smallest) << file;
            EXPECT_LT(picture.size(), largest) << file;
            pictures.emplace(reinterpret_cast<const char*>(picture.data()), picture.size());
        }
    }
    EXPECT_EQ(pictures.size(), 2 * shippedCount);
}

TEST(ShippedAirspaces, TheOutlinesAreSmallTextsWithTheirNotice) {
    const fs::path folder = fs::path(SHIPPED_AIRSPACES) / "outlines";
    for (const std::string& name : shippedAirspaces()) {
        const fs::path file = folder / (name + ".outline");
        ASSERT_TRUE(fs::exists(file)) << file;
        EXPECT_GT(fs::file_size(file), 5'000U) << file;
        EXPECT_LT(fs::file_size(file), 41'000U) << file;
    }
    for (const char* const notice : {"NOTICE", "COPYING", "COPYING.LESSER"}) {
        EXPECT_TRUE(fs::exists(folder / notice)) << notice;
    }
}

TEST(ShippedAirspaces, ADepartureNeverHasOnlyItsOwnAirportToGoTo) {
    for (const std::string& name : shippedAirspaces()) {
        const Game game = shiftIn(name + "8.apt", smallLayout, 1);
        EXPECT_GE(std::ranges::count_if(*game.points, &Vor::isAirport), 2) << name;
        EXPECT_GE(std::ranges::count_if(*game.points, &Vor::isMajor), 1) << name;
    }
}

} // namespace
} // namespace ventrel
