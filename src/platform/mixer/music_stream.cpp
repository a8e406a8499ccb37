#include "platform/mixer/music_stream.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr int storeMilliseconds = 400;
constexpr int fadeMilliseconds = 40;
constexpr int millisecondsPerSecond = 1000;

} // namespace

MusicStream::MusicStream(int rate)
    : capacity_(static_cast<std::uint64_t>(rate) * storeMilliseconds / millisecondsPerSecond),
      fade_(static_cast<float>(millisecondsPerSecond) / static_cast<float>(fadeMilliseconds * rate)) {
    frames_.resize(2 * capacity_);
}

void MusicStream::begin(Piece piece) {
    pieceEnd_.store(noEnd, std::memory_order_relaxed);
    pieceStart_.store(written_.load(std::memory_order_relaxed), std::memory_order_relaxed);
    writtenPiece_.store(piece, std::memory_order_release);
}

std::size_t MusicStream::room() const {
    const std::uint64_t waiting =
        written_.load(std::memory_order_relaxed) - read_.load(std::memory_order_acquire);
    return static_cast<std::size_t>(capacity_ - waiting);
}

void MusicStream::write(std::span<const float> stereo) {
    std::uint64_t frame = written_.load(std::memory_order_relaxed);
    for (std::size_t i = 0; i + 1 < stereo.size(); i += 2, ++frame) {
        const std::size_t slot = 2 * static_cast<std::size_t>(frame % capacity_);
        frames_[slot] = stereo[i];
        frames_[slot + 1] = stereo[i + 1];
    }
    written_.store(frame, std::memory_order_release);
}

void MusicStream::markEnd() {
    pieceEnd_.store(written_.load(std::memory_order_relaxed), std::memory_order_release);
}

std::uint64_t MusicStream::endOfHeard() const {
    const bool isBeingWritten = writtenPiece_.load(std::memory_order_acquire) == heard_;
    return isBeingWritten ? written_.load(std::memory_order_acquire)
                          : pieceStart_.load(std::memory_order_acquire);
}

void MusicStream::turnToWanted() {
    const Piece wanted = wanted_.load(std::memory_order_acquire);
    const Piece written = writtenPiece_.load(std::memory_order_acquire);
    const bool isThere = wanted == written && wanted != silence;
    heard_ = isThere ? wanted : silence;
    level_ = isThere ? 1.0F : 0.0F; // a piece begins in silence of its own
    read_.store(isThere ? pieceStart_.load(std::memory_order_acquire)
                        : written_.load(std::memory_order_acquire),
                std::memory_order_release);
}

void MusicStream::addTo(std::span<float> stereo, std::span<const float> gains) {
    for (std::size_t i = 0; i + 1 < stereo.size(); i += 2) {
        if (heard_ != wanted_.load(std::memory_order_acquire)) {
            level_ = std::max(0.0F, level_ - fade_);
            if (level_ == 0 || read_.load(std::memory_order_relaxed) >= endOfHeard()) {
                turnToWanted();
            }
        }
        addFrame(&stereo[i], gains[i / 2]);
    }
}

void MusicStream::addFrame(float* stereo, float gain) {
    const std::uint64_t frame = read_.load(std::memory_order_relaxed);
    if (heard_ == silence) {
        return;
    }
    if (frame >= pieceEnd_.load(std::memory_order_acquire) &&
        writtenPiece_.load(std::memory_order_acquire) == heard_) {
        ended_.store(heard_, std::memory_order_release);
    }
    if (frame >= endOfHeard()) {
        return; // the renderer is late, or has nothing more
    }
    const std::size_t slot = 2 * static_cast<std::size_t>(frame % capacity_);
    stereo[0] += frames_[slot] * gain * level_;
    stereo[1] += frames_[slot + 1] * gain * level_;
    read_.store(frame + 1, std::memory_order_release);
}

bool MusicStream::isQuiet() const {
    const bool allRead = read_.load(std::memory_order_acquire) == written_.load(std::memory_order_acquire);
    const Piece wanted = wanted_.load(std::memory_order_acquire);
    return allRead && (wanted == silence || hasEnded(wanted));
}

} // namespace ventrel
