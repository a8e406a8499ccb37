// The machine's sound in memory: what was played when, by a clock that the test turns.

#pragma once

#include <functional>
#include <vector>

#include "platform/devices/backend.h"
#include "platform/devices/sequencer.h"
#include "platform/devices/sound_device.h"

namespace ventrel {

/// Tells the time (see HeadlessBackend::now).
using MachineClock = std::function<Millis()>;

class HeadlessSound final : public SoundDevice {
public:
    explicit HeadlessSound(MachineClock clock) : clock_(std::move(clock)) {}

    /// Another start of a recording, which was added at that gain.
    struct Start {
        Millis when = 0;
        Recording recording;
        float gain = 1;
        std::size_t from = 0; ///< the sample it went on from
    };

    SoundFault broken = SoundFault::none;
    std::size_t mostSounds = 24; ///< that are held at once
    std::vector<Start> starts;

    /// How many recordings are held, playing or not.
    std::size_t held() const;
    float volume() const { return volume_; }

    SoundFault fault() const override { return broken; }
    std::optional<SoundId> add(Recording recording, float gain) override;
    void play(SoundId id) override;
    void stop(SoundId id) override;
    bool isPlaying(SoundId id) const override;
    void release(SoundId id) override;
    void setVolume(float volume) override { volume_ = volume; }

private:
    struct Sound {
        Recording recording; ///< none: a free place
        float gain = 1;
        bool isPlaying = false;
        Millis startedAt = 0;
        std::size_t from = 0;
    };

    Sound& sound(SoundId id) { return sounds_[static_cast<std::size_t>(id)]; }
    const Sound& sound(SoundId id) const { return sounds_[static_cast<std::size_t>(id)]; }
    /// The sample that has been reached.
    std::size_t position(const Sound& sound) const;

    MachineClock clock_;
    std::vector<Sound> sounds_;
    float volume_ = 1;
};

class HeadlessSequencer final : public Sequencer {
public:
    explicit HeadlessSequencer(MachineClock clock) : clock_(std::move(clock)) {}

    struct Start {
        Millis when = 0;
        std::vector<std::byte> midi;
        bool repeat = false;
    };

    bool works = true;
    Millis pieceLength = 20000; ///< of every piece
    std::vector<Start> starts;
    std::size_t stops = 0;

    float volume() const { return volume_; }

    bool play(std::span<const std::byte> midi, bool repeat) override;
    void stop() override;
    bool isPlaying() const override;
    void setVolume(float volume) override { volume_ = volume; }

private:
    MachineClock clock_;
    bool isStarted_ = false;
    float volume_ = 1;
};

} // namespace ventrel
