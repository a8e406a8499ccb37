// The seam to the machine's sound: recordings that are started, stopped and played on, mixed with the music.
//
// A recording is headerless: unsigned 8-bit mono samples, 128 is silence, 8001 of them a second. The device
// holds a handful at a time; whoever added one lets go of it again. Nothing here ever waits for the machine.

#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace ventrel {

/// Samples a second of every recording.
inline constexpr int recordingRate = 8001;
/// The value of a sample in silence.
inline constexpr std::uint8_t silentSample = 128;

/// A whole recording. Shared: the device goes on holding what still sounds.
using Recording = std::shared_ptr<const std::vector<std::uint8_t>>;

/// One recording on the device, from `add` to `release`.
enum class SoundId : int {};

class SoundDevice {
public:
    SoundDevice() = default;
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;
    virtual ~SoundDevice() = default;

    /// Whether anything can be heard at all. One that is unplugged later still counts: sounds go on in
    /// silence, and are heard again when it is back.
    virtual bool isPresent() const = 0;

    /// Takes a recording, played at `gain` (1: as it is). None when there is no device or no room.
    virtual std::optional<SoundId> add(Recording recording, float gain) = 0;
    /// Plays once, from the start, or from where it was stopped; nothing while it plays.
    virtual void play(SoundId id) = 0;
    /// Stops where it stands.
    virtual void stop(SoundId id) = 0;
    virtual bool isPlaying(SoundId id) const = 0;
    /// Lets go of it; what still sounds of it dies away at once.
    virtual void release(SoundId id) = 0;

    /// How loud all recordings together are, from 0 to 1.
    virtual void setVolume(float volume) = 0;
};

/// For machines without sound.
class NoSoundDevice final : public SoundDevice {
public:
    bool isPresent() const override { return false; }
    std::optional<SoundId> add(Recording, float) override { return std::nullopt; }
    void play(SoundId) override {}
    void stop(SoundId) override {}
    bool isPlaying(SoundId) const override { return false; }
    void release(SoundId) override {}
    void setVolume(float) override {}
};

} // namespace ventrel
