#include <gtest/gtest.h>

#include "platform/images/image.h"
#include "platform/images/png_writer.h"
#include "png_parts.h"

namespace ventrel {
namespace {

constexpr Size size{5, 3};

unsigned red(std::uint32_t x, std::uint32_t) {
    return 50 * x;
}
unsigned green(std::uint32_t, std::uint32_t y) {
    return 200 - 60 * y;
}
unsigned blue(std::uint32_t x, std::uint32_t y) {
    return 17 * (x + 5 * y);
}

Bitmap picture() {
    Bitmap bitmap(size);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const auto u = static_cast<std::uint32_t>(x);
            const auto v = static_cast<std::uint32_t>(y);
            bitmap.at(x, y) = toPixel(Colour::rgb(red(u, v), green(u, v), blue(u, v)));
        }
    }
    return bitmap;
}

/// Any channel value with low bytes that have to be left out.
Bytes wide(unsigned value) {
    return bytes({value, value});
}

Bytes colours(std::uint32_t x, std::uint32_t y) {
    return bytes({red(x, y), green(x, y), blue(x, y)});
}

/// The picture in every form that can hold it.
std::vector<Bytes> forms() {
    std::vector<Bytes> files;
    Bytes table;
    for (std::uint32_t i = 0; i < 15; ++i) {
        table = table + colours(i % 5, i / 5);
    }
    for (const bool interlaced : {false, true}) {
        const auto add = [&](unsigned bitDepth, unsigned colourType, const auto& pixel, Bytes chunks = {}) {
            const PngForm form{5, 3, bitDepth, colourType, interlaced, std::move(chunks)};
            files.push_back(pngFile(form, pngRows(form, pixel)));
        };
        using At = std::uint32_t;
        add(8, 2, colours);
        add(16, 2, [](At x, At y) { return wide(red(x, y)) + wide(green(x, y)) + wide(blue(x, y)); });
        add(8, 6, [](At x, At y) { return colours(x, y) + bytes({255}); });
        add(8, 3, [](At x, At y) { return bytes({x + 5 * y}); }, pngChunk("PLTE", table));
    }
    files.push_back(encodePng(picture()));
    files.push_back(encodePng(picture(), PngPacking::none));
    return files;
}

Bitmap decoded(const Bytes& file) {
    Image image;
    Bitmap bitmap;
    EXPECT_EQ(ImageLoadMemory(image, file, ImageFormat::png), ImageError::none);
    EXPECT_EQ(ImageToBitmap(image, bitmap), ImageError::none);
    return bitmap;
}

TEST(Pngs, ShowTheSamePictureInEveryForm) {
    for (const Bytes& file : forms()) {
        EXPECT_EQ(decoded(file), picture());
    }
}

TEST(Pngs, OfFewGreysAreSpreadFromBlackToWhite) {
    const PngForm form{4, 1, 2, 0, false, {}};
    const Bitmap bitmap = decoded(pngFile(form, bytes({0, 0b00'01'10'11})));
    EXPECT_EQ(std::vector<Pixel>(bitmap.pixels().begin(), bitmap.pixels().end()),
              (std::vector<Pixel>{0, 0x555555, 0xAAAAAA, 0xFFFFFF}));
}

TEST(Pngs, WithTransparentPixelsAreLaidOnBlack) {
    const PngForm form{3, 1, 8, 6, false, {}};
    const Bitmap bitmap =
        decoded(pngFile(form, bytes({0, 200, 100, 50, 0, 200, 100, 50, 128, 200, 100, 50, 255})));
    EXPECT_EQ(bitmap.at(0, 0), 0U);
    EXPECT_EQ(bitmap.at(1, 0), 0x643219U);
    EXPECT_EQ(bitmap.at(2, 0), 0xC86432U);

    // The hidden colour of a table's transparent entry stays hidden too.
    const PngForm indexed{
        2, 1,     8,
        3, false, pngChunk("PLTE", bytes({9, 9, 9, 255, 0, 255})) + pngChunk("tRNS", bytes({255, 0}))};
    EXPECT_EQ(decoded(pngFile(indexed, bytes({0, 0, 1}))).at(1, 0), 0U);
}

TEST(Pngs, CutShortOrWithAFlippedBitAreRefused) {
    Image image;
    for (const Bytes& file : forms()) {
        for (std::size_t i = 0; i < file.size(); ++i) {
            const Bytes part(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(i));
            ASSERT_NE(ImageLoadMemory(image, part, ImageFormat::png), ImageError::none) << i;
            ASSERT_TRUE(image.pixels.empty());
            Bytes flipped = file;
            flipped[i] ^= std::byte{0x10};
            ASSERT_NE(ImageLoadMemory(image, flipped, ImageFormat::png), ImageError::none) << i;
            ASSERT_EQ(image.width, 0U);
        }
    }
}

TEST(Pngs, ThatClaimToBeGiantAreRefusedUnread) {
    Image image;
    for (const auto& [width, height] : {std::pair{4097U, 1U}, {1U, 4097U}, {0x7FFFFFFFU, 0x7FFFFFFFU}}) {
        const PngForm form{width, height, 8, 2, false, {}};
        EXPECT_EQ(ImageLoadMemory(image, pngFile(form, {}), ImageFormat::png), ImageError::tooLarge);
    }
    // The largest size is believed, but the pixels for it are missing.
    EXPECT_EQ(ImageLoadMemory(image, pngFile({4096, 4096, 8, 2, false, {}}, {}), ImageFormat::png),
              ImageError::damaged);
    EXPECT_EQ(ImageLoadMemory(image, pngFile({0, 5, 8, 2, false, {}}, {}), ImageFormat::png),
              ImageError::damaged);
}

TEST(Pngs, AreWrittenTheSameEveryTimeAndNotForNothing) {
    EXPECT_EQ(encodePng(picture()), encodePng(picture()));
    EXPECT_TRUE(encodePng(Bitmap()).empty());
    EXPECT_FALSE(writePng("/no/such/folder/picture.png", picture()));
}

} // namespace
} // namespace ventrel
