#include "platform/images/movie_file.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

#include "base/bytes.h"
#include "platform/images/image.h"

namespace ventrel {

namespace {

constexpr std::size_t tagSize = 4;
constexpr std::size_t chunkHeaderSize = 8;
constexpr int deepestList = 4;
constexpr std::size_t mostFrames = 100000;
constexpr std::uint32_t longestFrameTime = 10'000'000; // microseconds

/// One chunk: its tag stands at `start`, its content from `offset` on.
struct Chunk {
    std::size_t start = 0;
    std::size_t offset = 0;
    std::size_t size = 0;
};

/// The chunks that lie in a part of the file, one after the other, each at an even place. A chunk that is cut
/// ends the walk.
class ChunkWalk {
public:
    ChunkWalk(ByteView file, std::size_t begin, std::size_t end) : file_(file), at_(begin), end_(end) {}

    std::optional<Chunk> next() {
        if (end_ - at_ < chunkHeaderSize) {
            return std::nullopt;
        }
        const std::size_t offset = at_ + chunkHeaderSize;
        const std::size_t size = numberAt(file_, at_ + tagSize);
        if (size > end_ - offset) {
            return std::nullopt;
        }
        const Chunk chunk{at_, offset, size};
        at_ = std::min(end_, offset + size + size % 2);
        return chunk;
    }

private:
    ByteView file_;
    std::size_t at_;
    std::size_t end_;
};

class MovieReader {
public:
    explicit MovieReader(MovieFile& movie) : movie_(movie), file_(movie.bytes) {}

    /// Whether all that a movie needs was found.
    bool read() {
        constexpr std::size_t formOffset = chunkHeaderSize;
        if (file_.size() < chunkHeaderSize + tagSize || !isTag(file_, 0, "RIFF") ||
            !isTag(file_, formOffset, "AVI ")) {
            return false;
        }
        readList(formOffset + tagSize, file_.size(), deepestList);
        return hasSize() && movie_.frameTime.count() > 0 && !movie_.frames.empty();
    }

private:
    bool hasSize() const { return movie_.size.width > 0 && movie_.size.height > 0; }

    void readList(std::size_t begin, std::size_t end, int depth) {
        ChunkWalk walk(file_, begin, end);
        while (const auto chunk = walk.next()) {
            if (isTag(file_, chunk->start, "LIST") && chunk->size >= tagSize && depth > 0) {
                readList(chunk->offset + tagSize, chunk->offset + chunk->size, depth - 1);
            } else {
                readChunk(*chunk);
            }
        }
    }

    void readChunk(const Chunk& chunk) {
        if (isTag(file_, chunk.start, "avih")) {
            readMainHeader(chunk);
        } else if (isTag(file_, chunk.start, "strf")) {
            readFormat(chunk);
        } else if (isTag(file_, chunk.start, "00dc") && movie_.frames.size() < mostFrames) {
            movie_.frames.push_back({chunk.offset, chunk.size});
        }
    }

    /// Begins with the microseconds that a frame is shown.
    void readMainHeader(const Chunk& chunk) {
        if (chunk.size >= sizeof(std::uint32_t)) {
            const std::uint32_t time = std::min(numberAt(file_, chunk.offset), longestFrameTime);
            movie_.frameTime = std::chrono::microseconds(time);
        }
    }

    /// Of the first stream, which is the pictures': a bitmap header.
    void readFormat(const Chunk& chunk) {
        constexpr std::size_t widthOffset = 4;
        constexpr std::size_t heightOffset = 8;
        constexpr std::size_t codecOffset = 16;
        if (hasSize() || chunk.size < codecOffset + tagSize ||
            !isTag(file_, chunk.offset + codecOffset, "MJPG")) {
            return;
        }
        const std::uint32_t width = numberAt(file_, chunk.offset + widthOffset);
        const std::uint32_t height = numberAt(file_, chunk.offset + heightOffset);
        if (width <= imageSideLimit && height <= imageSideLimit) {
            movie_.size = {static_cast<int>(width), static_cast<int>(height)};
        }
    }

    MovieFile& movie_;
    ByteView file_;
};

} // namespace

std::optional<MovieFile> readMovie(std::vector<std::byte> bytes) {
    MovieFile movie;
    movie.bytes = std::move(bytes);
    return MovieReader(movie).read() ? std::optional(std::move(movie)) : std::nullopt;
}

std::optional<Bitmap> decodeFrame(const MovieFile& movie, std::size_t frame) {
    const MovieFile::Frame& place = movie.frames[frame];
    Image image;
    Bitmap picture;
    const ByteView jpeg = ByteView(movie.bytes).subspan(place.offset, place.size);
    if (ImageLoadMemory(image, jpeg, ImageFormat::jpeg) != ImageError::none ||
        ImageToBitmap(image, picture) != ImageError::none || picture.size() != movie.size) {
        return std::nullopt;
    }
    return picture;
}

} // namespace ventrel
