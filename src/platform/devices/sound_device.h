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

/// What keeps a machine silent.
enum class SoundFault {
    none,
    missing, ///< there is no device that could be opened
    inUse,   ///< another program has it to itself
};

class SoundDevice {
public:
    SoundDevice() = default;
    SoundDevice(const SoundDevice&) = delete;
    SoundDevice& operator=(const SoundDevice&) = delete;
    virtual ~SoundDevice() = default;

    /// Found at the start. A device that is unplugged later is no fault: sounds go on in silence, and are
    /// heard again when it is back.
    virtual SoundFault fault() const = 0;
    /// Whether anything can be heard at all.
    bool isPresent() const { return fault() == SoundFault::none; }

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
    SoundFault fault() const override { return SoundFault::missing; }
    std::optional<SoundId> add(Recording, float) override { return std::nullopt; }
    void play(SoundId) override {}
    void stop(SoundId) override {}
    bool isPlaying(SoundId) const override { return false; }
    void release(SoundId) override {}
    void setVolume(float) override {}
};

} // namespace ventrel
