#include "platform/canvas/dib.h"

#include <gtest/gtest.h>

#include <limits>

#include "../images/png_parts.h"

namespace ventrel {
namespace {

Bytes number(std::int64_t value, std::size_t size) {
    return littleEndian(static_cast<std::uint64_t>(value), size);
}

Bytes infoHeader(int width, int height, int bitsPerPixel, std::int64_t coloursUsed = 0, int compression = 0) {
    Bytes header = Bytes{} + number(40, 4) + number(width, 4) + number(height, 4) + number(1, 2) +
                   number(bitsPerPixel, 2) + number(compression, 4);
    header.resize(32);
    header = header + number(coloursUsed, 4);
    header.resize(40);
    return header;
}

Bytes coreHeader(int width, int height, int bitsPerPixel) {
    return Bytes{} + number(12, 4) + number(width, 2) + number(height, 2) + number(1, 2) +
           number(bitsPerPixel, 2);
}

/// Red and green above blue and white, in every form that holds colours.
std::vector<Bytes> forms() {
    const Bytes table = bytes({0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0, 255, 255, 255, 0});
    const Bytes direct = bytes({255, 0, 0, 255, 255, 255, 9, 9, 0, 0, 255, 0, 255, 0, 9, 9});
    return {infoHeader(2, 2, 4, 4) + table + bytes({0x23, 9, 9, 9, 0x01, 9, 9, 9}),
            infoHeader(2, 2, 8, 4) + table + bytes({2, 3, 9, 9, 0, 1, 9, 9}),
            infoHeader(2, -2, 8, 4) + table + bytes({0, 1, 9, 9, 2, 3, 9, 9}),
            infoHeader(2, 2, 4) + table + Bytes(12 * 4) + bytes({0x23, 9, 9, 9, 0x01, 9, 9, 9}),
            infoHeader(2, 2, 8) + table + Bytes(252 * 4) + bytes({2, 3, 9, 9, 0, 1, 9, 9}),
            infoHeader(2, 2, 24) + direct,
            coreHeader(2, 2, 24) + direct,
            infoHeader(2, 2, 32) + bytes({255, 0, 0, 9, 255, 255, 255, 9, 0, 0, 255, 9, 0, 255, 0, 9})};
}

TEST(Dibs, ShowTheSamePictureInEveryFormAndNoneWhenCutShort) {
    Bitmap expected({2, 2});
    expected.at(0, 0) = 0xFF0000;
    expected.at(1, 0) = 0x00FF00;
    expected.at(0, 1) = 0x0000FF;
    expected.at(1, 1) = 0xFFFFFF;
    for (const Bytes& form : forms()) {
        EXPECT_EQ(CreateBitmapFromDib(form), expected);
        for (std::size_t size = 0; size < form.size(); ++size) {
            // A copy of just that size, so that reading beyond it is noticed.
            const Bytes part(form.begin(), form.begin() + static_cast<std::ptrdiff_t>(size));
            ASSERT_FALSE(CreateBitmapFromDib(part)) << size;
        }
    }
}

TEST(Dibs, OfOneBitReadFromTheHighestBitAndPadTheirRows) {
    const auto bitmap =
        CreateBitmapFromDib(coreHeader(33, 2, 1) + bytes({1, 2, 3, 255, 255, 255}) +
                            bytes({0, 0, 0, 0, 0x80, 9, 9, 9}) + bytes({0x40, 0, 0, 1, 0, 9, 9, 9}));
    ASSERT_TRUE(bitmap);
    for (int x = 0; x < 33; ++x) {
        EXPECT_EQ(bitmap->at(x, 0), x == 1 || x == 31 ? 0xFFFFFFU : 0x030201U) << x;
        EXPECT_EQ(bitmap->at(x, 1), x == 32 ? 0xFFFFFFU : 0x030201U) << x;
    }
}

TEST(Dibs, ThatCannotBeTrueAreRefused) {
    constexpr int most = std::numeric_limits<int>::max();
    for (const Bytes& header :
         {infoHeader(0, 2, 24), infoHeader(2, 0, 24), infoHeader(-2, 2, 24), infoHeader(most, most, 32),
          infoHeader(1, -most - 1, 32), infoHeader(8193, 1, 1), infoHeader(2, 2, 16), infoHeader(2, 2, 0),
          infoHeader(2, 2, 24, 0, 1), infoHeader(2, 2, 8, 0xFFFFFFFF), coreHeader(0, 1, 24), Bytes(40)}) {
        EXPECT_FALSE(CreateBitmapFromDib(header + Bytes(4096)));
    }
    // A pixel that asks for a colour beyond the table.
    EXPECT_FALSE(CreateBitmapFromDib(infoHeader(1, 1, 8, 1) + bytes({0, 0, 0, 0, 1, 0, 0, 0})));
}

} // namespace
} // namespace ventrel
