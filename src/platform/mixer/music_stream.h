// Music on its way from the thread that renders it to the device that plays it: a short store of
// stereo samples, and which piece they belong to.
//
// The loop's thread says what is to be played, the renderer writes, the mixer reads; nobody waits for
// another. A piece is a number that counts up; samples of an earlier piece fade out as soon as another is
// wanted.

#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace ventrel {

class MusicStream {
public:
    /// `rate`: of the device, frames a second.
    explicit MusicStream(int rate);

    using Piece = std::uint32_t;
    static constexpr Piece silence = 0;

    // The loop's side.

    /// Another piece is wanted, or silence. What is under way fades out.
    void want(Piece piece) { wanted_.store(piece, std::memory_order_release); }
    Piece wanted() const { return wanted_.load(std::memory_order_acquire); }
    /// Whether the device has played that piece to its end.
    bool hasEnded(Piece piece) const { return ended_.load(std::memory_order_acquire) == piece; }

    // The renderer's side.

    /// The frames written from now on belong to that piece.
    void begin(Piece piece);
    /// How many frames may be written at this moment.
    std::size_t room() const;
    /// Stereo samples, no more frames than there is room for.
    void write(std::span<const float> stereo);
    /// The piece's musical end is here; what is written after that rings on.
    void markEnd();

    // The mixer's side.

    /// Adds the next frames, each times its gain, to what stands in `stereo`.
    void addTo(std::span<float> stereo, std::span<const float> gains);
    /// Whether nothing of any piece is left to be heard.
    bool isQuiet() const;

private:
    /// The frame up to which the piece that is heard has been written.
    std::uint64_t endOfHeard() const;
    /// Leaves what is heard for what is wanted, as far as that is there yet.
    void turnToWanted();
    void addFrame(float* stereo, float gain);

    std::vector<float> frames_; // stereo, a ring
    std::uint64_t capacity_;    // in frames
    float fade_;                ///< of the level, each frame

    std::atomic<Piece> wanted_{silence};
    std::atomic<Piece> ended_{silence};
    std::atomic<std::uint64_t> written_{0}; // frames, since the start
    std::atomic<std::uint64_t> read_{0};
    std::atomic<std::uint64_t> pieceStart_{0}; // of the piece being written
    std::atomic<std::uint64_t> pieceEnd_{noEnd};
    std::atomic<Piece> writtenPiece_{silence};

    static constexpr std::uint64_t noEnd = ~std::uint64_t{0};

    // Of the mixer alone.
    Piece heard_ = silence; // the piece that is being read
    float level_ = 0;       // of the fade, 0 to 1
};

} // namespace ventrel
