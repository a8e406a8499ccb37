#include "platform/canvas/dib.h"

#include <algorithm>
#include <cstdlib>

#include "platform/canvas/picture_limits.h"

namespace ventrel {

namespace {

constexpr std::uint32_t coreHeaderSize = 12;
constexpr std::uint32_t infoHeaderSize = 40;
constexpr std::uint32_t noCompression = 0;

struct DibHeader {
    std::uint32_t size = 0;
    std::int64_t width = 0;
    std::int64_t height = 0; ///< below 0: the top row comes first
    unsigned bitsPerPixel = 0;
    std::uint32_t compression = noCompression;
    std::uint32_t coloursUsed = 0; ///< 0: as many as the bits can tell apart

    std::size_t bytesPerColour() const { return size == coreHeaderSize ? 3 : 4; }
};

std::int64_t signedNumber(ByteView bytes, std::size_t offset) {
    return static_cast<std::int32_t>(numberAt(bytes, offset, 4));
}

std::optional<DibHeader> readHeader(ByteView dib) {
    DibHeader header;
    if (dib.size() < coreHeaderSize) {
        return std::nullopt;
    }
    header.size = numberAt(dib, 0, 4);
    if (header.size == coreHeaderSize) {
        header.width = numberAt(dib, 4, 2);
        header.height = numberAt(dib, 6, 2);
        header.bitsPerPixel = numberAt(dib, 10, 2);
        return header;
    }
    if (header.size < infoHeaderSize || dib.size() < header.size) {
        return std::nullopt;
    }
    header.width = signedNumber(dib, 4);
    header.height = signedNumber(dib, 8);
    header.bitsPerPixel = numberAt(dib, 14, 2);
    header.compression = numberAt(dib, 16, 4);
    header.coloursUsed = numberAt(dib, 32, 4);
    return header;
}

std::size_t colourCount(const DibHeader& header) {
    if (header.coloursUsed != 0) {
        return header.coloursUsed;
    }
    switch (header.bitsPerPixel) {
    case 1: return 2;
    case 4: return 16;
    case 8: return 256;
    default: return 0;
    }
}

/// Header and table together; at most 2^34, so it does not overflow.
std::size_t bitsOffset(const DibHeader& header) {
    return header.size + colourCount(header) * header.bytesPerColour();
}

bool isUnderstood(const DibHeader& header) {
    constexpr unsigned depths[] = {1, 4, 8, 24, 32};
    constexpr std::int64_t limit = imageSideLimit;
    return header.compression == noCompression && header.width > 0 && header.width <= limit &&
           header.height != 0 && std::abs(header.height) <= limit &&
           std::find(std::begin(depths), std::end(depths), header.bitsPerPixel) != std::end(depths);
}

/// Blue, green and red at `offset`.
Pixel pixelAt(ByteView bytes, std::size_t offset) {
    return numberAt(bytes, offset, 3);
}

/// The colour table; its bytes must lie within.
std::vector<Pixel> readColours(ByteView dib, const DibHeader& header) {
    std::vector<Pixel> colours(std::min<std::size_t>(colourCount(header), 256));
    for (std::size_t i = 0; i < colours.size(); ++i) {
        colours[i] = pixelAt(dib, header.size + i * header.bytesPerColour());
    }
    return colours;
}

/// False when a pixel asks for a colour that the table lacks.
bool readIndexedRow(ByteView bytes, unsigned bitsPerPixel, std::span<const Pixel> colours,
                    std::span<Pixel> row) {
    const std::size_t perByte = 8 / bitsPerPixel;
    for (std::size_t x = 0; x < row.size(); ++x) {
        const auto byte = std::to_integer<unsigned>(bytes[x / perByte]);
        const std::size_t shift = 8 - bitsPerPixel * (x % perByte + 1);
        const std::size_t index = byte >> shift & ((1U << bitsPerPixel) - 1);
        if (index >= colours.size()) {
            return false;
        }
        row[x] = colours[index];
    }
    return true;
}

void readDirectRow(ByteView bytes, unsigned bitsPerPixel, std::span<Pixel> row) {
    for (std::size_t x = 0; x < row.size(); ++x) {
        row[x] = pixelAt(bytes, x * (bitsPerPixel / 8));
    }
}

} // namespace

std::optional<Bitmap> CreateBitmapFromDib(ByteView dib) {
    return CreateBitmapFromDib(dib, DibBits(dib));
}

std::optional<Bitmap> CreateBitmapFromDib(ByteView dib, ByteView bits) {
    const auto header = readHeader(dib);
    if (!header || !isUnderstood(*header) || dib.size() < bitsOffset(*header)) {
        return std::nullopt;
    }
    const int width = static_cast<int>(header->width);
    const int height = static_cast<int>(std::abs(header->height));
    // Every row is filled up to four bytes.
    const std::size_t pitch = (static_cast<std::size_t>(width) * header->bitsPerPixel + 31) / 32 * 4;
    if (bits.size() / pitch < static_cast<std::size_t>(height)) {
        return std::nullopt;
    }
    const std::vector<Pixel> colours = readColours(dib, *header);
    Bitmap bitmap({width, height});
    for (int i = 0; i < height; ++i) {
        const auto bytes = bits.subspan(static_cast<std::size_t>(i) * pitch, pitch);
        const auto row = bitmap.row(header->height < 0 ? i : height - 1 - i);
        if (header->bitsPerPixel > 8) {
            readDirectRow(bytes, header->bitsPerPixel, row);
        } else if (!readIndexedRow(bytes, header->bitsPerPixel, colours, row)) {
            return std::nullopt;
        }
    }
    return bitmap;
}

std::size_t DibColourCount(ByteView dib) {
    const auto header = readHeader(dib);
    return header ? colourCount(*header) : 0;
}

std::size_t DibColourTableSize(ByteView dib) {
    const auto header = readHeader(dib);
    return header ? colourCount(*header) * header->bytesPerColour() : 0;
}

ByteView DibBits(ByteView dib) {
    const auto header = readHeader(dib);
    return header && bitsOffset(*header) <= dib.size() ? dib.subspan(bitsOffset(*header)) : ByteView{};
}

std::optional<DibSize> DibPictureSize(ByteView dib) {
    const auto header = readHeader(dib);
    return header ? std::optional(DibSize{header->width, std::abs(header->height)}) : std::nullopt;
}

} // namespace ventrel
