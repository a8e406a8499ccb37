#include "tools/apt/picture_check.h"

namespace ventrel::apt {

namespace {

constexpr unsigned markerStart = 0xFF;
constexpr unsigned startOfImage = 0xD8;
constexpr unsigned startOfScan = 0xDA;
constexpr unsigned firstFrame = 0xC0; // frame headers are 0xC0 to 0xCF without the three below
constexpr unsigned lastFrame = 0xCF;
constexpr unsigned huffmanTables = 0xC4;
constexpr unsigned jpegExtension = 0xC8;
constexpr unsigned arithmeticCoding = 0xCC;
constexpr std::size_t frameHeaderBytes = 7; // length, precision, height, width

class Bytes {
public:
    explicit Bytes(std::span<const std::byte> bytes) : bytes_(bytes) {}

    bool has(std::size_t at, std::size_t count) const {
        return count <= bytes_.size() && at <= bytes_.size() - count;
    }
    unsigned byte(std::size_t at) const { return std::to_integer<unsigned>(bytes_[at]); }
    unsigned word(std::size_t at) const { return byte(at) << 8 | byte(at + 1); }

private:
    std::span<const std::byte> bytes_;
};

bool isFrame(unsigned marker) {
    return marker >= firstFrame && marker <= lastFrame && marker != huffmanTables &&
           marker != jpegExtension && marker != arithmeticCoding;
}

} // namespace

std::optional<Size> jpegSize(std::span<const std::byte> content) {
    const Bytes bytes(content);
    if (!bytes.has(0, 2) || bytes.byte(0) != markerStart || bytes.byte(1) != startOfImage) {
        return std::nullopt;
    }
    std::size_t at = 2;
    while (bytes.has(at, 4) && bytes.byte(at) == markerStart) {
        const unsigned marker = bytes.byte(at + 1);
        if (isFrame(marker) && bytes.has(at + 2, frameHeaderBytes)) {
            return Size{static_cast<int>(bytes.word(at + 7)), static_cast<int>(bytes.word(at + 5))};
        }
        if (marker == startOfScan) {
            break;
        }
        at += marker == markerStart ? 1 : 2 + std::size_t{bytes.word(at + 2)};
    }
    return std::nullopt;
}

} // namespace ventrel::apt
