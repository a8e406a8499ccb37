#include <algorithm>
#include <array>

#include "platform/images/image_readers.h"

namespace ventrel {

namespace {

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

unsigned byteAt(ByteView data, std::size_t offset) {
    return std::to_integer<unsigned>(data[offset]);
}

int shortAt(ByteView data, std::size_t offset) {
    return static_cast<int>(numberAt(data, offset, 2));
}

PcxHeader readPcxHeader(ByteView data) {
    return {shortAt(data, 8) - shortAt(data, 4) + 1, shortAt(data, 10) - shortAt(data, 6) + 1,
            byteAt(data, 65), static_cast<std::size_t>(shortAt(data, 66))};
}

/// Unpacks one row of all planes after another. Runs may cross from row to row.
class RunReader {
public:
    explicit RunReader(ByteView packed) : packed_(packed) {}

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

    ByteView packed_;
    unsigned left_ = 0;
    std::uint8_t value_ = 0;
};

/// The three bytes of each pixel of a row: out of the table, or one from each plane.
void appendRow(const PcxHeader& header, std::span<const std::uint8_t> row, ByteView table,
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

ImageError readPcx(ByteView data, Image& image) {
    if (data.size() < headerSize || byteAt(data, 0) != manufacturer || byteAt(data, 2) != runLengthCoded) {
        return ImageError::wrongFormat;
    }
    const PcxHeader header = readPcxHeader(data);
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
    ByteView packed = data.subspan(headerSize);
    ByteView table;
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
