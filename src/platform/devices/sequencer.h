// The seam to the machine's sequencer: one piece of music at a time, from a standard MIDI file.

#pragma once

#include <cstddef>
#include <span>

namespace ventrel {

class Sequencer {
public:
    Sequencer() = default;
    Sequencer(const Sequencer&) = delete;
    Sequencer& operator=(const Sequencer&) = delete;
    virtual ~Sequencer() = default;

    /// Plays the file of these bytes in place of the present piece: once, or over and over without a gap.
    /// False when there is nothing to play it with, or it is no piece of music.
    virtual bool play(std::span<const std::byte> midi, bool repeat) = 0;
    /// The piece fades out within a few hundredths of a second.
    virtual void stop() = 0;
    /// Until a piece that is not repeated has come to its musical end; what rings on after that does not
    /// count.
    virtual bool isPlaying() const = 0;
    /// How loud, from 0 to 1 of the pieces' own level.
    virtual void setVolume(float volume) = 0;
};

/// For machines without music.
class NoSequencer final : public Sequencer {
public:
    bool play(std::span<const std::byte>, bool) override { return false; }
    void stop() override {}
    bool isPlaying() const override { return false; }
    void setVolume(float) override {}
};

} // namespace ventrel
