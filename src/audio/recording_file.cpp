#include "audio/recording_file.h"

#include <algorithm>

#include "base/file_buffer.h"

namespace ventrel {

Result<std::vector<std::uint8_t>> readRecording(const std::filesystem::path& file) {
    FileBuffer buffer;
    if (auto loaded = buffer.load(file, false, std::nullopt); !loaded) {
        return tl::unexpected(loaded.error());
    }
    std::vector<std::uint8_t> samples(buffer.data.size());
    std::ranges::transform(buffer.data, samples.begin(),
                           [](std::byte sample) { return std::to_integer<std::uint8_t>(sample); });
    return samples;
}

} // namespace ventrel
