// The reader of PNG pictures against any bytes: as they are, and with the check sums of their chunks put
// right, so that damage gets past them into the reader.

#include <vector>

#include "image_fuzz.h"

namespace {

constexpr std::size_t signatureSize = 8;
constexpr std::size_t lengthSize = 4;
constexpr std::size_t nameSize = 4;
constexpr std::size_t checkSize = 4;

std::uint32_t checkOf(std::span<const std::uint8_t> bytes) {
    std::uint32_t check = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes) {
        check ^= byte;
        for (int bit = 0; bit < 8; ++bit) {
            check = check >> 1 ^ ((check & 1) != 0 ? 0xEDB88320 : 0);
        }
    }
    return ~check;
}

std::size_t lengthAt(std::span<const std::uint8_t> file, std::size_t place) {
    std::size_t length = 0;
    for (const std::uint8_t byte : file.subspan(place, lengthSize)) {
        length = length << 8 | byte;
    }
    return length;
}

void repairChecks(std::span<std::uint8_t> file) {
    std::size_t place = signatureSize;
    while (place + lengthSize + nameSize + checkSize <= file.size()) {
        const std::size_t size = nameSize + lengthAt(file, place);
        if (size > file.size() - place - lengthSize - checkSize) {
            return;
        }
        const std::uint32_t check = checkOf(file.subspan(place + lengthSize, size));
        place += lengthSize + size;
        for (std::size_t i = 0; i < checkSize; ++i) {
            file[place + i] = static_cast<std::uint8_t>(check >> (24 - 8 * i));
        }
        place += checkSize;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    ventrel::fuzzImage(data, size, ventrel::ImageFormat::png);
    std::vector<std::uint8_t> repaired(data, data + size);
    repairChecks(repaired);
    return ventrel::fuzzImage(repaired.data(), repaired.size(), ventrel::ImageFormat::png);
}
