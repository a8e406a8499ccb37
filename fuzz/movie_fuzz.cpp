// The reader of movies against any bytes: frames lie inside the file, and each is a picture of the movie's
// size or none.

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "platform/images/movie_file.h"

namespace {

using namespace ventrel;

/// More would only take longer.
constexpr std::size_t framesLookedAt = 4;

bool isSound(const MovieFile& movie, std::size_t frame) {
    const auto& place = movie.frames[frame];
    if (place.offset > movie.bytes.size() || place.size > movie.bytes.size() - place.offset) {
        return false;
    }
    const auto picture = frame < framesLookedAt ? decodeFrame(movie, frame) : std::nullopt;
    return !picture || picture->size() == movie.size;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto* const bytes = reinterpret_cast<const std::byte*>(data);
    const auto movie = readMovie({bytes, bytes + size});
    if (!movie) {
        return 0;
    }
    if (movie->frames.empty() || movie->frameTime.count() <= 0 || movie->length().count() <= 0) {
        std::abort();
    }
    for (std::size_t frame = 0; frame < movie->frames.size(); ++frame) {
        if (!isSound(*movie, frame)) {
            std::abort();
        }
    }
    return 0;
}
