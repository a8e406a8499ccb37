// The mixer: every recording that sounds and the music, summed for the device.
//
// Two threads meet here. The loop's side adds, plays, stops and releases; the device's side calls `render`,
// which never allocates, waits or touches a file. Between them runs a queue of commands one way, and two
// numbers for each voice the other way. Recordings are freed by the loop's side alone.

#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <optional>
#include <span>

#include "platform/devices/sound_device.h"
#include "platform/mixer/command_queue.h"
#include "platform/mixer/limiter.h"
#include "platform/mixer/music_stream.h"
#include "platform/mixer/resampler.h"

namespace ventrel {

class Mixer {
public:
    /// `rate`: of the device, frames a second, at least that of the recordings.
    explicit Mixer(int rate);
    Mixer(const Mixer&) = delete;
    Mixer& operator=(const Mixer&) = delete;
    ~Mixer() = default;

    // The loop's side: as SoundDevice has it.
    std::optional<SoundId> add(Recording recording, float gain);
    void play(SoundId id);
    void stop(SoundId id);
    bool isPlaying(SoundId id) const;
    void release(SoundId id);

    MusicStream& music() { return music_; }

    /// How loud all recordings are, and the music, from 0 to 1.
    void setSoundVolume(float volume) { soundVolume_.wanted.store(volume, std::memory_order_relaxed); }
    void setMusicVolume(float volume) { musicVolume_.wanted.store(volume, std::memory_order_relaxed); }

    /// Whether nothing sounds, and nothing has sounded for a moment.
    bool isSilent() const;

    // The device's side.

    /// Fills the next frames, left and right in turn.
    void render(std::span<float> stereo);

private:
    static constexpr std::size_t voiceCount = 24;
    static constexpr std::size_t mostCommands = 256;
    /// Recorded samples that one block can take: more than any device rate asks for.
    static constexpr std::size_t mostInputs = Limiter::frames + 1;

    using Serial = std::uint32_t; ///< counts what is asked of a voice; 0: nothing yet

    /// What the loop's side knows of a voice.
    struct Owner {
        Recording recording;
        bool isTaken = false;
        bool isWanted = false; ///< playing, unless it has come to its end
        Serial lastPlay = 0;
        Serial lastRelease = 0;
    };

    enum class CommandKind { add, play, stop, release };
    struct Command {
        CommandKind kind = CommandKind::add;
        std::size_t voice = 0;
        Serial serial = 0;
        const std::vector<std::uint8_t>* samples = nullptr;
        float gain = 1;
    };

    /// What the device's side knows of it.
    struct Voice {
        const std::vector<std::uint8_t>* samples = nullptr;
        float gain = 1;
        std::size_t position = 0;
        std::size_t stopPosition = 0;
        float level = 0; ///< of the fade, 0 to 1
        bool isPlaying = false;
        bool isReleased = false;
        Serial play = 0;
        Serial release = 0;
    };

    /// A volume on its way from one block to the next.
    struct Volume {
        std::atomic<float> wanted{1};
        float now = 1; ///< of the device's side
    };
    using Gains = std::array<float, Limiter::frames>;
    static Gains glide(Volume& volume);

    static std::size_t indexOf(SoundId id) { return static_cast<std::size_t>(id); }
    void send(const Command& command);
    bool isFree(std::size_t voice) const;

    void obey(const Command& command);
    float nextSample();
    float sampleOf(std::size_t index);
    void finish(std::size_t index);
    void renderBlock();
    void noteSilence(const Limiter::Block& block);

    std::array<Owner, voiceCount> owners_;
    CommandQueue<Command, mostCommands> commands_;
    std::array<std::atomic<Serial>, voiceCount> ended_{};    ///< the latest play that has come to its end
    std::array<std::atomic<Serial>, voiceCount> released_{}; ///< the latest release that was obeyed
    Volume soundVolume_;
    Volume musicVolume_;
    std::atomic<std::uint32_t> silentBlocks_{0};

    std::array<Voice, voiceCount> voices_;
    Resampler resampler_;
    Limiter limiter_;
    MusicStream music_;
    Limiter::Block
        block_{}; ///< the latest block, of which the last `left_` values are still to be handed out
    std::size_t left_ = 0;
    std::uint32_t blocksUntilSilence_;
};

} // namespace ventrel
