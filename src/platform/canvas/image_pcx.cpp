#include <algorithm>
#include <array>

#include "platform/canvas/image_readers.h"

namespace ventrel {

namespace {

using Bytes = std::span<const std::byte>;

constexpr std::size_t headerSize = 128;
constexpr unsigned manufacturer = 10;
constexpr unsigned runLengthCoded = 1;

/// The table of 256 colours stands at the file's end, after a byte that announces it.
constexpr std::size_t colourCount = 256;
constexpr std::size_t tableSize = colourCount * 3;
constexpr std::byte tableMark{12};

/// A byte with both upper bits set says how often the next one stands; any other stands for itself.
constexpr unsigned runMark = 0xC0;

struct PcxHeader {
    int width = 0;
    int height = 0;
    std::size_t planes = 0;       ///< of 8 bits: 1 with a table of colours, or red, green and blue
    std::size_t bytesPerLine = 0; ///< of one plane
};

unsigned byteAt(Bytes data, std::size_t offset) {
    return std::to_integer<unsigned>(data[offset]);
}

int numberAt(Bytes data, std::size_t offset) {
    return static_cast<int>(byteAt(data, offset) | byteAt(data, offset + 1) << 8);
}

PcxHeader readHeader(Bytes data) {
    return {numberAt(data, 8) - numberAt(data, 4) + 1, numberAt(data, 10) - numberAt(data, 6) + 1,
            byteAt(data, 65), static_cast<std::size_t>(numberAt(data, 66))};
}

/// Unpacks one row of all planes after another. Runs may cross from row to row.
class RunReader {
public:
    explicit RunReader(Bytes packed) : packed_(packed) {}

    /// False when the bytes end before the row does.
    bool read(std::span<std::uint8_t> row) {
        for (std::uint8_t& byte : row) {
            if (left_ == 0 && !nextRun()) {
                return false;
            }
            --left_;
            byte = value_;
        }
        return true;
    }

private:
    bool nextRun() {
        while (left_ == 0) {
            if (packed_.empty()) {
                return false;
            }
            const auto first = static_cast<std::uint8_t>(packed_.front());
            const bool isRun = (first & runMark) == runMark;
            const std::size_t size = isRun ? 2 : 1;
            if (packed_.size() < size) {
                return false;
            }
            left_ = isRun ? first & ~runMark : 1;
            value_ = static_cast<std::uint8_t>(packed_[size - 1]);
            packed_ = packed_.subspan(size);
        }
        return true;
    }

    Bytes packed_;
    unsigned left_ = 0;
    std::uint8_t value_ = 0;
};

/// The three bytes of each pixel of a row: out of the table, or one from each plane.
void appendRow(const PcxHeader& header, std::span<const std::uint8_t> row, Bytes table,
               std::vector<std::uint8_t>& pixels) {
    for (std::size_t x = 0; x < static_cast<std::size_t>(header.width); ++x) {
        for (std::size_t channel = 0; channel < 3; ++channel) {
            pixels.push_back(header.planes == 1
                                 ? static_cast<std::uint8_t>(table[std::size_t{3} * row[x] + channel])
                                 : row[channel * header.bytesPerLine + x]);
        }
    }
}

} // namespace

ImageError readPcx(Bytes data, Image& image) {
    if (data.size() < headerSize || byteAt(data, 0) != manufacturer || byteAt(data, 2) != runLengthCoded) {
        return ImageError::wrongFormat;
    }
    const PcxHeader header = readHeader(data);
    if (header.width <= 0 || header.height <= 0) {
        return ImageError::damaged;
    }
    if (!isPictureSize(header.width, header.height)) {
        return ImageError::tooLarge;
    }
    const bool isRead = byteAt(data, 3) == 8 && (header.planes == 1 || header.planes == 3);
    if (!isRead || header.bytesPerLine < static_cast<std::size_t>(header.width)) {
        return ImageError::damaged;
    }
    Bytes packed = data.subspan(headerSize);
    Bytes table;
    if (header.planes == 1) {
        if (packed.size() <= tableSize || packed[packed.size() - tableSize - 1] != tableMark) {
            return ImageError::damaged;
        }
        table = packed.last(tableSize);
        packed = packed.first(packed.size() - tableSize - 1);
    }
    RunReader reader(packed);
    std::vector<std::uint8_t> row(header.planes * header.bytesPerLine);
    for (int y = 0; y < header.height; ++y) {
        if (!reader.read(row)) {
            return ImageError::damaged;
        }
        appendRow(header, row, table, image.pixels);
    }
    image.width = static_cast<std::uint32_t>(header.width);
    image.height = static_cast<std::uint32_t>(header.height);
    return ImageError::none;
}

} // namespace ventrel
