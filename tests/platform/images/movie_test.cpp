// Movie files: what is read of good ones, and that no damaged one is taken for good or read beyond its end.

#include "platform/images/movie_file.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include <gtest/gtest.h>

#include "images/movie_parts.h"
#include "platform/images/image.h"

namespace ventrel {
namespace {

std::vector<std::byte> bytesOf(const std::string& text) {
    std::vector<std::byte> bytes(text.size());
    std::ranges::transform(text, bytes.begin(), [](char c) { return static_cast<std::byte>(c); });
    return bytes;
}

std::string jpeg() {
    std::ifstream file(TEST_DATA_FOLDER "/colour.jpg", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Size sizeOfJpeg() {
    Image image;
    ImageLoadFile(image, TEST_DATA_FOLDER "/colour.jpg", ImageFormat::jpeg);
    return {static_cast<int>(image.width), static_cast<int>(image.height)};
}

std::string goodMovie(const std::string& between = {}) {
    const Size size = sizeOfJpeg();
    return movieFile({jpeg(), "", jpeg() + "x", "no picture"}, static_cast<std::uint32_t>(size.width),
                     static_cast<std::uint32_t>(size.height), 66667, between);
}

TEST(MovieFile, FramesSizeAndTimeAreRead) {
    for (const std::string& between : {std::string(), chunk("01wb", "sound"), chunk("00xx", "odd")}) {
        const auto movie = readMovie(bytesOf(goodMovie(between)));
        ASSERT_TRUE(movie);
        EXPECT_EQ(movie->size, sizeOfJpeg());
        EXPECT_EQ(movie->frameTime.count(), 66667);
        ASSERT_EQ(movie->frames.size(), 4U);
        EXPECT_TRUE(decodeFrame(*movie, 0));
        EXPECT_FALSE(decodeFrame(*movie, 1)) << "an empty frame repeats the one before";
        EXPECT_FALSE(decodeFrame(*movie, 3));
        EXPECT_EQ(movie->length().count(), 4 * 66667);
    }
}

TEST(MovieFile, FramesMayStandInListsOfTheirOwn) {
    const Size size = sizeOfJpeg();
    std::string movie =
        movieFile({}, static_cast<std::uint32_t>(size.width), static_cast<std::uint32_t>(size.height));
    EXPECT_FALSE(readMovie(bytesOf(movie))) << "no frame";
    movie += list("movi", list("rec ", chunk("00dc", jpeg()) + chunk("00dc", jpeg())));
    EXPECT_EQ(readMovie(bytesOf(movie)).value().frames.size(), 2U);
}

TEST(MovieFile, WhatIsNoMovieIsRefused) {
    const auto width = static_cast<std::uint32_t>(sizeOfJpeg().width);
    EXPECT_FALSE(readMovie({}));
    EXPECT_FALSE(readMovie(bytesOf("RIFF")));
    EXPECT_FALSE(readMovie(bytesOf(chunk("RIFF", "WAVE"))));
    EXPECT_FALSE(readMovie(bytesOf(movieFile({jpeg()}, 0, 10))));
    EXPECT_FALSE(readMovie(bytesOf(movieFile({jpeg()}, width, 0xFFFFFFFF))));
    EXPECT_FALSE(readMovie(bytesOf(movieFile({jpeg()}, width, 10, 0)))) << "frames that take no time";
    const auto other = readMovie(bytesOf(movieFile({jpeg()}, width, 5000 / 2)));
    ASSERT_TRUE(other);
    EXPECT_FALSE(decodeFrame(*other, 0)) << "a picture of another size than the movie's";
}

TEST(MovieFile, CutOrDamagedItStaysWithinItself) {
    const std::string whole = goodMovie();
    for (std::size_t length = 0; length < whole.size(); length += 7) {
        if (const auto movie = readMovie(bytesOf(whole.substr(0, length)))) {
            for (const MovieFile::Frame& frame : movie->frames) {
                EXPECT_LE(frame.offset + frame.size, length);
            }
        }
    }
    for (std::size_t at = 0; at < 300; ++at) {
        std::string damaged = whole;
        damaged[at] = '\xFF';
        if (const auto movie = readMovie(bytesOf(damaged))) {
            for (std::size_t frame = 0; frame < movie->frames.size(); ++frame) {
                static_cast<void>(decodeFrame(*movie, frame));
            }
        }
    }
    std::string nested = chunk("00dc", jpeg());
    for (int depth = 0; depth < 10000; ++depth) {
        nested = list("movi", nested.substr(0, 2000));
    }
    EXPECT_FALSE(readMovie(bytesOf(chunk("RIFF", "AVI " + nested))));
}

} // namespace
} // namespace ventrel
