#include "platform/images/image.h"
#include "platform/images/jpeg_writer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "base/whole_file.h"
#include "platform/images/png_writer.h"
#include "png_parts.h"

namespace ventrel {
namespace {

const std::filesystem::path dataFolder = TEST_DATA_FOLDER;

Bytes fileBytes(const char* name) {
    return readFileStart(dataFolder / name, 1 << 20).value();
}

Bytes pcxFile(std::uint32_t width, std::uint32_t height, unsigned planes, const Bytes& packed) {
    Bytes header =
        bytes({10, 5, 1, 8}) + littleEndian(0, 4) + littleEndian(width - 1, 2) + littleEndian(height - 1, 2);
    header.resize(65);
    header = header + bytes({planes}) + littleEndian(width + width % 2, 2);
    header.resize(128);
    return header + packed;
}

/// 2 x 2: red and green above white and white, the last two in one run that starts on the row before.
Bytes indexedPcx() {
    Bytes table = bytes({255, 0, 0, 0, 255, 0, 255, 255, 255});
    table.resize(768);
    return pcxFile(2, 2, 1, bytes({0, 0xC1, 1, 0xC2, 2})) + bytes({12}) + table;
}

Bytes colourPcx() {
    return pcxFile(2, 2, 3, bytes({0xC1, 255, 0, 0, 0xC1, 255, 0xC2, 0, 0xC6, 255}));
}

Bytes bmpFile(std::uint32_t width, std::uint32_t height) {
    Bytes file = bytes({'B', 'M'}) + littleEndian(0, 8) + littleEndian(54 + 6, 4) + littleEndian(40, 4) +
                 littleEndian(width, 4) + littleEndian(height, 4) + littleEndian(1, 2) + littleEndian(24, 2);
    file.resize(54 + 6); // a gap that belongs to nothing
    return file + bytes({255, 255, 255, 255, 255, 255, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0});
}

Bitmap decoded(const Bytes& file, ImageFormat format) {
    Image image;
    Bitmap bitmap;
    EXPECT_EQ(ImageLoadMemory(image, file, format), ImageError::none);
    EXPECT_EQ(ImageToBitmap(image, bitmap), ImageError::none);
    return bitmap;
}

struct Sample {
    ImageFormat format;
    Bytes file;
};

std::vector<Sample> samples() {
    Bitmap dot({1, 1});
    return {{ImageFormat::jpeg, fileBytes("colour.jpg")},
            {ImageFormat::jpeg, fileBytes("progressive.jpg")},
            {ImageFormat::jpeg, fileBytes("gray.jpg")},
            {ImageFormat::png, encodePng(dot)},
            {ImageFormat::pcx, indexedPcx()},
            {ImageFormat::bmp, bmpFile(2, 2)}};
}

bool isNear(Pixel pixel, Colour expected, int tolerance = 3) {
    const Colour colour = toColour(pixel);
    return std::abs(colour.red() - expected.red()) <= tolerance &&
           std::abs(colour.green() - expected.green()) <= tolerance &&
           std::abs(colour.blue() - expected.blue()) <= tolerance;
}

TEST(Jpegs, KeepTheirColoursInEveryForm) {
    for (const char* name : {"colour.jpg", "progressive.jpg"}) {
        const Bitmap bitmap = decoded(fileBytes(name), ImageFormat::jpeg);
        ASSERT_EQ(bitmap.size(), (Size{16, 8})) << name;
        EXPECT_TRUE(isNear(bitmap.at(0, 0), Colour::rgb(200, 40, 40))) << name;
        EXPECT_TRUE(isNear(bitmap.at(15, 7), Colour::rgb(30, 60, 220))) << name;
    }
    const Bitmap gray = decoded(fileBytes("gray.jpg"), ImageFormat::jpeg);
    EXPECT_TRUE(isNear(gray.at(0, 0), Colour::rgb(90, 90, 90)));
    Image image;
    EXPECT_EQ(ImageLoadMemory(image, fileBytes("cmyk.jpg"), ImageFormat::jpeg), ImageError::damaged);
}

TEST(Jpegs, AreWrittenTheSameEveryTimeAndNotForNothing) {
    // Larger than the writer's own buffer, in colours next to each other that a coarser grid would mix.
    Bitmap stripes({301, 203});
    for (int y = 0; y < stripes.height(); ++y) {
        for (int x = 0; x < stripes.width(); ++x) {
            stripes.at(x, y) = toPixel(x % 8 < 4 ? Colour::rgb(220, 30, 40) : Colour::rgb(30, 60, 220));
        }
    }
    const auto file = encodeJpeg(stripes, 98);
    EXPECT_EQ(file, encodeJpeg(stripes, 98));
    EXPECT_LT(encodeJpeg(stripes, 20).size(), file.size());
    const Bitmap read = decoded(file, ImageFormat::jpeg);
    ASSERT_EQ(read.size(), stripes.size());
    for (const Point at : {Point{2, 0}, Point{6, 0}, Point{298, 202}, Point{294, 202}}) {
        EXPECT_TRUE(isNear(read.at(at.x, at.y), toColour(stripes.at(at.x, at.y)), 12)) << at.x;
    }
    EXPECT_TRUE(encodeJpeg(Bitmap(), 90).empty());
}

TEST(PcxsAndBmps, ShowTheSamePicture) {
    Bitmap expected({2, 2});
    expected.at(0, 0) = 0xFF0000;
    expected.at(1, 0) = 0x00FF00;
    expected.at(0, 1) = 0xFFFFFF;
    expected.at(1, 1) = 0xFFFFFF;
    EXPECT_EQ(decoded(indexedPcx(), ImageFormat::pcx), expected);
    EXPECT_EQ(decoded(bmpFile(2, 2), ImageFormat::bmp), expected);
    EXPECT_EQ(decoded(colourPcx(), ImageFormat::pcx), expected);
}

TEST(Images, CutShortOrOfAnotherFormatAreRefusedAndLeaveNothingBehind) {
    Image image;
    for (const auto& [format, file] : samples()) {
        for (std::size_t size = 0; size < file.size(); ++size) {
            ASSERT_EQ(ImageLoadMemory(image, file, format), ImageError::none);
            const Bytes part(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
            ASSERT_NE(ImageLoadMemory(image, part, format), ImageError::none) << size;
            ASSERT_TRUE(image.pixels.empty() && image.width == 0 && image.height == 0);
        }
        for (int code = 0; code <= 5; ++code) {
            const auto other = static_cast<ImageFormat>(code);
            if (other != format) {
                EXPECT_EQ(ImageLoadMemory(image, file, other), ImageError::wrongFormat);
            }
        }
    }
}

TEST(Images, ThatClaimToBeGiantAreRefusedUnread) {
    Image image;
    Bytes jpeg = fileBytes("colour.jpg");
    const Bytes sizes = bytes({0, 8, 0, 16}); // as the frame's header has them
    const auto place = std::search(jpeg.begin(), jpeg.end(), sizes.begin(), sizes.end());
    ASSERT_NE(place, jpeg.end());
    *place = std::byte{0x10};
    EXPECT_EQ(ImageLoadMemory(image, jpeg, ImageFormat::jpeg), ImageError::tooLarge);
    EXPECT_EQ(ImageLoadMemory(image, pcxFile(65535, 65535, 3, {}), ImageFormat::pcx), ImageError::tooLarge);
    EXPECT_EQ(ImageLoadMemory(image, bmpFile(4097, 1), ImageFormat::bmp), ImageError::tooLarge);
    EXPECT_EQ(ImageLoadMemory(image, bmpFile(1, 0x80000000), ImageFormat::bmp), ImageError::tooLarge);
    EXPECT_EQ(ImageLoadMemory(image, bmpFile(0x80000000, 1), ImageFormat::bmp), ImageError::damaged);
}

TEST(Images, AreReadFromFilesAndAMissingFileLeavesTheBitmapAlone) {
    Image image;
    Bitmap bitmap({7, 7});
    EXPECT_EQ(ImageLoadFile(image, dataFolder / "colour.jpg", ImageFormat::jpeg), ImageError::none);
    for (const auto& path : {dataFolder / "missing.jpg", dataFolder}) {
        EXPECT_EQ(ImageLoadFile(image, path, ImageFormat::jpeg), ImageError::cannotOpen);
        EXPECT_EQ(ImageToBitmap(image, bitmap), ImageError::noPixels);
    }
    EXPECT_EQ(bitmap, Bitmap({7, 7}));
}

} // namespace
} // namespace ventrel
