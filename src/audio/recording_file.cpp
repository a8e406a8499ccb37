#include "audio/recording_file.h"

#include <algorithm>
#include <new>

#include "base/file_buffer.h"
#include "base/string_table.h"

namespace ventrel {

Result<std::vector<std::uint8_t>> readRecording(const std::filesystem::path& file) {
    FileBuffer buffer;
    if (auto loaded = buffer.load(file, false, std::nullopt); !loaded) {
        return tl::unexpected(loaded.error());
    }
    try {
        std::vector<std::uint8_t> samples(buffer.data.size());
        std::ranges::transform(buffer.data, samples.begin(),
                               [](std::byte sample) { return std::to_integer<std::uint8_t>(sample); });
        return samples;
    } catch (const std::bad_alloc&) {
        return failed(FormatStringId(TextId::notEnoughMemory, {static_cast<long>(buffer.data.size())}));
    }
}

} // namespace ventrel
