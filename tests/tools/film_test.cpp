// The film that the build has drawn: that the game can play it, that it runs smoothly, and to its sound.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "base/whole_file.h"
#include "platform/canvas/canvas.h"
#include "platform/images/image.h"
#include "platform/images/movie_file.h"

using namespace ventrel;

namespace {

constexpr std::size_t largestFilm = std::size_t{8} << 20;

std::string fileOf(const char* name) {
    return std::string(PROGRAM_FOLDER) + "/grf/" + name;
}

MovieFile film() {
    auto bytes = readWholeFile(fileOf("main.avi"), largestFilm);
    EXPECT_TRUE(bytes);
    auto movie = readMovie(std::move(bytes).value_or(std::vector<std::byte>{}));
    EXPECT_TRUE(movie);
    return std::move(movie).value_or(MovieFile{});
}

int channelDifference(Colour a, Colour b) {
    return std::abs(a.red() - b.red()) + std::abs(a.green() - b.green()) + std::abs(a.blue() - b.blue());
}

/// How far two pictures are apart, of a channel's 255.
double difference(const Bitmap& a, const Bitmap& b) {
    long sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            sum += channelDifference(toColour(a.at(x, y)), toColour(b.at(x, y)));
        }
    }
    return double(sum) / (3.0 * a.width() * a.height());
}

double brightness(const Bitmap& picture) {
    return difference(picture, Bitmap(picture.size()));
}

std::vector<Bitmap> pictures(const MovieFile& movie) {
    std::vector<Bitmap> all;
    for (std::size_t i = 0; i < movie.frames.size(); ++i) {
        auto picture = decodeFrame(movie, i);
        EXPECT_TRUE(picture) << i;
        all.push_back(std::move(picture).value_or(Bitmap(movie.size)));
    }
    return all;
}

std::uint32_t numberAt(const MovieFile& movie, std::size_t offset) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;) {
        number = number << 8 | std::to_integer<std::uint32_t>(movie.bytes[offset + i]);
    }
    return number;
}

} // namespace

TEST(Film, FillsItsPlaceOnTheAwardAndLastsAsLongAsItsSound) {
    const MovieFile movie = film();
    EXPECT_EQ(movie.size, (Size{320, 240}));
    EXPECT_LE(movie.frameTime.count(), 66667);
    const double seconds = double(movie.length().count()) / 1e6;
    EXPECT_GE(seconds, 8);
    EXPECT_LE(seconds, 12);
    EXPECT_NEAR(seconds, double(std::filesystem::file_size(fileOf("main.snd"))) / 8001, 0.6);
}

TEST(Film, MovesSmoothlyButForItsTwoCutsAndGoesDark) {
    const std::vector<Bitmap> all = pictures(film());
    ASSERT_GT(all.size(), 100U);
    std::vector<double> steps;
    for (std::size_t i = 1; i < all.size(); ++i) {
        steps.push_back(difference(all[i - 1], all[i]));
        EXPECT_GT(steps.back(), 0.05) << i << " stands still";
    }
    std::ranges::sort(steps, std::ranges::greater{});
    EXPECT_GT(steps[1], 15) << "no two cuts";
    EXPECT_LT(steps[2], 13) << "a jump beside the cuts";
    EXPECT_LT(brightness(all.back()), 4);
    EXPECT_GT(brightness(all[all.size() / 2]), 20);
}

TEST(Film, TheAwardShowsAStillOfItWhereItIsPlayed) {
    constexpr std::size_t still = 77;
    constexpr Rect place{280, 0, 600, 240};
    Image image;
    Bitmap award;
    ASSERT_EQ(ImageLoadFile(image, fileOf("movie_frame.grf"), ImageFormat::png), ImageError::none);
    ASSERT_EQ(ImageToBitmap(image, award), ImageError::none);
    const Bitmap picture = decodeFrame(film(), still).value();
    const auto apart = [&](Point offset) {
        Bitmap part(place.size());
        Canvas(part).draw(part.bounds(), award, place.movedBy(offset));
        return difference(part, picture);
    };
    EXPECT_LT(apart({}), 3);
    EXPECT_GT(apart({-2, 0}), 1.4 * apart({}));
    // The plate ends in a dark edge.
    for (int y = 0; y < award.height(); ++y) {
        EXPECT_LT(channelDifference(toColour(award.at(place.left - 2, y)), Colour()), 60) << y;
    }
}

TEST(Film, ItsIndexLeadsToEveryPicture) {
    constexpr std::size_t entrySize = 16;
    constexpr std::size_t headerSize = 8;
    const MovieFile movie = film();
    const std::size_t index = movie.bytes.size() - entrySize * movie.frames.size();
    ASSERT_EQ(numberAt(movie, index - 4), entrySize * movie.frames.size());
    const std::size_t list = movie.frames.front().offset - headerSize - 4; // the word "movi"
    for (std::size_t i = 0; i < movie.frames.size(); ++i) {
        EXPECT_EQ(list + numberAt(movie, index + i * entrySize + 8) + headerSize, movie.frames[i].offset)
            << i;
        EXPECT_EQ(numberAt(movie, index + i * entrySize + 12), movie.frames[i].size) << i;
    }
    EXPECT_EQ(numberAt(movie, 4) + headerSize, movie.bytes.size());
}
