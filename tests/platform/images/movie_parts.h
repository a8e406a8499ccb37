// Makes movie files for tests, chunk by chunk.

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace ventrel {

inline std::string littleEndian(std::uint32_t number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) {
        bytes += static_cast<char>(number >> shift & 0xFF);
    }
    return bytes;
}

inline std::string chunk(const std::string& tag, const std::string& content) {
    const std::string padding(content.size() % 2, '\0');
    return tag + littleEndian(static_cast<std::uint32_t>(content.size())) + content + padding;
}

inline std::string list(const std::string& kind, const std::string& chunks) {
    return chunk("LIST", kind + chunks);
}

/// A movie of frames of that size, each shown for so many microseconds. `between` stands before every frame.
inline std::string movieFile(const std::vector<std::string>& jpegs, std::uint32_t width, std::uint32_t height,
                             std::uint32_t frameTime = 50000, const std::string& between = {}) {
    const std::string format = littleEndian(40) + littleEndian(width) + littleEndian(height) +
                               littleEndian(24 << 16 | 1) + "MJPG" + std::string(20, '\0');
    const std::string headers = list(
        "hdrl", chunk("avih", littleEndian(frameTime) + std::string(52, '\0')) +
                    list("strl", chunk("strh", "vidsMJPG" + std::string(48, '\0')) + chunk("strf", format)));
    std::string frames;
    for (const std::string& jpeg : jpegs) {
        frames += between + chunk("00dc", jpeg);
    }
    const std::string content =
        "AVI " + headers + chunk("JUNK", "xyz") + list("movi", frames) + chunk("idx1", "1234");
    return chunk("RIFF", content);
}

} // namespace ventrel
