#include "platform/headless/headless_sound.h"

#include <algorithm>

namespace ventrel {

namespace {

constexpr Millis millisecondsPerSecond = 1000;

} // namespace

std::size_t HeadlessSound::held() const {
    return static_cast<std::size_t>(
        std::ranges::count_if(sounds_, [](const Sound& s) { return s.recording != nullptr; }));
}

std::optional<SoundId> HeadlessSound::add(Recording recording, float gain) {
    if (!isPresent() || held() >= mostSounds) {
        return std::nullopt;
    }
    auto place = std::ranges::find_if(sounds_, [](const Sound& s) { return s.recording == nullptr; });
    if (place == sounds_.end()) {
        place = sounds_.insert(place, Sound{});
    }
    *place = {.recording = std::move(recording), .gain = gain};
    return static_cast<SoundId>(place - sounds_.begin());
}

std::size_t HeadlessSound::position(const Sound& sound) const {
    if (!sound.isPlaying) {
        return sound.from;
    }
    const Millis played = clock_() - sound.startedAt;
    return sound.from + static_cast<std::size_t>(played * recordingRate / millisecondsPerSecond);
}

void HeadlessSound::play(SoundId id) {
    if (isPlaying(id)) {
        return;
    }
    Sound& started = sound(id);
    const bool hasEnded = position(started) >= started.recording->size();
    started.from = hasEnded ? 0 : started.from;
    started.isPlaying = true;
    started.startedAt = clock_();
    starts.push_back({clock_(), started.recording, started.gain, started.from});
}

void HeadlessSound::stop(SoundId id) {
    Sound& stopped = sound(id);
    stopped.from = position(stopped);
    stopped.isPlaying = false;
}

bool HeadlessSound::isPlaying(SoundId id) const {
    const Sound& asked = sound(id);
    return asked.isPlaying && position(asked) < asked.recording->size();
}

void HeadlessSound::release(SoundId id) {
    sound(id) = {};
}

bool HeadlessSequencer::play(std::span<const std::byte> midi, bool repeat) {
    isStarted_ = works;
    if (works) {
        starts.push_back({clock_(), {midi.begin(), midi.end()}, repeat});
    }
    return works;
}

void HeadlessSequencer::stop() {
    stops += isPlaying() ? 1 : 0;
    isStarted_ = false;
}

bool HeadlessSequencer::isPlaying() const {
    return isStarted_ && (starts.back().repeat || clock_() < starts.back().when + pieceLength);
}

} // namespace ventrel
