#include "tools/sound/sound_file.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <string>

#include "base/whole_file.h"

namespace ventrel::sound {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t largestFile = std::size_t{1} << 28;
constexpr int middle = 128; // of the 8 bits
constexpr int highest = 255;

Result<Bytes> contentOf(const fs::path& file) {
    auto content = readFileStart(file, largestFile);
    if (!content) {
        return failed(file.string() + " cannot be opened");
    }
    return *std::move(content);
}

struct Format {
    unsigned channels = 0;
    unsigned rate = 0;
};

/// Of the "fmt " chunk; no channels where it is none that is understood.
Format formatOf(ByteView chunk) {
    constexpr std::size_t length = 16;
    constexpr unsigned plain = 1;
    constexpr unsigned bits = 16;
    if (chunk.size() < length || numberAt(chunk, 0, 2) != plain || numberAt(chunk, 14, 2) != bits) {
        return {};
    }
    return {numberAt(chunk, 2, 2), numberAt(chunk, 4, 4)};
}

Recording samplesOf(ByteView chunk, Format format) {
    constexpr double full = 32768;
    Recording recording{static_cast<double>(format.rate), std::vector<Signal>(format.channels)};
    const std::size_t frame = std::size_t{2} * format.channels;
    for (std::size_t at = 0; at + frame <= chunk.size(); at += frame) {
        for (std::size_t c = 0; c < format.channels; ++c) {
            const auto sample = static_cast<std::int16_t>(numberAt(chunk, at + 2 * c, 2));
            recording.channels[c].push_back(sample / full);
        }
    }
    return recording;
}

} // namespace

Result<Recording> readWave(const fs::path& file) {
    constexpr std::size_t headerSize = 12;
    constexpr std::size_t chunkHeader = 8;
    const auto content = contentOf(file);
    if (!content) {
        return tl::unexpected(content.error());
    }
    const ByteView bytes = *content;
    Format format;
    if (bytes.size() >= headerSize && isTag(bytes, 0, "RIFF") && isTag(bytes, 8, "WAVE")) {
        for (std::size_t at = headerSize; at + chunkHeader <= bytes.size();) {
            const std::size_t begin = at + chunkHeader;
            const std::size_t size = std::min<std::size_t>(numberAt(bytes, at + 4, 4), bytes.size() - begin);
            if (isTag(bytes, at, "fmt ")) {
                format = formatOf(bytes.subspan(begin, size));
            } else if (isTag(bytes, at, "data") && format.channels != 0) {
                return samplesOf(bytes.subspan(begin, size), format);
            }
            at = begin + size + size % 2;
        }
    }
    return failed(file.string() + " is no WAV file of 16 bits");
}

Result<Signal> readSound(const fs::path& file) {
    const auto content = contentOf(file);
    if (!content) {
        return tl::unexpected(content.error());
    }
    Signal signal(content->size());
    std::ranges::transform(*content, signal.begin(),
                           [](std::byte byte) { return (std::to_integer<int>(byte) - middle) * fileStep; });
    return signal;
}

Result<> writeSound(const fs::path& file, SignalView signal, std::string_view dither) {
    Chance chance(dither);
    std::string bytes(signal.size(), '\0');
    std::ranges::transform(signal, bytes.begin(), [&](double sample) {
        const double hiss = dither.empty() ? 0 : (chance.next() + chance.next()) / 2;
        const long value = std::lround(sample / fileStep + hiss) + middle;
        return static_cast<char>(std::clamp<long>(value, 0, highest));
    });
    std::ofstream target(file, std::ios::binary);
    target << bytes;
    if (!target.flush()) {
        return failed(file.string() + " cannot be written");
    }
    return {};
}

} // namespace ventrel::sound
